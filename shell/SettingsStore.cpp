#include "shell/SettingsStore.h"

#include "icon/FileBytes.h"
#include "icon/SafeSave.h"
#include "iconqt/Paths.h"

#include <QDateTime>
#include <QStringDecoder>

#include <cstdio>
#include <sys/stat.h>

namespace shell {

bool SettingsStore::Identity::operator==(const Identity& other) const {
    return exists == other.exists && device == other.device && inode == other.inode &&
           size == other.size && modified.tv_sec == other.modified.tv_sec &&
           modified.tv_nsec == other.modified.tv_nsec;
}

SettingsStore::SettingsStore(std::filesystem::path file)
    : m_file(std::move(file)) {}

SettingsStore::Identity SettingsStore::identityOf(const std::filesystem::path& file) {
    Identity id;
    struct stat info {};
    if (::stat(file.c_str(), &info) != 0)
        return id;
    id.exists = true;
    id.device = info.st_dev;
    id.inode = info.st_ino;
    id.size = info.st_size;
    id.modified = info.st_mtim;
    return id;
}

void SettingsStore::refresh() {
    if (!m_everLoaded || !(identityOf(m_file) == m_loaded))
        load();
}

void SettingsStore::load() {
    m_everLoaded = true;
    m_sections.clear();
    m_loaded = identityOf(m_file);
    if (!m_loaded.exists)
        return;
    icon::ReadError error = icon::ReadError::None;
    const auto bytes = icon::readFileBytes(m_file, kMaxBytes, &error);
    if (!bytes) {
        if (error == icon::ReadError::TooLarge)
            setAside(QStringLiteral("trop volumineux"));
        else if (error == icon::ReadError::NotRegular)
            setAside(QStringLiteral("n'est pas un fichier ordinaire"));
        // Unreadable (permissions): the defaults apply, the file is left to its owner.
        return;
    }
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = utf8.decode(QByteArrayView(reinterpret_cast<const char*>(bytes->data()),
                                                    static_cast<qsizetype>(bytes->size())));
    if (utf8.hasError() || text.contains(QChar(0))) {
        setAside(QStringLiteral("est endommagé"));
        return;
    }
    m_sections = parseIni(text);
}

void SettingsStore::setAside(const QString& why) {
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    std::filesystem::path aside = m_file;
    aside += iconqt::pathFromText(QStringLiteral(".mis-de-côté-") + stamp);
    const bool moved = std::rename(m_file.c_str(), aside.c_str()) == 0;
    m_loaded = identityOf(m_file);
    const QString name = iconqt::textFromPath(m_file);
    m_notice = moved ? QStringLiteral("Le fichier des réglages « %1 » %2 : il a été mis de côté "
                                      "sous le nom « %3 ».\nOrvanne® démarre avec les réglages "
                                      "par défaut.")
                           .arg(name, why, iconqt::textFromPath(aside))
                     : QStringLiteral("Le fichier des réglages « %1 » %2 et n'a pas pu être mis "
                                      "de côté.\nOrvanne® démarre avec les réglages par défaut.")
                           .arg(name, why);
}

std::optional<QString> SettingsStore::value(const QString& section, const QString& key) {
    refresh();
    return findValue(m_sections, section, key);
}

bool SettingsStore::setValue(const QString& section, const QString& key, const QString& value) {
    refresh();
    shell::setValue(m_sections, section, key, value);
    std::error_code ignored;
    std::filesystem::create_directories(m_file.parent_path(), ignored);
    const QByteArray text = formatIni(m_sections);
    const icon::SaveResult saved =
        icon::saveFileSafely(m_file,
                             std::span(reinterpret_cast<const std::uint8_t*>(text.constData()),
                                       static_cast<std::size_t>(text.size())),
                             false);
    m_loaded = identityOf(m_file);
    return saved.ok();
}

void SettingsStore::removeAll() {
    std::error_code ignored;
    std::filesystem::remove(m_file, ignored);
    m_sections.clear();
    m_loaded = identityOf(m_file);
    m_everLoaded = true;
}

std::optional<QString> SettingsStore::takeNotice() {
    refresh();
    std::optional<QString> notice;
    notice.swap(m_notice);
    return notice;
}

} // namespace shell
