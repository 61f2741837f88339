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
bool isRegularFile(const std::string& folder, const dirent* entry) {
    if (entry->d_type == DT_REG)
        return true;
    if (entry->d_type != DT_LNK && entry->d_type != DT_UNKNOWN)
        return false;
    struct stat info {};
    const std::string path = folder + entry->d_name;
    return ::stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

// A directory entry that is a folder, links to folders included.
bool isFolder(const std::string& folder, const dirent* entry) {
    if (entry->d_type == DT_DIR)
        return true;
    if (entry->d_type != DT_LNK && entry->d_type != DT_UNKNOWN)
        return false;
    struct stat info {};
    const std::string path = folder + entry->d_name;
    return ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

} // namespace

QString withTrailingSlash(const QString& folder) {
    return folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
}

std::filesystem::path withTrailingSlash(const std::filesystem::path& folder) {
    const std::string& bytes = folder.native();
    return !bytes.empty() && bytes.back() == '/' ? folder : std::filesystem::path(bytes + '/');
}

std::optional<std::vector<IconEntry>> scanIconFolder(const QString& folder) {
    const QByteArray bytes = QFile::encodeName(folder);
    return scanIconFolder(std::filesystem::path(bytes.toStdString()));
}

std::optional<std::vector<IconEntry>> scanIconFolder(const std::filesystem::path& folder) {
    std::optional<FolderListing> listing = readFolder(folder);
    if (!listing)
        return std::nullopt;
    return std::move(listing->icons);
}

std::optional<FolderListing> readFolder(const std::filesystem::path& folder) {
    const std::string base = withTrailingSlash(folder).native();
    DIR* dir = ::opendir(base.c_str());
    if (dir == nullptr)
        return std::nullopt;
    FolderListing listing;
    // Each name as the file system holds it, with the lower-cased text it is shown and sorted by.
    std::vector<std::pair<std::string, QString>> names;
    while (const dirent* entry = ::readdir(dir)) {
        const std::size_t length = std::strlen(entry->d_name);
        if (hasIcoSuffix(entry->d_name, length) && isRegularFile(base, entry)) {
            const QString shown = QFile::decodeName(
                QByteArray::fromRawData(entry->d_name, static_cast<qsizetype>(length)));
            names.emplace_back(std::string(entry->d_name, length), shown.toLower());
        } else if (entry->d_name[0] != '.' && isFolder(base, entry)) {
            listing.subfolders.emplace_back(entry->d_name, length);
        }
    }
    ::closedir(dir);

    // Folders always looked sorted by name to this program's users, whatever the file system does.
    std::sort(names.begin(), names.end(), [](const auto& a, const auto& b) {
        return a.second != b.second ? a.second < b.second : a.first < b.first;
    });

    const QString shownBase =
        withTrailingSlash(QFile::decodeName(QByteArray::fromStdString(base))).toLower();
    listing.icons.reserve(names.size());
    for (const auto& [name, lower] : names)
        listing.icons.push_back({std::filesystem::path(base + name), shownBase + lower});
    return listing;
}

} // namespace browser
