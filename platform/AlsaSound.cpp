#include "platform/AlsaSound.h"

#include "icon/FileBytes.h"
#include "shell/DataFiles.h"

#include <alsa/asoundlib.h>

#include <cstring>
#include <thread>

namespace platform {

namespace {

std::uint32_t le32(const std::vector<std::uint8_t>& b, std::size_t at) {
    return b[at] | (b[at + 1] << 8) | (b[at + 2] << 16) |
           (static_cast<std::uint32_t>(b[at + 3]) << 24);
}

std::uint16_t le16(const std::vector<std::uint8_t>& b, std::size_t at) {
    return static_cast<std::uint16_t>(b[at] | (b[at + 1] << 8));
}

// ALSA reports a missing card on standard error; a program without sound has nothing to report.
void quiet(const char*, int, const char*, int, const char*, ...) {}

void play(std::shared_ptr<const AlsaSound::Wave> click,
          std::shared_ptr<std::atomic<bool>> playing) {
    const AlsaSound::Wave& wave = *click;
    snd_lib_error_set_handler(quiet);
    snd_pcm_t* pcm = nullptr;
    if (snd_pcm_open(&pcm, "default", SND_PCM_STREAM_PLAYBACK, SND_PCM_NONBLOCK) == 0) {
        // Opened without waiting; the writes may wait, on this thread only.
        snd_pcm_nonblock(pcm, 0);
        if (snd_pcm_set_params(pcm, SND_PCM_FORMAT_S16_LE, SND_PCM_ACCESS_RW_INTERLEAVED,
                               static_cast<unsigned>(wave.channels),
                               static_cast<unsigned>(wave.rate), 1, 100000) == 0) {
            const auto frames = static_cast<snd_pcm_uframes_t>(
                wave.samples.size() / static_cast<std::size_t>(wave.channels));
            const snd_pcm_sframes_t written = snd_pcm_writei(pcm, wave.samples.data(), frames);
            if (written < 0)
                snd_pcm_recover(pcm, static_cast<int>(written), 1);
            snd_pcm_drain(pcm);
        }
        snd_pcm_close(pcm);
    }
    *playing = false;
}

} // namespace

bool AlsaSound::parseWave(const std::vector<std::uint8_t>& bytes, Wave& wave) {
    if (bytes.size() < 12 || std::memcmp(bytes.data(), "RIFF", 4) != 0 ||
        std::memcmp(bytes.data() + 8, "WAVE", 4) != 0)
        return false;
    std::size_t at = 12;
    bool haveFormat = false;
    while (at + 8 <= bytes.size()) {
        const std::uint32_t size = le32(bytes, at + 4);
        const std::size_t body = at + 8;
        if (size > bytes.size() - body)
            return false;
        if (std::memcmp(bytes.data() + at, "fmt ", 4) == 0 && size >= 16) {
            const int format = le16(bytes, body);
            wave.channels = le16(bytes, body + 2);
            wave.rate = static_cast<int>(le32(bytes, body + 4));
            const int bits = le16(bytes, body + 14);
            haveFormat = format == 1 && bits == 16 && wave.channels >= 1 && wave.channels <= 2 &&
                         wave.rate >= 8000 && wave.rate <= 192000;
            if (!haveFormat)
                return false;
        } else if (std::memcmp(bytes.data() + at, "data", 4) == 0 && haveFormat) {
            wave.samples.resize(size / 2);
            for (std::size_t i = 0; i < wave.samples.size(); ++i)
                wave.samples[i] = static_cast<std::int16_t>(le16(bytes, body + 2 * i));
            return !wave.samples.empty();
        }
        at = body + size + (size & 1u);
    }
    return false;
}

void AlsaSound::playClick() {
    if (!m_loaded) {
        m_loaded = true;
        const QString path = shell::DataFiles::find(QStringLiteral("clic.wav"));
        const auto bytes = path.isEmpty() ? std::nullopt : icon::readFileBytes(path, 4u << 20);
        auto wave = std::make_shared<Wave>();
        if (bytes && parseWave(*bytes, *wave))
            m_click = std::move(wave);
    }
    if (!m_click || m_playing->exchange(true))
        return;
    std::thread(play, m_click, m_playing).detach();
}

} // namespace platform
