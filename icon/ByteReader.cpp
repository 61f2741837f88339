#include "icon/ByteReader.h"

#include <algorithm>

namespace icon {

std::uint8_t ByteReader::u8(std::size_t offset) const {
    return check(offset, 1) ? m_bytes[offset] : 0;
}

std::uint16_t ByteReader::u16(std::size_t offset) const {
    if (!check(offset, 2))
        return 0;
    return static_cast<std::uint16_t>(m_bytes[offset] | (m_bytes[offset + 1] << 8));
}

std::uint32_t ByteReader::u32(std::size_t offset) const {
    if (!check(offset, 4))
        return 0;
    std::uint32_t v = 0;
    for (int i = 3; i >= 0; --i)
        v = (v << 8) | m_bytes[offset + static_cast<std::size_t>(i)];
    return v;
}

std::uint64_t ByteReader::u64(std::size_t offset) const {
    if (!check(offset, 8))
        return 0;
    std::uint64_t v = 0;
    for (int i = 7; i >= 0; --i)
        v = (v << 8) | m_bytes[offset + static_cast<std::size_t>(i)];
    return v;
}

std::span<const std::uint8_t> ByteReader::slice(std::size_t offset, std::size_t count) const {
    if (!check(offset, count))
        return {};
    return m_bytes.subspan(offset, count);
}

std::span<const std::uint8_t> ByteReader::sliceClamped(std::size_t offset,
                                                       std::size_t count) const {
    if (offset >= m_bytes.size())
        return {};
    return m_bytes.subspan(offset, std::min(count, m_bytes.size() - offset));
}

} // namespace icon
