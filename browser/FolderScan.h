#pragma once

#include <QString>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace browser {

// One icon file of the folder: the real path to read it by, as the file system's bytes (a name
// need not be valid text), and the lower-cased path the program has always shown.
struct IconEntry {
    std::filesystem::path file;
    QString shown;
};

// The folder path as the browser uses it: always with a trailing "/".
QString withTrailingSlash(const QString& folder);
std::filesystem::path withTrailingSlash(const std::filesystem::path& folder);

// Every file of the folder whose name ends in ".ico" in any case, by name without regard to
// case. Reads no icon. Nothing when the folder cannot be read (it no longer exists).
std::optional<std::vector<IconEntry>> scanIconFolder(const std::filesystem::path& folder);
std::optional<std::vector<IconEntry>> scanIconFolder(const QString& folder);

// One pass over a folder: its icon files as above, and its subfolders (links to folders
// included, hidden ones left out) by the names the file system gives, unsorted. The folder list
// and the grid share it, so that a folder is read once however many entries it has.
struct FolderListing {
    std::vector<IconEntry> icons;
    std::vector<std::string> subfolders;
};
std::optional<FolderListing> readFolder(const std::filesystem::path& folder);

} // namespace browser
