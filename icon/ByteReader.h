#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace icon {

// Bounds-checked little-endian reads over bytes nobody checked. Reading outside the buffer
// gives 0 and marks the reader as failed, so a decoder can read a whole header and test once.
class ByteReader {
public:
    explicit ByteReader(std::span<const std::uint8_t> bytes)
        : m_bytes(bytes) {}

    std::size_t size() const { return m_bytes.size(); }
    std::span<const std::uint8_t> bytes() const { return m_bytes; }
    bool failed() const { return m_failed; }

    // True when [offset, offset + count) lies inside the buffer; overflow-safe.
    bool contains(std::size_t offset, std::size_t count) const {
        return offset <= m_bytes.size() && count <= m_bytes.size() - offset;
    }

    std::uint8_t u8(std::size_t offset) const;
    std::uint16_t u16(std::size_t offset) const;
    std::uint32_t u32(std::size_t offset) const;
    std::int16_t i16(std::size_t offset) const { return static_cast<std::int16_t>(u16(offset)); }
    std::int32_t i32(std::size_t offset) const { return static_cast<std::int32_t>(u32(offset)); }
    std::uint64_t u64(std::size_t offset) const;

    // The bytes [offset, offset + count); empty (and failed) when they are not all there.
    std::span<const std::uint8_t> slice(std::size_t offset, std::size_t count) const;
    // As many of [offset, offset + count) as the buffer has; never fails.
    std::span<const std::uint8_t> sliceClamped(std::size_t offset, std::size_t count) const;

private:
    bool check(std::size_t offset, std::size_t count) const {
        if (contains(offset, count))
            return true;
        m_failed = true;
        return false;
    }

    std::span<const std::uint8_t> m_bytes;
    mutable bool m_failed = false;
};

} // namespace icon
