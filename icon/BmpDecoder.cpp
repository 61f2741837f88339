#include "icon/BmpDecoder.h"

#include "icon/ByteReader.h"
#include "icon/IcoReader.h"

#include <bit>
#include <cstdlib>
#include <vector>

namespace icon {

namespace {

constexpr std::size_t kCoreHeaderSize = 12; // the old OS/2-style header, 16-bit sizes
constexpr std::size_t kInfoHeaderSize = 40;

bool validBitCount(int bits) {
    return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
}

// One colour channel of a 16- or 32-bit pixel, described by its bit mask.
struct Channel {
    std::uint32_t mask = 0;
    int shift = 0;
    std::uint32_t max = 0;

    explicit Channel(std::uint32_t m)
        : mask(m)
        , shift(m ? std::countr_zero(m) : 0)
        , max(m ? m >> shift : 0) {}

    std::uint32_t raw(std::uint32_t pixel) const { return (pixel & mask) >> shift; }
    int scaled(std::uint32_t pixel) const {
        if (max == 0)
            return 0;
        if (max == 255)
            return static_cast<int>(raw(pixel));
        return static_cast<int>(static_cast<std::uint64_t>(raw(pixel)) * 255u / max);
    }
};

// The colours and alpha values of one row of colour data.
struct RowDecoder {
    const DibLayout& layout;
    const std::array<Colour, 256>& palette;
    Channel red, green, blue, alpha;

    RowDecoder(const DibLayout& l, const std::array<Colour, 256>& p)
        : layout(l)
        , palette(p)
        , red(l.masks[0])
        , green(l.masks[1])
        , blue(l.masks[2])
        , alpha(l.masks[3]) {}

