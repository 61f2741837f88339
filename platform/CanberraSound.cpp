#include "platform/CanberraSound.h"

#include "shell/DataFiles.h"

#include <QFile>

#include <canberra.h>

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace platform {

// The state shared with the playing thread, which may outlive the sound object when the
// program ends while a server is slow to answer.
struct CanberraSound::Player {
    std::mutex lock;
    std::condition_variable wake;
    bool pending = false;
    bool stopping = false;
    std::string file; // empty when the program has no click

    void run() {
        ca_context* context = nullptr;
        bool usable =
            ca_context_create(&context) == CA_SUCCESS &&
            ca_context_change_props(context, CA_PROP_APPLICATION_NAME, "Orvanne®",
                                    CA_PROP_APPLICATION_ID, "orvanne", nullptr) == CA_SUCCESS &&
            ca_context_open(context) == CA_SUCCESS;
        std::unique_lock<std::mutex> guard(lock);
        for (;;) {
            wake.wait(guard, [this] { return pending || stopping; });
            if (stopping)
                break;
            pending = false;
            guard.unlock();
            if (usable) {
                // Played by the server in the background; a missing device makes it fail at once.
                ca_context_play(context, 0, CA_PROP_MEDIA_FILENAME, file.c_str(),
                                CA_PROP_MEDIA_ROLE, "event", CA_PROP_EVENT_DESCRIPTION, "Clic",
                                nullptr);
            }
            guard.lock();
        }
        guard.unlock();
        if (context != nullptr)
            ca_context_destroy(context);
    }
};

CanberraSound::CanberraSound() = default;

CanberraSound::~CanberraSound() {
    if (!m_player)
        return;
    {
        const std::lock_guard<std::mutex> guard(m_player->lock);
        m_player->stopping = true;
    }
    m_player->wake.notify_one();
}

void CanberraSound::playClick() {
    if (!m_player) {
        m_player = std::make_shared<Player>();
        m_player->file =
            QFile::encodeName(shell::DataFiles::find(QStringLiteral("clic.wav"))).toStdString();
        if (!m_player->file.empty())
            std::thread([player = m_player] { player->run(); }).detach();
    }
    if (m_player->file.empty())
        return;
    {
        const std::lock_guard<std::mutex> guard(m_player->lock);
        m_player->pending = true;
    }
    m_player->wake.notify_one();
}

} // namespace platform
