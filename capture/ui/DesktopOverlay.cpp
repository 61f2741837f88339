#include "capture/ui/DesktopOverlay.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

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

} // namespace capture::ui