    void decode(std::span<const std::uint8_t> row, std::vector<Colour>& colours,
                std::vector<std::uint32_t>& alphas) const {
        const std::size_t width = colours.size();
        switch (layout.bitCount) {
        case 1:
            for (std::size_t x = 0; x < width; ++x)
                colours[x] = palette[(row[x / 8] >> (7 - x % 8)) & 1u];
            break;
        case 4:
            for (std::size_t x = 0; x < width; ++x)
                colours[x] = palette[(row[x / 2] >> (x % 2 == 0 ? 4 : 0)) & 0x0Fu];
            break;
        case 8:
            for (std::size_t x = 0; x < width; ++x)
                colours[x] = palette[row[x]];
            break;
        case 16:
            for (std::size_t x = 0; x < width; ++x) {
                const std::uint32_t px =
                    row[2 * x] | (static_cast<std::uint32_t>(row[2 * x + 1]) << 8);
                colours[x] = rgb(red.scaled(px), green.scaled(px), blue.scaled(px));
                alphas[x] = alpha.raw(px);
            }
            break;
        case 24:
            for (std::size_t x = 0; x < width; ++x)
                colours[x] = rgb(row[3 * x + 2], row[3 * x + 1], row[3 * x]);
            break;
        case 32:
            if (layout.compression == kBiRgb) {
                for (std::size_t x = 0; x < width; ++x) {
                    colours[x] = rgb(row[4 * x + 2], row[4 * x + 1], row[4 * x]);
                    alphas[x] = row[4 * x + 3];
                }
            } else {
                for (std::size_t x = 0; x < width; ++x) {
                    const std::uint32_t px = row[4 * x] | (std::uint32_t{row[4 * x + 1]} << 8) |
                                             (std::uint32_t{row[4 * x + 2]} << 16) |
                                             (std::uint32_t{row[4 * x + 3]} << 24);
                    colours[x] = rgb(red.scaled(px), green.scaled(px), blue.scaled(px));
                    alphas[x] = alpha.raw(px);
                }
            }
            break;
        default:
            break;
        }
    }
};

// True when some pixel has a non-zero alpha value.
bool hasAlpha(std::span<const std::uint8_t> dib, const DibLayout& l) {
    if (l.masks[3] == 0 || (l.bitCount != 32 && l.bitCount != 16))
        return false;
    const std::size_t bytesPerPixel = static_cast<std::size_t>(l.bitCount) / 8;
    for (std::size_t row = 0; row < static_cast<std::size_t>(l.height); ++row) {
        const std::span<const std::uint8_t> pixels =
            dib.subspan(l.pixelOffset + row * l.rowBytes, l.rowBytes);
        for (std::size_t x = 0; x < static_cast<std::size_t>(l.width); ++x) {
            std::uint32_t px = 0;
            for (std::size_t b = bytesPerPixel; b-- > 0;)
                px = px << 8 | pixels[x * bytesPerPixel + b];
            if ((px & l.masks[3]) != 0)
                return true;
        }
    }
    return false;
}

} // namespace

std::optional<DibLayout> readDibLayout(std::span<const std::uint8_t> dib, int fallbackWidth,
                                       int fallbackHeight) {
    const ByteReader reader(dib);
    DibLayout l;
    l.headerSize = reader.u32(0);
    std::int64_t width = 0, height = 0;
    std::uint32_t coloursUsed = 0;
    if (l.headerSize == kCoreHeaderSize) {
        width = reader.u16(4);
        height = reader.u16(6);
        l.bitCount = reader.u16(10);
        l.paletteEntryBytes = 3;
    } else if (l.headerSize >= kInfoHeaderSize && reader.contains(0, l.headerSize)) {
        width = reader.i32(4);
        height = reader.i32(8);
        l.bitCount = reader.u16(14);
        l.compression = reader.u32(16);
        coloursUsed = reader.u32(32);
    } else {
        return std::nullopt;
    }
    if (reader.failed() || width < 0)
        return std::nullopt;

    // The header's height counts the colour rows and the mask rows; negative means top-down.
    l.topDown = height < 0;
    height = std::llabs(height) / 2;
    l.width = width == 0 ? fallbackWidth : static_cast<int>(width);
    l.height = height == 0 ? fallbackHeight : static_cast<int>(height);
    if (width > kMaxBmpSide || l.width < 1 || l.width > kMaxBmpSide || l.height < 1 ||
        l.height > kMaxBmpSide)
        return std::nullopt;
    if (!validBitCount(l.bitCount))
        return std::nullopt;

    std::size_t afterHeader = l.headerSize;
    if (l.compression == kBiBitfields || l.compression == kBiAlphaBitfields) {
        if (l.bitCount != 16 && l.bitCount != 32)
            return std::nullopt;
        // The masks sit in the larger headers, or right after the 40-byte one.
        const std::size_t maskCount = l.compression == kBiAlphaBitfields ? 4 : 3;
        if (l.headerSize < kInfoHeaderSize + 4 * maskCount)
            afterHeader = kInfoHeaderSize + 4 * maskCount;
        for (std::size_t i = 0; i < maskCount; ++i)
            l.masks[i] = reader.u32(kInfoHeaderSize + 4 * i);
        if (maskCount == 3 && l.headerSize >= kInfoHeaderSize + 16)
            l.masks[3] = reader.u32(kInfoHeaderSize + 12);
        // A 40-byte header cannot say where alpha is: icons keep it in the top byte.
        if (maskCount == 3 && l.headerSize < kInfoHeaderSize + 16 && l.bitCount == 32 &&
            ((l.masks[0] | l.masks[1] | l.masks[2]) & 0xFF000000u) == 0)
            l.masks[3] = 0xFF000000u;
        if (reader.failed())
            return std::nullopt;
    } else if (l.compression != kBiRgb) {
        return std::nullopt; // run-length and embedded JPEG/PNG bitmaps are not icon data
    } else if (l.bitCount == 16) {
        l.masks = {0x7C00u, 0x03E0u, 0x001Fu, 0u};
    } else if (l.bitCount == 32) {
        l.masks = {0xFF0000u, 0xFF00u, 0xFFu, 0xFF000000u};
    }

    // A colour count of 0 means the full table for 1, 4 and 8 bits; deeper images may carry an
    // optional table that is skipped.
    if (coloursUsed > static_cast<std::uint32_t>(kMaxPaletteSize))
        return std::nullopt;
    l.paletteEntries = coloursUsed != 0 ? coloursUsed : (l.bitCount <= 8 ? 1u << l.bitCount : 0u);
    l.paletteOffset = afterHeader;
    l.pixelOffset = afterHeader + l.paletteEntries * l.paletteEntryBytes;
    l.rowBytes =
        (static_cast<std::size_t>(l.width) * static_cast<std::size_t>(l.bitCount) + 31) / 32 * 4;
    l.maskRowBytes = (static_cast<std::size_t>(l.width) + 31) / 32 * 4;
    if (!reader.contains(l.pixelOffset, l.rowBytes * static_cast<std::size_t>(l.height)))
        return std::nullopt;
    return l;
}

std::optional<IconBitmap> decodeIconDib(std::span<const std::uint8_t> dib, int fallbackWidth,
                                        int fallbackHeight, int outputWidth, int outputHeight) {
    if (outputWidth > kMaxPngSide || outputHeight > kMaxPngSide)
        return std::nullopt;
    const std::optional<DibLayout> layout = readDibLayout(dib, fallbackWidth, fallbackHeight);
    if (!layout)
        return std::nullopt;
    const DibLayout& l = *layout;
    const ByteReader reader(dib);

    // Indexes past the end of a short table read black.
    std::array<Colour, 256> palette{};
    if (l.bitCount <= 8) {
        const std::size_t used = std::min<std::size_t>(l.paletteEntries, palette.size());
        for (std::size_t i = 0; i < used; ++i) {
            const std::size_t at = l.paletteOffset + i * l.paletteEntryBytes;
            palette[i] = rgb(reader.u8(at + 2), reader.u8(at + 1), reader.u8(at));
        }
    }

    const std::size_t width = static_cast<std::size_t>(l.width);
    const std::size_t height = static_cast<std::size_t>(l.height);
    const std::size_t outWidth = outputWidth > 0 ? static_cast<std::size_t>(outputWidth) : width;
    const std::size_t outHeight =
        outputHeight > 0 ? static_cast<std::size_t>(outputHeight) : height;
    const RowDecoder decoder(l, palette);
    std::vector<Colour> colours(width);
    std::vector<std::uint32_t> alphas(width, 0);

    // Modern icons keep transparency in the alpha channel, often with an empty AND mask. Icons
    // written before alpha existed leave those bytes at zero, and then the mask decides.
    const bool alphaDecides = hasAlpha(dib, l);
    const Channel alpha(l.masks[3]);
    const std::uint32_t alphaHalf = (alpha.max + 1) / 2; // 128 for 8-bit alpha

    // Output pixel (x, y) takes source pixel (x·width/outWidth, y·height/outHeight): pixels are
    // dropped or repeated, never blended, and only the rows used are decoded.
    const std::size_t maskStart = l.pixelOffset + l.rowBytes * height;
    IconBitmap out{Frame(static_cast<int>(outWidth), static_cast<int>(outHeight), kBlack),
                   Frame(static_cast<int>(outWidth), static_cast<int>(outHeight), kWhite)};
    std::vector<std::size_t> sourceColumn(outWidth);
    for (std::size_t x = 0; x < outWidth; ++x)
        sourceColumn[x] = x * width / outWidth;
    std::size_t decodedRow = height; // none yet
    for (std::size_t y = 0; y < outHeight; ++y) {
        const std::size_t sy = y * height / outHeight;
        const std::size_t source = l.topDown ? sy : height - 1 - sy;
        if (source != decodedRow) {
            decoder.decode(dib.subspan(l.pixelOffset + source * l.rowBytes, l.rowBytes), colours,
                           alphas);
            decodedRow = source;
        }
        const std::span<const std::uint8_t> maskRow =
            reader.sliceClamped(maskStart + source * l.maskRowBytes, l.maskRowBytes);
        for (std::size_t x = 0; x < outWidth; ++x) {
            const std::size_t sx = sourceColumn[x];
            const int ox = static_cast<int>(x), oy = static_cast<int>(y);
            if (alphaDecides) {
                // The mask is made from the alpha: what is see-through has no colour of its own.
                if (alphas[sx] >= alphaHalf) {
                    out.image.set(ox, oy, colours[sx]);
                    out.mask.set(ox, oy, kBlack);
                }
                continue;
            }
            // With an AND mask the colour is the XOR image, under transparent pixels too: a
            // pixel with a colour there inverts what lies behind the icon.
            out.image.set(ox, oy, colours[sx]);
            if (!(sx / 8 < maskRow.size() && ((maskRow[sx / 8] >> (7 - sx % 8)) & 1u)))
                out.mask.set(ox, oy, kBlack);
        }
    }
    return out;
}

} // namespace icon
