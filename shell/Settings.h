#pragma once

#include "icon/Colour.h"
#include "shell/SettingsKeys.h"

#include <QString>

#include <optional>

namespace shell {

// The per-user settings store of the program: one text value per section and key, under the
// application "Orvanne®", kept in an INI file of the user's configuration folder. Values are only
// ever text. The file is read again whenever it changed on disk, so that values written by
// another window or instance are seen at once; each save rewrites it safely.
class Settings {
public:
    // Stored text, or `fallback` when the section or key does not exist.
    QString read(const SettingKey& key, const QString& fallback = {}) const;
    // False when the file could not be written; it is then as it was.
    bool save(const SettingKey& key, const QString& value);
    // Removes every section and the file itself. Nothing to remove is not an error.
    void deleteAll();

    bool readFlag(const SettingKey& key, const QString& fallback) const;
    bool saveFlag(const SettingKey& key, bool on);
    icon::Colour readColour(const SettingKey& key, icon::Colour fallback) const;
    bool saveColour(const SettingKey& key, icon::Colour colour);

    // When the file was set aside (too large, damaged, not a file), the French notice saying so,
    // once; the program then runs on its defaults.
    static std::optional<QString> takeNotice();

    // Full path of the backing file (it may not exist yet).
    QString fileName() const;

    // The value forms: flags are exactly "Oui" or "Non", and only "Oui" means yes.
    static QString flagText(bool on);
    static bool isYes(const QString& value);
    // Colours are written as decimal text ("8421376") and read as decimal or "&H808000"
    // hexadecimal; anything that is not a number gives the fallback.
    static QString colourText(icon::Colour colour);
    static icon::Colour parseColour(const QString& text, icon::Colour fallback);
};

} // namespace shell
