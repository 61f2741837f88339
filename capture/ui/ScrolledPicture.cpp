#include "capture/ui/ScrolledPicture.h"

#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QScrollBar>

#include <algorithm>

namespace capture::ui {

namespace {
constexpr int kBar = 16;
constexpr int kBorder = 2;
} // namespace

ScrolledPicture::ScrolledPicture(const QString& frameName, const QString& pictureName,
                                 QWidget* parent)
    : QWidget(parent) {
    setObjectName(frameName);
    m_view = new QWidget(this);
    m_view->setAutoFillBackground(true);
    m_picture = new QLabel(m_view);
    m_picture->setObjectName(pictureName);
    m_picture->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_horizontal = new QScrollBar(Qt::Horizontal, this);
    m_horizontal->setObjectName(QStringLiteral("HScroll"));
    m_vertical = new QScrollBar(Qt::Vertical, this);
    m_vertical->setObjectName(QStringLiteral("VScroll"));
    connect(m_horizontal, &QScrollBar::valueChanged, this,
            [this](int value) { m_picture->move(-value, m_picture->y()); });
    connect(m_vertical, &QScrollBar::valueChanged, this,
            [this](int value) { m_picture->move(m_picture->x(), -value); });
    setViewingColour(Qt::white);
    layOut();
}

void ScrolledPicture::setViewingColour(const QColor& colour) {
    QPalette palette = m_view->palette();
    palette.setColor(QPalette::Window, colour);
    m_view->setPalette(palette);
}

void ScrolledPicture::setPicture(const QImage& picture) {
    m_image = picture;
    m_picture->setPixmap(QPixmap::fromImage(picture));
    m_picture->resize(picture.size());
    m_horizontal->setValue(0);
    m_vertical->setValue(0);
    m_picture->move(0, 0);
    layOut();
}

void ScrolledPicture::resizeEvent(QResizeEvent*) {
    layOut();
}

void ScrolledPicture::paintEvent(QPaintEvent*) {
    // A sunken frame: shadow above and to the left, light below and to the right.
    QPainter painter(this);
    const QRect r = rect().adjusted(0, 0, -1, -1);
    painter.setPen(QColor(128, 128, 128));
    painter.drawLine(r.topLeft(), r.topRight());
    painter.drawLine(r.topLeft(), r.bottomLeft());
    painter.setPen(Qt::white);
    painter.drawLine(r.bottomLeft(), r.bottomRight());
    painter.drawLine(r.topRight(), r.bottomRight());
}

void ScrolledPicture::layOut() {
    // The bars take room only when they are needed; the frame's border stays visible.
    const QSize inside(width() - 2 * kBorder, height() - 2 * kBorder);
    bool wide = m_image.width() > inside.width();
    bool tall = m_image.height() > inside.height();
    wide = wide || (tall && m_image.width() > inside.width() - kBar);
    tall = tall || (wide && m_image.height() > inside.height() - kBar);
    const QSize view(inside.width() - (tall ? kBar : 0), inside.height() - (wide ? kBar : 0));
    m_view->setGeometry(kBorder, kBorder, view.width(), view.height());
    m_horizontal->setGeometry(kBorder, kBorder + view.height(), view.width(), kBar);
    m_vertical->setGeometry(kBorder + view.width(), kBorder, kBar, view.height());
    m_horizontal->setVisible(wide);
    m_vertical->setVisible(tall);
    m_horizontal->setRange(0, std::max(0, m_image.width() - view.width()));
    m_vertical->setRange(0, std::max(0, m_image.height() - view.height()));
    m_horizontal->setPageStep(std::max(1, view.width()));
    m_vertical->setPageStep(std::max(1, view.height()));
    m_horizontal->setSingleStep(10);
    m_vertical->setSingleStep(10);
}

} // namespace capture::ui
