#include "icon/IcoAuthoring.h"

#include "icon/ByteWriter.h"
#include "icon/PngDecoder.h"
#include "icon/PngEncoder.h"

#include <algorithm>

namespace icon {

namespace {

constexpr std::size_t kDirectoryHeaderBytes = 6;
constexpr std::size_t kDirectoryEntryBytes = 16;
constexpr std::uint32_t kBitmapHeaderBytes = 40;

bool sideFits(int side) {
    return side >= 1 && side <= kMaxAuthoredSide;
}

// One pixel 0xAARRGGBB, straight; transparent pixels lose their colour.
std::vector<std::uint8_t> bitmapEntry(const RgbaPicture& picture) {
    const std::size_t width = static_cast<std::size_t>(picture.width);
    const std::size_t height = static_cast<std::size_t>(picture.height);
    const std::size_t maskRow = (width + 31) / 32 * 4;
    const std::size_t colourBytes = width * height * 4;
    ByteWriter out;
    out.bytes.reserve(kBitmapHeaderBytes + colourBytes + maskRow * height);
    out.u32(kBitmapHeaderBytes);
    out.u32(static_cast<std::uint32_t>(width));
    out.u32(static_cast<std::uint32_t>(height * 2));
    out.u16(1);  // planes
    out.u16(32); // bits per pixel
    out.u32(0);  // no compression
    out.u32(static_cast<std::uint32_t>(colourBytes + maskRow * height));
    out.u32(0);
    out.u32(0);
    out.u32(0);
    out.u32(0);
    for (std::size_t row = height; row-- > 0;)
        for (std::size_t x = 0; x < width; ++x) {
            const std::uint32_t px = picture.pixels[row * width + x];
            out.u32(px >> 24 == 0 ? 0 : px);
        }
    for (std::size_t row = height; row-- > 0;) {
        const std::size_t start = out.size();
        out.padTo(start + maskRow);
        for (std::size_t x = 0; x < width; ++x)
            if (picture.pixels[row * width + x] >> 24 == 0)
                out.bytes[start + x / 8] |= static_cast<std::uint8_t>(0x80u >> (x % 8));
    }
    return std::move(out.bytes);
}

} // namespace

EntryFormat defaultEntryFormat(int width, int height) {
    return std::max(width, height) == kMaxAuthoredSide ? EntryFormat::Png : EntryFormat::Bmp;
}

PngPicture pictureFromPng(std::span<const std::uint8_t> bytes) {
    PngPicture result;
    if (!isPng(bytes)) {
        result.refusal = PngRefusal::NotPng;
        return result;
    }
    const std::optional<PngHeader> header = readPngHeader(bytes);
    if (!header) {
        result.refusal = PngRefusal::Undecodable;
        return result;
    }
    result.width = header->width;
    result.height = header->height;
    if (!sideFits(header->width) || !sideFits(header->height)) {
        result.refusal = PngRefusal::TooLarge;
        return result;
    }
    const std::optional<PngPixels> png = decodePngRgba(bytes);
    if (!png || png->width != header->width || png->height != header->height) {
        result.refusal = PngRefusal::Undecodable;
        return result;
    }
    RgbaPicture picture;
    picture.width = png->width;
    picture.height = png->height;
    picture.pixels.resize(static_cast<std::size_t>(png->width) *
                          static_cast<std::size_t>(png->height));
    for (std::size_t i = 0; i < picture.pixels.size(); ++i) {
        const std::uint8_t* p = &png->rgba[4 * i];
        picture.pixels[i] =
            std::uint32_t{p[3]} << 24 | std::uint32_t{p[0]} << 16 | std::uint32_t{p[1]} << 8 | p[2];
    }
    result.picture = std::move(picture);
    return result;
}

std::optional<std::vector<std::uint8_t>>
encodeMultiSizeIco(const std::vector<AuthoredImage>& images) {
    if (images.empty() || images.size() > kMaxAuthoredImages)
        return std::nullopt;
    std::vector<std::vector<std::uint8_t>> entries;
    entries.reserve(images.size());
    for (const AuthoredImage& image : images) {
        const RgbaPicture& picture = image.picture;
        if (!sideFits(picture.width) || !sideFits(picture.height) ||
            picture.pixels.size() !=
                static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height))
            return std::nullopt;
        const RgbaPicture straight = unpremultiplied(picture);
        if (image.format == EntryFormat::Png) {
            std::optional<std::vector<std::uint8_t>> png = encodePng(straight);
            if (!png)
                return std::nullopt;
            entries.push_back(std::move(*png));
        } else {
            entries.push_back(bitmapEntry(straight));
        }
    }
    ByteWriter out;
    out.u16(0); // reserved
    out.u16(1); // icon
    out.u16(static_cast<std::uint32_t>(images.size()));
    std::size_t offset = kDirectoryHeaderBytes + kDirectoryEntryBytes * images.size();
    for (std::size_t i = 0; i < images.size(); ++i) {
        const RgbaPicture& picture = images[i].picture;
        out.u8(static_cast<std::uint32_t>(picture.width % 256)); // 256 is written 0
        out.u8(static_cast<std::uint32_t>(picture.height % 256));
        out.u8(0); // no palette
        out.u8(0);
        out.u16(1);  // planes
        out.u16(32); // bits per pixel
        out.u32(static_cast<std::uint32_t>(entries[i].size()));
        out.u32(static_cast<std::uint32_t>(offset));
        offset += entries[i].size();
    }
    for (const std::vector<std::uint8_t>& entry : entries)
        out.append(entry);
    return std::move(out.bytes);
}

} // namespace icon
