#include "icon/IcoWriter.h"

#include "icon/ByteWriter.h"

#include <algorithm>

namespace icon {

namespace {

// One image's bitmap: header, colour rows and mask rows, bottom row first.
void writeImage(ByteWriter& out, const IconBitmap& b) {
    const auto w = static_cast<std::uint32_t>(b.width());
    const auto h = static_cast<std::uint32_t>(b.height());
    const std::uint32_t colourRow = (w * 3 + 3) / 4 * 4;
    const std::uint32_t maskRow = (w + 31) / 32 * 4;
    out.u32(40);
    out.u32(w);
    out.u32(2 * h); // the height counts the colour rows and the mask rows
    out.u16(1);
    out.u16(24);
    out.u32(0);
    out.u32((colourRow + maskRow) * h);
    for (int i = 0; i < 4; ++i)
        out.u32(0);
    for (int y = b.height() - 1; y >= 0; --y) {
        const std::size_t start = out.size();
        for (int x = 0; x < b.width(); ++x) {
            const Colour c = isTransparentMask(b.mask.at(x, y)) ? kBlack : b.image.at(x, y);
            out.u8(static_cast<std::uint32_t>(blueOf(c)));
            out.u8(static_cast<std::uint32_t>(greenOf(c)));
            out.u8(static_cast<std::uint32_t>(redOf(c)));
        }
        out.padTo(start + colourRow);
    }
    for (int y = b.height() - 1; y >= 0; --y) {
        const std::size_t start = out.size();
        out.padTo(start + maskRow);
        for (int x = 0; x < b.width(); ++x)
            if (isTransparentMask(b.mask.at(x, y)))
                out.bytes[start + static_cast<std::size_t>(x / 8)] |=
                    static_cast<std::uint8_t>(0x80 >> (x % 8));
    }
}

} // namespace

std::uint8_t packMaskByte(std::string_view bits) {
    unsigned value = 0;
    for (std::size_t i = 0; i < 8 && i < bits.size(); ++i)
        if (bits[i] == '1')
            value += 1u << (7 - i);
    return static_cast<std::uint8_t>(value);
}

std::vector<std::uint8_t> encodeIcoFile(const std::vector<IconBitmap>& images) {
    std::vector<ByteWriter> data(images.size());
    for (std::size_t i = 0; i < images.size(); ++i)
        writeImage(data[i], images[i]);
    ByteWriter out;
    // Directory header: reserved, type 1 (icon), the image count.
    out.u16(0);
    out.u16(1);
    out.u16(static_cast<std::uint32_t>(images.size()));
    auto offset = static_cast<std::uint32_t>(6 + 16 * images.size());
    for (std::size_t i = 0; i < images.size(); ++i) {
        // Width, height (256 written 0), no palette, reserved, 1 plane, 24 bits, size, offset.
        out.u8(static_cast<std::uint32_t>(images[i].width()) % 256);
        out.u8(static_cast<std::uint32_t>(images[i].height()) % 256);
        out.u16(0);
        out.u16(1);
        out.u16(24);
        out.u32(static_cast<std::uint32_t>(data[i].size()));
        out.u32(offset);
        offset += static_cast<std::uint32_t>(data[i].size());
    }
    for (const ByteWriter& d : data)
        out.append(d.bytes);
    return std::move(out.bytes);
}

IconFileBytes encodeIconFile(const IconPlanes& icon) {
    const std::vector<std::uint8_t> file = encodeIcoFile({fromPlanes(icon)});
    IconFileBytes bytes{};
    std::copy_n(file.begin(), std::min(file.size(), bytes.size()), bytes.begin());
    return bytes;
}

SaveResult writeIconFile(const std::filesystem::path& path, const IconPlanes& icon) {
    const IconFileBytes bytes = encodeIconFile(icon);
    return saveFileSafely(path, bytes, true);
}

} // namespace icon
