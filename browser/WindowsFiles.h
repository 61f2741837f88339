#pragma once

#include <QString>
#include <QStringList>

#include <filesystem>
#include <optional>
#include <vector>

namespace browser {

// The system files the picker offers at one click, and where they are on this machine: the
// Windows folder here is Wine's. Each file is looked for in the prefix's Windows folder, then
// in its system32 and system folders, then where Debian's Wine packages keep their Windows
// libraries.
class WindowsFiles {
public:
    // The files, in the order of the panel, as the file system spells them.
    static const QStringList& names();
    // The same name as shown to the user, with a capital initial ("Shell32.dll").
    static QString caption(const QString& name);

    // The folders looked in, in order. `winePrefix` is $WINEPREFIX (empty when unset), `home`
    // the user's home folder (the prefix defaults to ~/.wine).
    static std::vector<std::filesystem::path> folders(const std::filesystem::path& winePrefix,
                                                      const std::filesystem::path& home);
    // Where Debian's Wine packages install their Windows libraries.
    static std::vector<std::filesystem::path> libraryFolders();
    // The folders for this process's environment.
    static std::vector<std::filesystem::path> foldersOfThisUser();

    // The first regular file of that name in the folders (also spelt with a capital initial or
    // in capitals, as Windows files copied by hand often are); nothing when none has it.
    static std::optional<std::filesystem::path>
    find(const QString& name, const std::vector<std::filesystem::path>& folders);
};

} // namespace browser
