#include "icon/SafeSave.h"

#include "icon/FileBytes.h"

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace icon {

namespace {

std::atomic<WriteFunction> g_write{nullptr};

// "<before>« <path> »<after>", the path as the file system spells it.
SaveResult failure(SaveError error, const char* before, const std::filesystem::path& path,
                   const char* after) {
    return {error, std::string(before) + "« " + path.native() + " »" + after};
}

SaveResult writeFailure(const std::filesystem::path& path, int error) {
    return failure(SaveError::WriteFailed, "l'écriture de ", path,
                   error == ENOSPC || error == EDQUOT
                       ? " a échoué (disque plein) ; le fichier n'a pas changé."
                       : " a échoué ; le fichier n'a pas changé.");
}

// Writes all of `bytes`; false (errno set) on the first failure or a write that makes no progress.
bool writeAll(int fd, std::span<const std::uint8_t> bytes) {
    const WriteFunction write = g_write.load();
    while (!bytes.empty()) {
        const ssize_t done =
            write ? write(fd, bytes.data(), bytes.size()) : ::write(fd, bytes.data(), bytes.size());
        if (done < 0 && errno == EINTR)
            continue;
        if (done <= 0) {
            if (done == 0)
                errno = ENOSPC;
            return false;
        }
        bytes = bytes.subspan(static_cast<std::size_t>(done));
    }
    return true;
}

// A new file beside the target, created exclusively; -1 when the folder cannot be written.
int createTemporary(const std::filesystem::path& target, std::filesystem::path& temporary) {
    std::random_device seed;
    std::mt19937 random(seed());
    for (int attempt = 0; attempt < 16; ++attempt) {
        temporary = target;
        temporary.replace_filename("." + target.filename().native() + ".orvanne-" +
                                   std::to_string(random() % 1000000000u));
        // 0666 less the user's umask, as any new file of the user.
        const int fd = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd >= 0 || errno != EEXIST)
            return fd;
    }
    return -1;
}

void syncFolder(const std::filesystem::path& folder) {
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        // The new file is in place either way; this only hurries its name to the disk.
        ::fsync(fd);
        ::close(fd);
    }
}

} // namespace

void setWriteFunction(WriteFunction write) {
    g_write.store(write);
}

SaveResult saveFileSafely(const std::filesystem::path& requested,
                          std::span<const std::uint8_t> content, bool keepTail,
                          Durability durability) {
    std::filesystem::path path = requested;
    struct stat old {};
    const bool exists = ::stat(path.c_str(), &old) == 0;
    // Saving through a symbolic link replaces the file it names, not the link.
    std::error_code ignored;
    if (exists && std::filesystem::is_symlink(path, ignored)) {
        const std::filesystem::path real = std::filesystem::canonical(path, ignored);
        if (!ignored)
            path = real;
    }
    std::filesystem::path folder = path.parent_path();
    if (folder.empty())
        folder = ".";
    struct stat folderInfo {};
    if (::stat(folder.c_str(), &folderInfo) != 0 || !S_ISDIR(folderInfo.st_mode))
        return failure(SaveError::FolderMissing, "le dossier de ", requested, " n'existe pas.");
    if (exists && (!S_ISREG(old.st_mode) || ::access(path.c_str(), W_OK) != 0))
        return failure(SaveError::NotWritable, "le fichier ", requested,
                       " est protégé en écriture.");

    std::vector<std::uint8_t> tail;
    if (keepTail && exists) {
        const std::optional<std::vector<std::uint8_t>> bytes = readFileBytes(path);
        if (!bytes)
            return failure(SaveError::NotWritable, "impossible de lire le fichier ", requested, ".");
        if (bytes->size() > content.size())
            tail.assign(bytes->begin() + static_cast<std::ptrdiff_t>(content.size()), bytes->end());
    }

    std::filesystem::path temporary;
    const int fd = createTemporary(path, temporary);
    if (fd < 0)
        return failure(SaveError::NotWritable, "impossible d'écrire dans le dossier de ", requested,
                       ".");
    if (exists) {
        // The replacement keeps the old file's permissions and, where allowed, its owner.
        ::fchmod(fd, old.st_mode & 07777);
        [[maybe_unused]] const int owned = ::fchown(fd, old.st_uid, old.st_gid);
    }
    const bool flushed = durability == Durability::Flushed;
    bool written =
        writeAll(fd, content) && writeAll(fd, tail) && (!flushed || ::fsync(fd) == 0);
    int error = written ? 0 : errno;
    // A full disk may show only when the file is closed (network and some other file systems).
    if (::close(fd) != 0 && written) {
        written = false;
        error = errno;
    }
    if (written && ::rename(temporary.c_str(), path.c_str()) != 0) {
        written = false;
        error = errno;
    }
    if (!written) {
        ::unlink(temporary.c_str());
        return writeFailure(requested, error);
    }
    if (flushed)
        syncFolder(folder);
    return {};
}

} // namespace icon
