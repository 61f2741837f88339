#include "browser/FolderScan.h"

#include <QFile>

#include <algorithm>
#include <cstring>
#include <dirent.h>
#include <sys/stat.h>

namespace browser {

namespace {

bool hasIcoSuffix(const char* name, std::size_t length) {
    if (length < 4)
        return false;
    const char* tail = name + length - 4;
    return tail[0] == '.' && (tail[1] | 0x20) == 'i' && (tail[2] | 0x20) == 'c' &&
           (tail[3] | 0x20) == 'o';
}

// A directory entry that is a file, following symbolic links as a file dialog would.
bool isRegularFile(const QByteArray& folder, const dirent* entry) {
    if (entry->d_type == DT_REG)
        return true;
    if (entry->d_type != DT_LNK && entry->d_type != DT_UNKNOWN)
        return false;
    struct stat info {};
    const QByteArray path = folder + entry->d_name;
    return ::stat(path.constData(), &info) == 0 && S_ISREG(info.st_mode);
}

} // namespace

QString withTrailingSlash(const QString& folder) {
    return folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
}

std::optional<std::vector<IconEntry>> scanIconFolder(const QString& folder) {
    const QString base = withTrailingSlash(folder);
    const QByteArray encoded = QFile::encodeName(base);
    DIR* dir = ::opendir(encoded.constData());
    if (dir == nullptr)
        return std::nullopt;
    // Each name with its lower-cased form: the order and the shown path both come from it.
    std::vector<std::pair<QString, QString>> names;
    while (const dirent* entry = ::readdir(dir)) {
        const std::size_t length = std::strlen(entry->d_name);
        if (hasIcoSuffix(entry->d_name, length) && isRegularFile(encoded, entry)) {
            QString name = QFile::decodeName(
                QByteArray::fromRawData(entry->d_name, static_cast<qsizetype>(length)));
            QString lower = name.toLower();
            names.emplace_back(std::move(name), std::move(lower));
        }
    }
    ::closedir(dir);

    // Folders always looked sorted by name to this program's users, whatever the file system does.
    std::sort(names.begin(), names.end(), [](const auto& a, const auto& b) {
        return a.second != b.second ? a.second < b.second : a.first < b.first;
    });

    const QString shownBase = base.toLower();
    std::vector<IconEntry> entries;
    entries.reserve(names.size());
    for (const auto& [name, lower] : names)
        entries.push_back({base + name, shownBase + lower});
    return entries;
}

} // namespace browser
