#pragma once

#include "icon/Colour.h"
#include "shell/SettingsKeys.h"

#include <QString>

namespace shell {

// The per-user settings store of the program: one text value per section and key, under the
// application "Orvanne®", kept in an INI file of the user's configuration folder. Every call
// opens the file afresh, so that values written by another window or instance are seen at once.
class Settings {
public:
    // Stored text, or `fallback` when the section or key does not exist.
    QString read(const SettingKey& key, const QString& fallback = {}) const;
    void save(const SettingKey& key, const QString& value);
    // Removes every section and the file itself. Nothing to remove is not an error.
    void deleteAll();

    bool readFlag(const SettingKey& key, const QString& fallback) const;
    void saveFlag(const SettingKey& key, bool on);
    icon::Colour readColour(const SettingKey& key, icon::Colour fallback) const;
    void saveColour(const SettingKey& key, icon::Colour colour);

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
