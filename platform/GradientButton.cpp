#include "platform/GradientButton.h"

#include "platform/WindowStyle.h"
#include "shell/Contrast.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace platform {

GradientButton::GradientButton(const QString& caption, QWidget* parent)
    : QAbstractButton(parent) {
    setText(caption);
    setAttribute(Qt::WA_Hover);
    // Tab reaches every button; a click does not take the keys away from the window's lists.
    setFocusPolicy(Qt::TabFocus);
}

void GradientButton::setColours(icon::Colour start, icon::Colour end, icon::Colour text,
                                icon::Colour light) {
    m_start = start;
    m_end = end;
    m_text = text;
    m_light = light;
    update();
}

void GradientButton::setStartColour(icon::Colour colour) {
    m_start = colour;
    update();
}

void GradientButton::setEndColour(icon::Colour colour) {
    m_end = colour;
    update();
}

void GradientButton::setTextColour(icon::Colour colour) {
    m_text = colour;
    update();
}

void GradientButton::setLightColour(icon::Colour colour) {
    m_light = colour;
    update();
}

void GradientButton::setDirection(Direction direction) {
    m_direction = direction;
    update();
}

void GradientButton::setPicture(const QPixmap& picture, Qt::Alignment alignment) {
    m_picture = picture;
    m_pictureAlignment = alignment;
    update();
}

QSize GradientButton::sizeHint() const {
    const QSize textSize = fontMetrics().size(Qt::TextSingleLine, text());
    return {textSize.width() + m_picture.width() + 16,
            std::max(textSize.height(), m_picture.height()) + 8};
}

QRect GradientButton::contentRect(QRect* picturePlace) const {
    QRect content = rect().adjusted(4, 2, -4, -2);
    if (m_picture.isNull())
        return content;
    const QSize size = m_picture.deviceIndependentSize().toSize();
    QRect place(QPoint(), size);
    if (text().isEmpty() || (m_pictureAlignment & Qt::AlignHCenter)) {
        place.moveCenter(content.center());
    } else if (m_pictureAlignment & Qt::AlignRight) {
        place.moveTopRight(QPoint(content.right(), content.center().y() - size.height() / 2));
        content.setRight(place.left() - 4);
    } else {
        place.moveTopLeft(QPoint(content.left(), content.center().y() - size.height() / 2));
        content.setLeft(place.right() + 4);
    }
    if (picturePlace != nullptr)
        *picturePlace = place;
    return content;
}

QRect GradientButton::captionRect() const {
    if (text().isEmpty())
        return {};
    return QFontMetrics(captionFont())
        .boundingRect(contentRect(nullptr), Qt::AlignCenter | Qt::TextSingleLine, text())
        .intersected(rect());
}

QFont GradientButton::captionFont() const {
    // A caption a little too long for its button is drawn smaller rather than cut.
    const int room = contentRect(nullptr).width();
    QFont shrunk = font();
    if (shrunk.pointSizeF() <= 0)
        return shrunk;
    while (QFontMetrics(shrunk).horizontalAdvance(text()) > room && shrunk.pointSizeF() > 6)
        shrunk.setPointSizeF(shrunk.pointSizeF() - 0.5);
    return shrunk;
}

