#include "icon/BmpWriter.h"

#include "icon/ByteWriter.h"

namespace icon {

std::vector<std::uint8_t> encodeBmp24(const Frame& picture) {
    constexpr std::uint32_t kHeaders = 14 + 40;
    const auto width = static_cast<std::uint32_t>(picture.width());
    const auto height = static_cast<std::uint32_t>(picture.height());
    const std::uint32_t rowBytes = (width * 3 + 3) / 4 * 4;
    const std::uint32_t imageBytes = rowBytes * height;

    ByteWriter out;
    out.bytes.reserve(kHeaders + imageBytes);
    out.u8('B');
    out.u8('M');
    out.u32(kHeaders + imageBytes);
    out.u32(0);
    out.u32(kHeaders);
    out.u32(40);
    out.u32(width);
    out.u32(height); // positive: rows from the bottom
    out.u16(1);
    out.u16(24);
    out.u32(0);
    out.u32(imageBytes);
    out.u32(0);
    out.u32(0);
    out.u32(0);
    out.u32(0);
    for (int y = picture.height() - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width(); ++x) {
            const Colour c = picture.at(x, y);
            out.u8(static_cast<std::uint32_t>(blueOf(c)));
            out.u8(static_cast<std::uint32_t>(greenOf(c)));
            out.u8(static_cast<std::uint32_t>(redOf(c)));
        }
        out.padTo(out.size() + (rowBytes - width * 3));
    }
    return std::move(out.bytes);
}

SaveResult writeBmpFile(const std::filesystem::path& path, const Frame& picture) {
    const std::vector<std::uint8_t> bytes = encodeBmp24(picture);
    return saveFileSafely(path, bytes, false);
}

} // namespace icon
