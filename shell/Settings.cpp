#include "shell/Settings.h"

#include <QFile>
#include <QSettings>

#include <memory>

namespace shell {

namespace {

std::unique_ptr<QSettings> openStore() {
    auto store = std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                             QString::fromUtf8(kApplicationName));
    // Without this, keys missing here would be looked up in system-wide files as well.
    store->setFallbacksEnabled(false);
    return store;
}

QString path(const SettingKey& key) {
    return key.sectionName() + QLatin1Char('/') + key.keyName();
}

} // namespace

QString Settings::read(const SettingKey& key, const QString& fallback) const {
    const auto store = openStore();
    const QVariant value = store->value(path(key));
    return value.isValid() ? value.toString() : fallback;
}

void Settings::save(const SettingKey& key, const QString& value) {
    const auto store = openStore();
    store->setValue(path(key), value);
    store->sync();
}

void Settings::deleteAll() {
    QString file;
    {
        const auto store = openStore();
        file = store->fileName();
        store->clear();
        store->sync();
    }
    QFile::remove(file);
}

bool Settings::readFlag(const SettingKey& key, const QString& fallback) const {
    return isYes(read(key, fallback));
}

void Settings::saveFlag(const SettingKey& key, bool on) {
    save(key, flagText(on));
}

icon::Colour Settings::readColour(const SettingKey& key, icon::Colour fallback) const {
    return parseColour(read(key, QStringLiteral("&H") + QString::number(fallback, 16).toUpper()),
                       fallback);
}

void Settings::saveColour(const SettingKey& key, icon::Colour colour) {
    save(key, colourText(colour));
}

QString Settings::fileName() const {
    return openStore()->fileName();
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
