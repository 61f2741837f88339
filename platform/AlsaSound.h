#pragma once

#include "platform/Sound.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <vector>

namespace platform {

// Plays the click (the "clic.wav" data file, 16-bit PCM) through ALSA from a short-lived thread.
// The device is opened without blocking, so a busy or missing device costs nothing; a click
// asked for while one is still playing is dropped.
class AlsaSound : public Sound {
public:
    void playClick() override;

    // The samples and format of a 16-bit PCM WAVE file; false when it is not one.
    struct Wave {
        int channels = 0;
        int rate = 0;
        std::vector<std::int16_t> samples; // interleaved
    };
    static bool parseWave(const std::vector<std::uint8_t>& bytes, Wave& wave);

private:
    bool m_loaded = false;
    // Shared with the playing thread, which may outlive this object when the program ends.
    std::shared_ptr<const Wave> m_click;
    std::shared_ptr<std::atomic<bool>> m_playing = std::make_shared<std::atomic<bool>>(false);
};

} // namespace platform
