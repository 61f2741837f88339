#pragma once

#include <QString>

#include <filesystem>

namespace browser {

// What became of a file sent to the desktop trash.
struct TrashResult {
    enum class Kind {
        Trashed, // in the trash, with the note that lets the desktop put it back
        NoTrash, // its disk has no trash the program may use
        Failed,  // the move itself failed (no permission, file gone)
    };
    Kind kind = Kind::Failed;
    int error = 0;                     // the system's error number when not Trashed
    std::filesystem::path trashedFile; // where it now lies when Trashed
};

// Moves a file to the desktop's trash, as every Linux desktop shares it: the user's own trash
// (the data folder's "Trash", made when missing) for a file on the same disk, otherwise the
// trash at the top of the file's own disk (".Trash/<uid>" when the disk offers one,
// ".Trash-<uid>" otherwise). A file that cannot go to the trash stays where it was.
TrashResult moveToTrash(const std::filesystem::path& file);

// The user's own trash folder: $XDG_DATA_HOME/Trash, or ~/.local/share/Trash.
std::filesystem::path homeTrash();

// The message shown when a file stays where it was; `name` is the file as the user sees it.
QString trashFailureText(const QString& name, const TrashResult& result);

} // namespace browser
