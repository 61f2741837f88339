#pragma once

#include <QString>

#include <filesystem>
#include <string>
#include <vector>

namespace browser {

// One line of the folder list: the open folders from the root down to the current folder,
// then the current folder's subfolders, each indented by its depth.
struct FolderItem {
    QString path;
    QString name;
    int depth = 0;
    bool open = false;          // the root, the current folder and the folders between them
    std::filesystem::path file; // the path as the file system's bytes, to open it by
};

// The lines of the folder list for a folder (an absolute path). Subfolders by name without
// regard to case; hidden ones (a leading dot) are left out as a file manager does.
std::vector<FolderItem> folderItems(const QString& folder);
std::vector<FolderItem> folderItems(const std::filesystem::path& folder);
// The same with the current folder's subfolders already read (by readFolder).
std::vector<FolderItem> folderItems(const std::filesystem::path& folder,
                                    std::vector<std::string> subfolders);

// The index of the current folder among the items.
int currentItem(const std::vector<FolderItem>& items);

} // namespace browser
