#include "icon/BmpWriter.h"

namespace icon {

namespace {

void put16(std::vector<std::uint8_t>& out, std::uint32_t v) {
    out.push_back(static_cast<std::uint8_t>(v % 256));
    out.push_back(static_cast<std::uint8_t>(v / 256 % 256));
}

void put32(std::vector<std::uint8_t>& out, std::uint32_t v) {
    put16(out, v % 65536);
    put16(out, v / 65536);
}

} // namespace

std::vector<std::uint8_t> encodeBmp24(const Frame& picture) {
    constexpr std::uint32_t kHeaders = 14 + 40;
    const auto width = static_cast<std::uint32_t>(picture.width());
    const auto height = static_cast<std::uint32_t>(picture.height());
    const std::uint32_t rowBytes = (width * 3 + 3) / 4 * 4;
    const std::uint32_t imageBytes = rowBytes * height;

    std::vector<std::uint8_t> out;
    out.reserve(kHeaders + imageBytes);
    out.push_back('B');
    out.push_back('M');
    put32(out, kHeaders + imageBytes);
    put32(out, 0);
    put32(out, kHeaders);
    put32(out, 40);
    put32(out, width);
    put32(out, height); // positive: rows from the bottom
    put16(out, 1);
    put16(out, 24);
    put32(out, 0);
    put32(out, imageBytes);
    put32(out, 0);
    put32(out, 0);
    put32(out, 0);
    put32(out, 0);
    for (int y = picture.height() - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width(); ++x) {
            const Colour c = picture.at(x, y);
            out.push_back(static_cast<std::uint8_t>(blueOf(c)));
            out.push_back(static_cast<std::uint8_t>(greenOf(c)));
            out.push_back(static_cast<std::uint8_t>(redOf(c)));
        }
        out.resize(out.size() + (rowBytes - width * 3), 0);
    }
    return out;
}

SaveResult writeBmpFile(const QString& path, const Frame& picture) {
    const std::vector<std::uint8_t> bytes = encodeBmp24(picture);
    return saveFileSafely(path, bytes, false);
}

} // namespace icon
