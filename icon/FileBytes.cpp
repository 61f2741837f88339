#include "icon/FileBytes.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace icon {

int openRegularFile(const std::filesystem::path& path, std::size_t maxBytes, std::size_t& size,
                    ReadError& error) {
    size = 0;
    // O_NONBLOCK: opening a FIFO for reading would otherwise wait for a writer forever.
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (fd < 0) {
        error = errno == ENOENT || errno == ENOTDIR ? ReadError::Missing
                : errno == ENXIO                    ? ReadError::NotRegular
                                                    : ReadError::Unreadable;
        return -1;
    }
    struct stat info {};
    const bool known = ::fstat(fd, &info) == 0;
    if (!known || !S_ISREG(info.st_mode) || info.st_size < 0) {
        error = known ? ReadError::NotRegular : ReadError::Unreadable;
        ::close(fd);
        return -1;
    }
    if (static_cast<std::uint64_t>(info.st_size) > maxBytes) {
        error = ReadError::TooLarge;
        ::close(fd);
        return -1;
    }
    error = ReadError::None;
    size = static_cast<std::size_t>(info.st_size);
    return fd;
}

std::optional<std::vector<std::uint8_t>> readFileBytes(const std::filesystem::path& path,
                                                       std::size_t maxBytes, ReadError* error) {
    ReadError why = ReadError::None;
    std::size_t size = 0;
    const int fd = openRegularFile(path, maxBytes, size, why);
    if (error)
        *error = why;
    if (fd < 0)
        return std::nullopt;
    // The size is the one stat gave: a file growing meanwhile is read up to it, a file
    // shrinking meanwhile is an error rather than a short read taken for the whole.
    std::vector<std::uint8_t> bytes(size);
    std::size_t done = 0;
    while (done < size) {
        const ssize_t got = ::read(fd, bytes.data() + done, size - done);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        done += static_cast<std::size_t>(got);
    }
    ::close(fd);
    if (done != size) {
        if (error)
            *error = ReadError::Unreadable;
        return std::nullopt;
    }
    return bytes;
}

std::shared_ptr<const MappedFile> MappedFile::open(const std::filesystem::path& path,
                                                   std::size_t maxBytes, ReadError* error) {
    ReadError why = ReadError::None;
    std::size_t size = 0;
    const int fd = openRegularFile(path, maxBytes, size, why);
    if (error)
        *error = why;
    if (fd < 0)
        return nullptr;
    if (size == 0) {
        ::close(fd);
        return std::shared_ptr<const MappedFile>(new MappedFile(nullptr, 0));
    }
    void* data = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, fd, 0);
    ::close(fd);
    if (data == MAP_FAILED) {
        if (error)
            *error = ReadError::Unreadable;
        return nullptr;
    }
    return std::shared_ptr<const MappedFile>(
        new MappedFile(static_cast<const std::uint8_t*>(data), size));
}

MappedFile::~MappedFile() {
    if (m_data != nullptr)
        ::munmap(const_cast<std::uint8_t*>(m_data), m_size);
}

} // namespace icon
