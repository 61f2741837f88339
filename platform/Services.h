#pragma once

#include "platform/Dialogs.h"
#include "platform/Launcher.h"
#include "platform/Sound.h"

namespace platform {

// The services every window reaches through here. Until something else is installed they are
// the real ones; a test installs its doubles with ServicesOverride.
Dialogs& dialogs();
Sound& sound();
Launcher& launcher();

// Installs doubles for its lifetime and puts the previous services back when it ends.
class ServicesOverride {
public:
    ServicesOverride(Dialogs* dialogs, Sound* sound = nullptr, Launcher* launcher = nullptr);
    ~ServicesOverride();
    ServicesOverride(const ServicesOverride&) = delete;
    ServicesOverride& operator=(const ServicesOverride&) = delete;

private:
    Dialogs* m_dialogs;
    Sound* m_sound;
    Launcher* m_launcher;
};

} // namespace platform
