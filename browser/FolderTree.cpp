#include "browser/FolderTree.h"

#include <QFile>

#include <algorithm>
#include <dirent.h>
#include <sys/stat.h>

namespace browser {

namespace {

QString shown(const std::string& bytes) {
    return QFile::decodeName(QByteArray::fromStdString(bytes));
}

// The subfolders of `folder` (links to folders included), hidden ones left out, by the byte
// names the file system gives.
std::vector<std::string> subfolders(const std::string& folder) {
    std::vector<std::string> names;
    DIR* dir = ::opendir(folder.c_str());
    if (dir == nullptr)
        return names;
    const std::string base = folder.back() == '/' ? folder : folder + '/';
    while (const dirent* entry = ::readdir(dir)) {
        if (entry->d_name[0] == '.')
            continue;
        bool isFolder = entry->d_type == DT_DIR;
        if (entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN) {
            struct stat info {};
            isFolder = ::stat((base + entry->d_name).c_str(), &info) == 0 && S_ISDIR(info.st_mode);
        }
        if (isFolder)
            names.emplace_back(entry->d_name);
    }
    ::closedir(dir);
    return names;
}

} // namespace

std::vector<FolderItem> folderItems(const QString& folder) {
    const QByteArray bytes = QFile::encodeName(folder);
    return folderItems(std::filesystem::path(bytes.toStdString()));
}

std::vector<FolderItem> folderItems(const std::filesystem::path& folder) {
    const std::string path = folder.lexically_normal().native();
    return folderItems(folder, subfolders(path.empty() ? std::string("/") : path));
}

std::vector<FolderItem> folderItems(const std::filesystem::path& folder,
                                    std::vector<std::string> subfolderNames) {
    std::vector<FolderItem> items;
    const std::filesystem::path clean = folder.lexically_normal();
    items.push_back({QStringLiteral("/"), QStringLiteral("/"), 0, true, "/"});
    std::string path;
    for (const std::filesystem::path& part : clean.relative_path()) {
        if (part.empty())
            continue;
        path += '/' + part.native();
        items.push_back(
            {shown(path), shown(part.native()), static_cast<int>(items.size()), true, path});
    }
    const int depth = static_cast<int>(items.size());
    std::vector<std::pair<QString, std::string>> children;
    for (std::string& name : subfolderNames)
        children.emplace_back(shown(name).toLower(), std::move(name));
    // By name without regard to case, as the folder list has always been sorted.
    std::sort(children.begin(), children.end());
    for (const auto& [lower, name] : children) {
        const std::string child = (path.empty() ? std::string() : path) + '/' + name;
        items.push_back({shown(child), shown(name), depth, false, child});
    }
    return items;
}

int currentItem(const std::vector<FolderItem>& items) {
    int index = 0;
    for (int i = 0; i < static_cast<int>(items.size()); ++i) {
        if (items[static_cast<std::size_t>(i)].open)
            index = i;
    }
    return index;
}

} // namespace browser
