// The PNG pictures `orvanne-icons create` reads, on any bytes: reading one must never crash or
// allocate beyond its 256×256 limit, and the icon made of it must read back, through the ICO
// reader, at the same size and with the same pixels, as a bitmap and as a PNG entry.
#include "icon/IcoAuthoring.h"
#include "icon/IcoReader.h"
#include "icon/RgbaPicture.h"

#include <cstdlib>
#include <span>

namespace {

bool samePixels(const icon::RgbaPicture& got, const icon::RgbaPicture& expected) {
    if (got.width != expected.width || got.height != expected.height ||
        got.pixels.size() != expected.pixels.size())
        return false;
    for (std::size_t i = 0; i < got.pixels.size(); ++i) {
        const std::uint32_t p = got.pixels[i], q = expected.pixels[i];
        // Alpha everywhere, colour wherever something shows.
        if (p >> 24 != q >> 24 || (q >> 24 != 0 && (p & 0xFFFFFFu) != (q & 0xFFFFFFu)))
            return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const icon::PngPicture read = icon::pictureFromPng(std::span<const std::uint8_t>(data, size));
    if (!read.picture)
        return 0;
    const icon::RgbaPicture& picture = *read.picture;
    if (picture.width > icon::kMaxAuthoredSide || picture.height > icon::kMaxAuthoredSide)
        std::abort();
    const std::vector<icon::AuthoredImage> images{{picture, icon::EntryFormat::Bmp},
                                                  {picture, icon::EntryFormat::Png}};
    const std::optional<std::vector<std::uint8_t>> ico = icon::encodeMultiSizeIco(images);
    if (!ico)
        std::abort();
    const std::optional<icon::IcoDirectory> directory = icon::readIcoDirectory(*ico);
    if (!directory || directory->images.size() != 2)
        std::abort();
    for (const icon::IcoImageInfo& info : directory->images) {
        if (!info.usable || info.width != picture.width || info.height != picture.height)
            std::abort();
        const std::optional<icon::RgbaPicture> back = icon::decodeRgbaImage(*ico, info);
        if (!back || !samePixels(icon::unpremultiplied(*back), picture))
            std::abort();
    }
    return 0;
}
