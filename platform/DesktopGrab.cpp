#include "platform/DesktopGrab.h"

#include "platform/PortalScreenshot.h"
#include "platform/ScreenGrab.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QThread>

namespace platform {

namespace {

bool onWayland() {
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        return true;
    // Run through XWayland, the program sees only its own X windows: the portal still holds
    // the real desktop.
    return qEnvironmentVariable("XDG_SESSION_TYPE") == QLatin1String("wayland") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

// The portal under Wayland, the screen itself elsewhere, and the other one when the first
// gives nothing.
class SessionGrabber : public DesktopGrabber {
public:
    DesktopPicture grab() override {
        PortalScreenshot portal;
        if (onWayland())
            return portal.grab();
        DesktopPicture picture = m_screen.grab();
        if (picture.ok() || !portal.isAvailable())
            return picture;
        return portal.grab();
    }

private:
    ScreenGrab m_screen;
};

} // namespace

DesktopGrabber& desktopGrabber() {
    static SessionGrabber grabber;
    return grabber;
}

void letWindowsVanish() {
    constexpr int kVanishMilliseconds = 250;
    QElapsedTimer clock;
    clock.start();
    do {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(10);
    } while (clock.elapsed() < kVanishMilliseconds);
}

QString noDesktopPictureText() {
    return QStringLiteral("Impossible d'obtenir une image de l'écran : ce bureau ne permet pas "
                          "la capture.");
}

} // namespace platform
