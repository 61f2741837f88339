#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace icon {

// Little-endian numbers written into a growing byte vector, or over bytes already there: the
// one writer of every file format the program makes.
class ByteWriter {
public:
    std::vector<std::uint8_t> bytes;

    std::size_t size() const { return bytes.size(); }
    void u8(std::uint32_t v) { bytes.push_back(static_cast<std::uint8_t>(v % 256)); }
    void u16(std::uint32_t v) {
        u8(v);
        u8(v / 256);
    }
    void u32(std::uint32_t v) {
        u16(v % 65536);
        u16(v / 65536);
    }
    void append(std::span<const std::uint8_t> data) {
        bytes.insert(bytes.end(), data.begin(), data.end());
    }
    void padTo(std::size_t size) { bytes.resize(std::max(bytes.size(), size), 0); }

    // Over bytes written before: `at` + 2 (or 4) must not pass size().
    void at16(std::size_t at, std::uint32_t v) { at16(bytes, at, v); }
    void at32(std::size_t at, std::uint32_t v) { at32(bytes, at, v); }
    static void at16(std::vector<std::uint8_t>& out, std::size_t at, std::uint32_t v) {
        out[at] = static_cast<std::uint8_t>(v % 256);
        out[at + 1] = static_cast<std::uint8_t>((v / 256) % 256);
    }
    static void at32(std::vector<std::uint8_t>& out, std::size_t at, std::uint32_t v) {
        at16(out, at, v % 65536);
        at16(out, at + 2, v / 65536);
    }
};

} // namespace icon
