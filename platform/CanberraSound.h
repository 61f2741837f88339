#pragma once

#include "platform/Sound.h"

#include <memory>

namespace platform {

// Plays the click (the "clic.wav" data file) through the desktop's sound server, by way of
// libcanberra, so that it follows the desktop's volume and output like every other event sound.
// Everything runs on a thread of its own: connecting to a slow server never holds up the
// interface, and without a server or a device the click is silently dropped. Clicks asked for
// while one is being handed over to the server make one more click, not a queue.
class CanberraSound : public Sound {
public:
    CanberraSound();
    ~CanberraSound() override;

    void playClick() override;

    struct Player;

private:
    std::shared_ptr<Player> m_player;
};

} // namespace platform
