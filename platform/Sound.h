#pragma once

namespace platform {

// The program's short sounds.
class Sound {
public:
    virtual ~Sound() = default;
    // The click after a copy to the clipboard, before the editor comes up and after a display
    // switch. Never waits: with no sound device nothing happens.
    virtual void playClick() = 0;
};

} // namespace platform
