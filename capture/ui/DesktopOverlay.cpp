#include "capture/ui/DesktopOverlay.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace capture::ui {

double coverDesktop(QWidget& window, const QSize& picture) {
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    QRect area(QPoint(0, 0), picture);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        area = screen->virtualGeometry();
    window.setGeometry(area);
    window.setWindowState(Qt::WindowFullScreen);
    window.setCursor(Qt::CrossCursor);
    return area.width() > 0 ? static_cast<double>(picture.width()) / area.width() : 1.0;
}

QPoint sizeLabelPlace(const QRect& zone, int gap, const QSize& label, const QSize& window) {
    QPoint at(zone.left(), zone.bottom() + gap);
    if (at.y() + label.height() > window.height())
        at.setY(zone.top() - gap - label.height());
    at.setX(std::clamp(at.x(), 0, std::max(0, window.width() - label.width())));
    at.setY(std::clamp(at.y(), 0, std::max(0, window.height() - label.height())));
    return at;
}

} // namespace capture::ui
