#pragma once

#include "shell/IniText.h"

#include <QString>

#include <filesystem>
#include <optional>
#include <sys/types.h>

namespace shell {

// The settings file, held in memory and looked at again only when it changed on disk (another
// window or instance wrote it): a read costs one stat, a save writes the few hundred bytes of
// the store safely. A file that is too large, not a regular file or not text is set aside (renamed
// beside itself) and the program goes on with its defaults.
class SettingsStore {
public:
    // Past this the file is no store the program wrote: it holds a few hundred bytes.
    static constexpr std::size_t kMaxBytes = 256 * 1024;

    explicit SettingsStore(std::filesystem::path file);

    const std::filesystem::path& file() const { return m_file; }
    std::optional<QString> value(const QString& section, const QString& key);
    // False when the file could not be written (it is then as it was).
    bool setValue(const QString& section, const QString& key, const QString& value);
    // Removes the file; nothing to remove is not an error.
    void removeAll();

    // The French notice about a file set aside since the last call, once.
    std::optional<QString> takeNotice();

private:
    struct Identity {
        bool exists = false;
        dev_t device = 0;
        ino_t inode = 0;
        off_t size = 0;
        struct timespec modified {};
        bool operator==(const Identity& other) const;
    };
    static Identity identityOf(const std::filesystem::path& file);
    void refresh();
    void load();
    void setAside(const QString& why);

    std::filesystem::path m_file;
    IniSections m_sections;
    Identity m_loaded;
    bool m_everLoaded = false;
    std::optional<QString> m_notice;
};

} // namespace shell
