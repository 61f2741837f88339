#include "platform/Services.h"

#include "platform/CanberraSound.h"
#include "platform/QtDialogs.h"

namespace platform {

namespace {

struct Current {
    Dialogs* dialogs = nullptr;
    Sound* sound = nullptr;
    Launcher* launcher = nullptr;
};

Current& current() {
    static Current services;
    return services;
}

} // namespace

Dialogs& dialogs() {
    static QtDialogs real;
    return current().dialogs ? *current().dialogs : real;
}

Sound& sound() {
    static CanberraSound real;
    return current().sound ? *current().sound : real;
}

Launcher& launcher() {
    static DesktopLauncher real;
    return current().launcher ? *current().launcher : real;
}

ServicesOverride::ServicesOverride(Dialogs* dialogs, Sound* sound, Launcher* launcher)
    : m_dialogs(current().dialogs)
    , m_sound(current().sound)
    , m_launcher(current().launcher) {
    if (dialogs)
        current().dialogs = dialogs;
    if (sound)
        current().sound = sound;
    if (launcher)
        current().launcher = launcher;
}

ServicesOverride::~ServicesOverride() {
    current().dialogs = m_dialogs;
    current().sound = m_sound;
    current().launcher = m_launcher;
}

} // namespace platform
