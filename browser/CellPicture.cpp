#include "browser/CellPicture.h"

#include "icon/RgbaPicture.h"

#include <algorithm>

namespace browser {

namespace {

CellPicture toSide(const icon::RgbaPicture& source, int side) {
    icon::RgbaPicture square = icon::resized(source, side, side);
    CellPicture out;
    out.side = side;
    out.pixels = std::move(square.pixels);
    out.invert = std::move(square.invert);
    return out;
}

} // namespace

CellPicture fromBitmap(const icon::IconBitmap& bitmap) {
    const icon::RgbaPicture rgba = icon::rgbaFromBitmap(bitmap);
    return toSide(rgba, std::max(rgba.width, rgba.height));
}

CellPicture scaled(const CellPicture& picture, int side) {
    if (picture.isEmpty() || side < 1)
        return {};
    return toSide(icon::RgbaPicture{picture.side, picture.side, picture.pixels, picture.invert, true},
                  side);
}

icon::Frame blendOver(const CellPicture& picture, icon::Colour background) {
    icon::Frame frame(picture.side, picture.side, background);
    const int bg[3] = {icon::blueOf(background), icon::greenOf(background),
                       icon::redOf(background)};
    for (int y = 0; y < picture.side; ++y) {
        for (int x = 0; x < picture.side; ++x) {
            const std::size_t i = static_cast<std::size_t>(y) * picture.side + x;
            const std::uint32_t px = picture.pixels[i];
            const int keep = 255 - static_cast<int>(px >> 24);
            int c[3];
            for (int k = 0; k < 3; ++k)
                c[k] = std::min(255, static_cast<int>((px >> (8 * k)) & 0xFFu) +
                                         (bg[k] * keep + 127) / 255);
            icon::Colour colour = icon::rgb(c[2], c[1], c[0]);
            if (!picture.invert.empty()) {
                const std::uint32_t inv = picture.invert[i];
                colour ^=
                    icon::rgb(static_cast<int>((inv >> 16) & 0xFFu),
                              static_cast<int>((inv >> 8) & 0xFFu), static_cast<int>(inv & 0xFFu));
            }
            frame.set(x, y, colour);
        }
    }
    return frame;
}

std::optional<CellPicture> decodeCellPicture(std::span<const std::uint8_t> bytes, int side) {
    const std::optional<icon::RgbaPicture> image = icon::decodeBestRgba(bytes, side);
    if (!image)
        return std::nullopt;
    return toSide(*image, side);
}

} // namespace browser
