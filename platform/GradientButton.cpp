#include "platform/GradientButton.h"

#include "platform/WindowStyle.h"

#include <QFontMetrics>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>

namespace platform {

GradientButton::GradientButton(const QString& caption, QWidget* parent)
    : QAbstractButton(parent) {
    setText(caption);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::NoFocus);
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

void GradientButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF area = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const bool sunken = isDown();
    QLinearGradient gradient(area.topLeft(), m_direction == Direction::Vertical ? area.bottomLeft()
                                                                                : area.topRight());
    // Pressed, the gradient turns over, as if the button went in.
    gradient.setColorAt(0, toQColor(sunken ? m_end : m_start));
    gradient.setColorAt(1, toQColor(sunken ? m_start : m_end));
    painter.fillRect(rect(), gradient);

    const QColor frame = toQColor(m_start).darker(160);
    painter.setPen(frame);
    painter.drawRect(area);
    if (m_lit && isEnabled()) {
        painter.setPen(QPen(toQColor(m_light), 2));
        painter.drawRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5));
    }

    QRect content = rect().adjusted(4, 2, -4, -2);
    if (sunken)
        content.translate(1, 1);
    if (!m_picture.isNull()) {
        QPixmap picture = m_picture;
        if (!isEnabled()) {
            QImage grey = picture.toImage().convertToFormat(QImage::Format_ARGB32);
            for (int y = 0; y < grey.height(); ++y) {
                auto* line = reinterpret_cast<QRgb*>(grey.scanLine(y));
                for (int x = 0; x < grey.width(); ++x) {
                    const int g = 96 + qGray(line[x]) / 3;
                    line[x] = qRgba(g, g, g, qAlpha(line[x]) / 2);
                }
            }
            picture = QPixmap::fromImage(grey);
        }
        const QSize size = picture.deviceIndependentSize().toSize();
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
        painter.drawPixmap(place, picture);
    }
    if (!text().isEmpty()) {
        QColor caption = toQColor(m_text);
        if (!isEnabled())
            caption = QColor(128, 128, 128);
        painter.setPen(caption);
        painter.setFont(captionFont(content.width()));
        painter.drawText(content, Qt::AlignCenter | Qt::TextSingleLine, text());
    }
}

QFont GradientButton::captionFont(int room) const {
    // A caption a little too long for its button is drawn smaller rather than cut.
    QFont shrunk = font();
    if (shrunk.pointSizeF() <= 0)
        return shrunk;
    while (QFontMetrics(shrunk).horizontalAdvance(text()) > room && shrunk.pointSizeF() > 6)
        shrunk.setPointSizeF(shrunk.pointSizeF() - 0.5);
    return shrunk;
}

QFont GradientButton::captionFont() const {
    return captionFont(rect().adjusted(4, 2, -4, -2).width());
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

} // namespace platform
