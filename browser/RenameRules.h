#pragma once

#include <QString>

#include <filesystem>
#include <string>

namespace browser {

// How the rename window splits the centred path: the old name is everything after the first
// "/" (for /icones/x.ico, "icones/x.ico"), the folder part what comes before it ("/"). The
// user edits the old name as a whole, folders included, as the program always let them.
struct RenameParts {
    std::string folder;  // bytes as on disk
    std::string oldName; // bytes as on disk
    QString oldNameText() const;
};

RenameParts renameParts(const std::filesystem::path& centred);

// ".ico" is appended unless the name already ends with exactly ".ico" (so "X.ICO" becomes
// "X.ICO.ico").
QString withIcoExtension(const QString& name);

// Where the file goes: the folder part followed by the new name. The folders the new name
// keeps from the old one keep their bytes, so that names which are not UTF-8 survive.
std::filesystem::path renameTarget(const RenameParts& parts, const QString& newName);

} // namespace browser
