#include "browser/FileOperations.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace browser {

namespace {

// Closes a descriptor when it goes out of scope; close() reports its own error.
class Descriptor {
public:
    explicit Descriptor(int fd)
        : m_fd(fd) {}
    ~Descriptor() {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int get() const { return m_fd; }
    int close() {
        const int result = ::close(m_fd);
        m_fd = -1;
        return result;
    }

private:
    int m_fd;
};

int writeAll(int fd, const char* data, ssize_t size) {
    while (size > 0) {
        const ssize_t written = ::write(fd, data, static_cast<size_t>(size));
        if (written < 0) {
            if (errno == EINTR)
                continue;
            return errno;
        }
        data += written;
        size -= written;
    }
    return 0;
}

int copyBytes(int in, int out) {
    char buffer[65536];
    for (;;) {
        const ssize_t got = ::read(in, buffer, sizeof buffer);
        if (got == 0)
            return 0;
        if (got < 0) {
            if (errno == EINTR)
                continue;
            return errno;
        }
        if (const int error = writeAll(out, buffer, got))
            return error;
    }
}

mode_t newFileMode() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

} // namespace

FileResult copyFile(const std::filesystem::path& from, const std::filesystem::path& to) {
    // Only a regular file is read, and opening never waits on a pipe or a device.
    Descriptor in(::open(from.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    if (in.get() < 0)
        return {errno};
    struct stat source {};
    if (::fstat(in.get(), &source) != 0)
        return {errno};
    if (!S_ISREG(source.st_mode))
        return {kNotRegular};
    struct stat target {};
    if (::stat(to.c_str(), &target) == 0) {
        if (target.st_dev == source.st_dev && target.st_ino == source.st_ino)
            return {kSameFile};
        if (S_ISDIR(target.st_mode))
            return {EISDIR};
    }

    const std::filesystem::path folder = to.has_parent_path() ? to.parent_path() : ".";
    // The temporary name adds 8 bytes: a name near the longest allowed must still leave room.
    const std::string stem = to.filename().native().substr(0, 240);
    std::string temporary = (folder / ("." + stem + ".XXXXXX")).native();
    Descriptor out(::mkostemp(temporary.data(), O_CLOEXEC));
    if (out.get() < 0)
        return {errno};
    auto fail = [&](int error) {
        ::unlink(temporary.c_str());
        return FileResult{error};
    };
    if (::fchmod(out.get(), newFileMode()) != 0)
        return fail(errno);
    if (const int error = copyBytes(in.get(), out.get()))
        return fail(error);
    if (::fsync(out.get()) != 0)
        return fail(errno);
    if (out.close() != 0)
        return fail(errno);
    if (::rename(temporary.c_str(), to.c_str()) != 0)
        return fail(errno);
    return {};
}

FileResult renameFile(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return {};
    const int error = errno;
    if (error != EINVAL && error != ENOSYS)
        return {error};
    // A file system that cannot promise not to replace: look first, then rename.
    struct stat target {};
    if (::lstat(to.c_str(), &target) == 0)
        return {EEXIST};
    if (::rename(from.c_str(), to.c_str()) != 0)
        return {errno};
    return {};
}

bool isRefusal(int error) {
    return error == EACCES || error == EPERM || error == EROFS || error == kSameFile;
}

} // namespace browser
