#include "platform/ScreenGrab.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QScreen>

namespace platform {

DesktopPicture ScreenGrab::grab() {
    QScreen* primary = QGuiApplication::primaryScreen();
    if (primary == nullptr)
        return {QImage(), noDesktopPictureText()};
    // Every screen goes into one picture laid out as the desktop is, its upper left corner at
    // the desktop's.
    const QRect desktop = primary->virtualGeometry();
    const QList<QScreen*> screens = primary->virtualSiblings();
    if (screens.size() <= 1) {
        const QImage picture = primary->grabWindow(0).toImage();
        if (picture.isNull())
            return {QImage(), noDesktopPictureText()};
        return {picture.convertToFormat(QImage::Format_RGB32), QString()};
    }
    QImage picture(desktop.size(), QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    bool any = false;
    for (QScreen* screen : screens) {
        const QPixmap part = screen->grabWindow(0);
        if (part.isNull())
            continue;
        any = true;
        QImage image = part.toImage();
        image.setDevicePixelRatio(1.0);
        painter.drawImage(screen->geometry().topLeft() - desktop.topLeft(),
                          image.scaled(screen->geometry().size()));
    }
    painter.end();
    if (!any)
        return {QImage(), noDesktopPictureText()};
    return {picture, QString()};
}

} // namespace platform
