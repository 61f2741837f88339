#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>

namespace icon {

enum class SaveError {
    None,
    FolderMissing, // the folder of the target does not exist
    NotWritable,   // the target or its folder cannot be written
    WriteFailed,   // writing or replacing failed half-way; the target is as it was
};

// What a save did, for the caller to test; `message` is the French sentence (UTF-8) the command
// line prints, empty on success.
struct SaveResult {
    SaveError error = SaveError::None;
    std::string message;

    bool ok() const { return error == SaveError::None; }
    explicit operator bool() const { return ok(); }
};

// Whether a save waits for its bytes to reach the disk. One file the user saves does; the many
// files of one batch need not: each is still written whole before it replaces anything, and a
// crash leaves every target old or new, only the last ones possibly lost with the cache.
enum class Durability { Flushed, Cached };

// Writes `content` to `path` so that a failure loses nothing: the whole new content goes to a
// temporary file in the same folder, flushed to the disk (unless Cached), which then replaces the target,
// keeping its permissions. Every step is checked (each write, the flush, the close, the
// rename): on any failure the temporary file is removed and the target is as it was.
// With keepTail, the bytes of the existing file beyond content.size() follow the new content,
// as the icon editor has always left them. A target or folder that cannot be written fails
// before anything is touched.
SaveResult saveFileSafely(const std::filesystem::path& path, std::span<const std::uint8_t> content,
                          bool keepTail, Durability durability = Durability::Flushed);

// The system call every save writes its bytes with. Tests put one in that fails part-way, to
// see a failing disk handled without needing one; nullptr puts back the system's own.
using WriteFunction = ssize_t (*)(int fd, const void* data, std::size_t count);
void setWriteFunction(WriteFunction write);

} // namespace icon
