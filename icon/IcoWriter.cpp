#include "icon/IcoWriter.h"

namespace icon {

namespace {

class ByteWriter {
public:
    explicit ByteWriter(IconFileBytes& bytes)
        : m_bytes(bytes) {}
    void u8(std::uint32_t v) { m_bytes.at(m_at++) = static_cast<std::uint8_t>(v % 256); }
    void u16(std::uint32_t v) {
        u8(v);
        u8(v / 256);
    }
    void u32(std::uint32_t v) {
        u16(v % 65536);
        u16(v / 65536);
    }
    std::size_t at() const { return m_at; }

private:
    IconFileBytes& m_bytes;
    std::size_t m_at = 0;
};

} // namespace

std::uint8_t packMaskByte(std::string_view bits) {
    unsigned value = 0;
    for (std::size_t i = 0; i < 8 && i < bits.size(); ++i)
        if (bits[i] == '1')
            value += 1u << (7 - i);
    return static_cast<std::uint8_t>(value);
}

IconFileBytes encodeIconFile(const IconPlanes& icon) {
    IconFileBytes bytes{};
    ByteWriter out(bytes);
    // Directory header: reserved, type 1 (icon), one image.
    out.u16(0);
    out.u16(1);
    out.u16(1);
    // Directory entry: 32×32, no palette, 1 plane, 24 bits, 3240 bytes at offset 22.
    out.u8(32);
    out.u8(32);
    out.u8(0);
    out.u8(0);
    out.u16(1);
    out.u16(24);
    out.u32(3240);
    out.u32(22);
    // Bitmap header: the height counts the colour rows and the mask rows. The image size
    // field holds colour data plus mask (3200), as the program has always written it.
    out.u32(40);
    out.u32(32);
    out.u32(64);
    out.u16(1);
    out.u16(24);
    out.u32(0);
    out.u32(3200);
    out.u32(0);
    out.u32(0);
    out.u32(0);
    out.u32(0);

    for (int y = kIconSize - 1; y >= 0; --y)
        for (int x = 0; x < kIconSize; ++x) {
            const Colour c = icon.isTransparent(x, y) ? kBlack : icon.image.at(x, y);
            out.u8(static_cast<std::uint32_t>(blueOf(c)));
            out.u8(static_cast<std::uint32_t>(greenOf(c)));
            out.u8(static_cast<std::uint32_t>(redOf(c)));
        }

    char accumulator[8];
    std::size_t bit = 0;
    for (int y = kIconSize - 1; y >= 0; --y)
        for (int x = 0; x < kIconSize; ++x) {
            accumulator[bit++] = icon.isTransparent(x, y) ? '1' : '0';
            if (bit == 8) {
                out.u8(packMaskByte(std::string_view(accumulator, 8)));
                bit = 0;
            }
        }
    return bytes;
}

SaveResult writeIconFile(const std::filesystem::path& path, const IconPlanes& icon) {
    const IconFileBytes bytes = encodeIconFile(icon);
    return saveFileSafely(path, bytes, true);
}

SaveResult writeIconFile(const QString& path, const IconPlanes& icon) {
    const IconFileBytes bytes = encodeIconFile(icon);
    return saveFileSafely(path, bytes, true);
}

} // namespace icon
