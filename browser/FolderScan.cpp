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
    std::vector<QString> names;
    while (const dirent* entry = ::readdir(dir)) {
        const std::size_t length = std::strlen(entry->d_name);
        if (hasIcoSuffix(entry->d_name, length) && isRegularFile(encoded, entry))
            names.push_back(QFile::decodeName(QByteArray(entry->d_name, length)));
    }
    ::closedir(dir);

    // Folders always looked sorted by name to this program's users, whatever the file system does.
    std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
        const int order = a.compare(b, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : a < b;
    });

    const QString shownBase = base.toLower();
    std::vector<IconEntry> entries;
    entries.reserve(names.size());
    for (const QString& name : names)
        entries.push_back({base + name, shownBase + name.toLower()});
    return entries;
}

} // namespace browser
