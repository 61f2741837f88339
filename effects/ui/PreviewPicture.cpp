#include "effects/ui/PreviewPicture.h"
#include "iconqt/FrameImage.h"

#include <QMouseEvent>
#include <QPainter>

namespace effects::ui {

PreviewPicture::PreviewPicture(const QString& name, QWidget* parent)
    : QWidget(parent) {
    setObjectName(name);
    setFixedSize(kSide, kSide);
}

void PreviewPicture::setPicture(const icon::Frame& picture) {
    m_picture = iconqt::toImage(picture);
    update();
}

void PreviewPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    // The frame is shaded from the window's own background: two lines of shadow above and to
    // the left, two of light below and to the right.
    const QColor base = palette().color(QPalette::Window);
    const QColor shades[2][2] = {{base.darker(200), base.lighter(170)},
                                 {base.darker(140), base.lighter(130)}};
    for (int i = 0; i < kBorder; ++i) {
        const int far = kSide - 1 - i;
        painter.setPen(shades[i][0]);
        painter.drawLine(i, i, far - 1, i);
        painter.drawLine(i, i, i, far - 1);
        painter.setPen(shades[i][1]);
        painter.drawLine(far, i, far, far);
        painter.drawLine(i, far, far, far);
    }
    painter.drawImage(kBorder, kBorder, m_picture);
}

void PreviewPicture::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        emit doubleClicked();
    event->accept();
}

} // namespace effects::ui
