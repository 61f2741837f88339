#include "shell/Settings.h"

#include "icon/FileBytes.h"
#include "iconqt/Paths.h"
#include "shell/SettingsStore.h"

#include <QStandardPaths>

#include <memory>

namespace shell {

namespace {

QString storeFileName() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QLatin1Char('/') + QString::fromUtf8(kApplicationName) + QStringLiteral(".ini");
}

// One store for the whole run, made again when the configuration folder changes (tests).
SettingsStore& store() {
    static std::unique_ptr<SettingsStore> held;
    const std::filesystem::path file = iconqt::pathFromText(storeFileName());
    if (!held || held->file() != file)
        held = std::make_unique<SettingsStore>(file);
    return *held;
}

} // namespace

QString Settings::read(const SettingKey& key, const QString& fallback) const {
    return store().value(key.sectionName(), key.keyName()).value_or(fallback);
}

bool Settings::save(const SettingKey& key, const QString& value) {
    return store().setValue(key.sectionName(), key.keyName(), value);
}

void Settings::deleteAll() {
    store().removeAll();
}

std::optional<QString> Settings::takeNotice() {
    return store().takeNotice();
}

bool Settings::readFlag(const SettingKey& key, const QString& fallback) const {
    return isYes(read(key, fallback));
}

bool Settings::saveFlag(const SettingKey& key, bool on) {
    return save(key, flagText(on));
}

icon::Colour Settings::readColour(const SettingKey& key, icon::Colour fallback) const {
    return parseColour(read(key, QStringLiteral("&H") + QString::number(fallback, 16).toUpper()),
                       fallback);
}

bool Settings::saveColour(const SettingKey& key, icon::Colour colour) {
    return save(key, colourText(colour));
}

QString Settings::fileName() const {
    return storeFileName();
}

QString Settings::flagText(bool on) {
    return on ? QStringLiteral("Oui") : QStringLiteral("Non");
}

bool Settings::isYes(const QString& value) {
    return value == QLatin1String("Oui");
}

QString Settings::colourText(icon::Colour colour) {
    return QString::number(static_cast<qint32>(colour));
}

icon::Colour Settings::parseColour(const QString& text, icon::Colour fallback) {
    const QString value = text.trimmed();
    bool ok = false;
    qint64 number = 0;
    if (value.startsWith(QLatin1String("&H"), Qt::CaseInsensitive)) {
        QString digits = value.mid(2);
        if (digits.endsWith(QLatin1Char('&')))
            digits.chop(1);
        const quint64 raw = digits.toULongLong(&ok, 16);
        ok = ok && !digits.isEmpty() && digits.size() <= 8;
        number = static_cast<qint64>(raw);
    } else {
        number = value.toLongLong(&ok, 10);
    }
    if (!ok || number < INT32_MIN || number > UINT32_MAX)
        return fallback;
    // A colour is 24 bits; the high byte of a signed 32-bit value never holds a colour.
    return static_cast<icon::Colour>(static_cast<quint32>(number) & 0xFFFFFFu);
}

} // namespace shell
