#include "icon/PngDecoder.h"

#include "icon/ByteReader.h"
#include "icon/IcoReader.h"

#include <QByteArray>
#include <QImage>

#include <array>

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

std::optional<IconBitmap> decodePngImage(std::span<const std::uint8_t> bytes) {
    const std::optional<PngHeader> header = readPngHeader(bytes);
    if (!header)
        return std::nullopt;
    const QByteArray data = QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                                    static_cast<qsizetype>(bytes.size()));
    QImage image;
    if (!image.loadFromData(data, "PNG") || image.width() != header->width ||
        image.height() != header->height)
        return std::nullopt;
    image = image.convertToFormat(QImage::Format_ARGB32);

    IconBitmap out{Frame(image.width(), image.height(), kBlack),
                   Frame(image.width(), image.height(), kWhite)};
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QRgb p = line[x];
            if (qAlpha(p) >= 128) {
                out.image.set(x, y, rgb(qRed(p), qGreen(p), qBlue(p)));
                out.mask.set(x, y, kBlack);
            }
        }
    }
    return out;
}

} // namespace icon
