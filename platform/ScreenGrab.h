#pragma once

#include "platform/DesktopGrab.h"

namespace platform {

// Reads the screens through the window system, as X11 allows any program to.
class ScreenGrab : public DesktopGrabber {
public:
    DesktopPicture grab() override;
};

} // namespace platform
