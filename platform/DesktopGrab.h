#pragma once

#include <QImage>
#include <QString>

namespace platform {

// A picture of the whole desktop, or the French sentence that says why there is none.
struct DesktopPicture {
    QImage picture;
    QString error;

    bool ok() const { return !picture.isNull(); }
};

// Takes a picture of the whole desktop. Windows are given one, so that tests can hand them a
// known picture.
class DesktopGrabber {
public:
    virtual ~DesktopGrabber() = default;
    virtual DesktopPicture grab() = 0;
};

// The grabber fit for the session the program runs in: the screen read directly under X11,
// the desktop portal's screenshot under Wayland, where nothing else may read the screen.
DesktopGrabber& desktopGrabber();

// Lets window events run for a quarter of a second, long enough for the window system to take
// windows that were just hidden off the screen before it is read.
void letWindowsVanish();

// What the user is told when no picture of the desktop could be had.
QString noDesktopPictureText();

} // namespace platform
