#include "icon/PngDecoder.h"

#include "icon/ByteReader.h"
#include "icon/IcoReader.h"

#include <QByteArray>
#include <QImage>

#include <array>
#include <vector>

namespace icon {

namespace {

constexpr std::array<std::uint8_t, 8> kSignature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};

// PNG numbers are big-endian.
std::uint32_t bigEndian32(const ByteReader& reader, std::size_t offset) {
    return (std::uint32_t{reader.u8(offset)} << 24) | (std::uint32_t{reader.u8(offset + 1)} << 16) |
           (std::uint32_t{reader.u8(offset + 2)} << 8) | std::uint32_t{reader.u8(offset + 3)};
}

int channelsOf(int colourType) {
    switch (colourType) {
    case 0: // grey
    case 3: // palette
        return 1;
    case 4: // grey and alpha
        return 2;
    case 2: // RGB
        return 3;
    case 6: // RGBA
        return 4;
    default:
        return 0;
    }
}

bool chunkIs(std::span<const std::uint8_t> type, const char* name) {
    for (std::size_t i = 0; i < 4; ++i)
        if (type[i] != static_cast<std::uint8_t>(name[i]))
            return false;
    return true;
}

// The PNG rebuilt from the chunks that make its pixels (IHDR, PLTE, tRNS, IDAT, IEND), each
// checked to lie whole inside the bytes. Text, colour profiles and private chunks are left out:
// Qt's reader would only read them, and a damaged length there makes libpng reserve memory for
// data that is not in the file. Nothing when a chunk runs past the end or IEND is missing.
std::optional<std::vector<std::uint8_t>> essentialChunks(std::span<const std::uint8_t> bytes) {
    const ByteReader reader(bytes);
    std::vector<std::uint8_t> out(kSignature.begin(), kSignature.end());
    std::size_t at = kSignature.size();
    while (reader.contains(at, 12)) {
        const std::size_t length = bigEndian32(reader, at);
        if (!reader.contains(at + 12, length))
            return std::nullopt;
        const std::span<const std::uint8_t> type = reader.slice(at + 4, 4);
        const std::span<const std::uint8_t> chunk = reader.slice(at, 12 + length);
        if (chunkIs(type, "IHDR") || chunkIs(type, "PLTE") || chunkIs(type, "tRNS") ||
            chunkIs(type, "IDAT") || chunkIs(type, "IEND"))
            out.insert(out.end(), chunk.begin(), chunk.end());
        if (chunkIs(type, "IEND"))
            return out;
        at += 12 + length;
    }
    return std::nullopt;
}

} // namespace

bool isPng(std::span<const std::uint8_t> bytes) {
    if (bytes.size() < kSignature.size())
        return false;
    for (std::size_t i = 0; i < kSignature.size(); ++i)
        if (bytes[i] != kSignature[i])
            return false;
    return true;
}

std::optional<PngHeader> readPngHeader(std::span<const std::uint8_t> bytes) {
    if (!isPng(bytes))
        return std::nullopt;
    const ByteReader reader(bytes);
    // Signature, then the IHDR chunk: length, "IHDR", width, height, bit depth, colour type.
    if (reader.u8(12) != 'I' || reader.u8(13) != 'H' || reader.u8(14) != 'D' ||
        reader.u8(15) != 'R')
        return std::nullopt;
    const std::uint32_t width = bigEndian32(reader, 16);
    const std::uint32_t height = bigEndian32(reader, 20);
    const int depth = reader.u8(24);
    const int channels = channelsOf(reader.u8(25));
    if (reader.failed() || width < 1 || height < 1 || width > kMaxPngSide || height > kMaxPngSide ||
        channels == 0)
        return std::nullopt;
    return PngHeader{static_cast<int>(width), static_cast<int>(height), depth * channels};
}

std::optional<IconBitmap> decodePngImage(std::span<const std::uint8_t> bytes, int outputWidth,
                                         int outputHeight) {
    const std::optional<PngHeader> header = readPngHeader(bytes);
    if (!header || outputWidth > kMaxPngSide || outputHeight > kMaxPngSide)
        return std::nullopt;
    const std::optional<std::vector<std::uint8_t>> png = essentialChunks(bytes);
    if (!png)
        return std::nullopt;
    const QByteArray data = QByteArray::fromRawData(reinterpret_cast<const char*>(png->data()),
                                                    static_cast<qsizetype>(png->size()));
    QImage image;
    if (!image.loadFromData(data, "PNG") || image.width() != header->width ||
        image.height() != header->height)
        return std::nullopt;
    const int width = outputWidth > 0 ? outputWidth : image.width();
    const int height = outputHeight > 0 ? outputHeight : image.height();
    // Straight 32-bit pixels are read in place; other formats (palette, grey, 16 bits) are
    // converted whole when every pixel is kept, read one by one when most are dropped.
    const bool direct =
        image.format() == QImage::Format_ARGB32 || image.format() == QImage::Format_RGB32;
    if (!direct && width * height >= image.width() * image.height() / 4)
        image = image.convertToFormat(QImage::Format_ARGB32);
    const bool converted =
        image.format() == QImage::Format_ARGB32 || image.format() == QImage::Format_RGB32;

    IconBitmap out{Frame(width, height, kBlack), Frame(width, height, kWhite)};
    for (int y = 0; y < height; ++y) {
        const int sy = static_cast<int>(static_cast<long long>(y) * image.height() / height);
        const auto* line =
            converted ? reinterpret_cast<const QRgb*>(image.constScanLine(sy)) : nullptr;
        for (int x = 0; x < width; ++x) {
            const int sx = static_cast<int>(static_cast<long long>(x) * image.width() / width);
            const QRgb p = converted ? line[sx] : image.pixel(sx, sy);
            if (qAlpha(p) >= 128) {
                out.image.set(x, y, rgb(qRed(p), qGreen(p), qBlue(p)));
                out.mask.set(x, y, kBlack);
            }
        }
    }
    return out;
}

} // namespace icon
