#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace icon {

// Files larger than this are not icon files nor icon libraries worth reading whole.
inline constexpr std::size_t kMaxFileBytes = 256u * 1024u * 1024u;

// The whole content of a file, or nothing when it cannot be read or is larger than maxBytes.
std::optional<std::vector<std::uint8_t>> readFileBytes(const QString& path,
                                                       std::size_t maxBytes = kMaxFileBytes);

} // namespace icon