void GradientButton::paintFace(QPainter& painter, const QRect& caption, bool sunken) const {
    const bool vertical = m_direction == Direction::Vertical;
    const QRectF area = QRectF(rect());
    QLinearGradient gradient(area.topLeft(), vertical ? area.bottomLeft() : area.topRight());
    const double length = vertical ? area.height() : area.width();
    if (caption.isEmpty() || length <= 0) {
        // Pressed, the gradient turns over, as if the button went in.
        gradient.setColorAt(0, toQColor(sunken ? m_end : m_start));
        gradient.setColorAt(1, toQColor(sunken ? m_start : m_end));
    } else {
        // The caption's colour band, a pixel wider than the caption on each side.
        const bool onStart = shell::captionEnd(m_start, m_end, m_text) == shell::GradientEnd::Start;
        const QColor band = toQColor(onStart ? m_start : m_end);
        const QColor other = toQColor(onStart ? m_end : m_start);
        const double from =
            std::clamp(((vertical ? caption.top() : caption.left()) - 1) / length, 0.0, 1.0);
        const double to =
            std::clamp(((vertical ? caption.bottom() : caption.right()) + 2) / length, 0.0, 1.0);
        // At rest the other colour keeps its side of a plain gradient; pressed, it changes side.
        // A caption as tall as the button leaves no room for the other colour.
        if (onStart == sunken) {
            if (from > 0)
                gradient.setColorAt(0, other);
            gradient.setColorAt(from, band);
            gradient.setColorAt(1, band);
        } else {
            gradient.setColorAt(0, band);
            gradient.setColorAt(to, band);
            if (to < 1)
                gradient.setColorAt(1, other);
        }
    }
    painter.fillRect(rect(), gradient);
}

QPixmap GradientButton::shownPicture() const {
    if (isEnabled())
        return m_picture;
    QImage grey = m_picture.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < grey.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(grey.scanLine(y));
        for (int x = 0; x < grey.width(); ++x) {
            const int g = 96 + qGray(line[x]) / 3;
            line[x] = qRgba(g, g, g, qAlpha(line[x]) / 2);
        }
    }
    QPixmap picture = QPixmap::fromImage(grey);
    picture.setDevicePixelRatio(m_picture.devicePixelRatio());
    return picture;
}

void GradientButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF area = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const bool sunken = isDown();
    QRect caption = captionRect();
    paintFace(painter, caption, sunken);

    painter.setPen(toQColor(m_start).darker(160));
    painter.drawRect(area);
    if (m_lit && isEnabled()) {
        painter.setPen(QPen(toQColor(m_light), 2));
        painter.drawRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5));
    }

    QRect picturePlace;
    QRect content = contentRect(&picturePlace);
    const QPoint shift = sunken ? QPoint(1, 1) : QPoint();
    if (!m_picture.isNull())
        painter.drawPixmap(picturePlace.translated(shift), shownPicture());
    const QColor captionColour = isEnabled() ? toQColor(m_text) : QColor(128, 128, 128);
    if (!caption.isEmpty()) {
        painter.setPen(captionColour);
        painter.setFont(captionFont());
        painter.drawText(content.translated(shift), Qt::AlignCenter | Qt::TextSingleLine, text());
    }
    if (hasFocus()) {
        // Around the caption, in its colour, where it reads as well as the caption does; a
        // picture alone gets it around the picture, in black or white, whichever shows more.
        QRect mark;
        QColor colour = captionColour;
        if (!caption.isEmpty()) {
            mark = caption.adjusted(-3, -1, 2, 0);
        } else {
            mark = picturePlace.adjusted(-2, -2, 1, 1);
            const double onBlack =
                std::min(shell::contrastRatio(0, m_start), shell::contrastRatio(0, m_end));
            const double onWhite = std::min(shell::contrastRatio(icon::kWhite, m_start),
                                            shell::contrastRatio(icon::kWhite, m_end));
            colour = onBlack >= onWhite ? Qt::black : Qt::white;
        }
        painter.setPen(QPen(colour, 1, Qt::DotLine));
        painter.drawRect(mark.translated(shift).intersected(rect().adjusted(2, 2, -3, -3)));
    }
}

void GradientButton::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton && isEnabled()) {
        emit rightPressed();
        event->accept();
        return;
    }
    QAbstractButton::mousePressEvent(event);
}

void GradientButton::enterEvent(QEnterEvent* event) {
    m_lit = true;
    update();
    QAbstractButton::enterEvent(event);
}

void GradientButton::leaveEvent(QEvent* event) {
    m_lit = false;
    update();
    QAbstractButton::leaveEvent(event);
}

void GradientButton::keyPressEvent(QKeyEvent* event) {
    // Return presses the button that has the focus, as on every desktop's buttons.
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
        event->modifiers() == Qt::NoModifier && isEnabled()) {
        click();
        event->accept();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

} // namespace platform
