#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace icon {

// Files larger than this are not icon files nor icon libraries worth reading whole.
inline constexpr std::size_t kMaxFileBytes = 256u * 1024u * 1024u;

// Why a file could not be read.
enum class ReadError {
    None,
    Missing,    // nothing by that name
    NotRegular, // a folder, a FIFO, a device, a socket: never opened for reading
    TooLarge,   // more bytes than the caller allows
    Unreadable, // permission refused or an error while reading
};

// Opens a file for reading without ever waiting: the open does not block on a FIFO or a device,
// and anything that is not a regular file (symbolic links followed) is closed again at once.
// Returns the descriptor (close-on-exec) and its size, or -1 with the reason.
int openRegularFile(const std::filesystem::path& path, std::size_t maxBytes, std::size_t& size,
                    ReadError& error);

// The whole content of a regular file, or nothing when it cannot be read or is larger than
// maxBytes (the reason in `error` when given).
std::optional<std::vector<std::uint8_t>> readFileBytes(const std::filesystem::path& path,
                                                       std::size_t maxBytes = kMaxFileBytes,
                                                       ReadError* error = nullptr);

// A regular file mapped read-only: large inputs are looked at in place, the system bringing in
// only the pages a reader touches, instead of being copied into memory.
class MappedFile {
public:
    static std::shared_ptr<const MappedFile> open(const std::filesystem::path& path,
                                                  std::size_t maxBytes = kMaxFileBytes,
                                                  ReadError* error = nullptr);
    ~MappedFile();
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    std::span<const std::uint8_t> bytes() const { return {m_data, m_size}; }

private:
    MappedFile(const std::uint8_t* data, std::size_t size)
        : m_data(data)
        , m_size(size) {}

    const std::uint8_t* m_data = nullptr;
    std::size_t m_size = 0;
};

} // namespace icon
