#pragma once

#include "browser/FileResult.h"

#include <filesystem>

namespace browser {

// The browser's file commands on the file system's own bytes, so that names which are not
// valid UTF-8 keep working.

// Copies `from` to `to`, replacing `to`. The copy is written beside `to` and renamed over it
// once complete: `to` is either the whole new file or what it was before. Copying a file onto
// itself fails with kSameFile.
FileResult copyFile(const std::filesystem::path& from, const std::filesystem::path& to);

// Renames `from` to `to`; fails with EEXIST when `to` exists, never replacing it.
FileResult renameFile(const std::filesystem::path& from, const std::filesystem::path& to);

// A copy the system refused (no write permission, a read-only disk, the file onto itself):
// the user is asked to choose another place or name.
bool isRefusal(int error);

} // namespace browser
