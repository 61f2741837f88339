#include "icon/PngDecoder.h"

#include "icon/ByteReader.h"
#include "icon/IcoReader.h"

#include <spng.h>

#include <array>
#include <cstring>
#include <memory>
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
// checked to lie whole inside the bytes. Text, gamma, colour profiles and private chunks are left
// out: the pixels are taken as stored, and a damaged length there must not make the decoder
// reserve memory for data that is not in the file. Nothing when a chunk runs past the end or IEND is missing.
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

// A PNG ready to decode: the chunks that hold its pixels, read by a decoder whose header
// agrees with the one read first. Kept together because the decoder reads the chunks in place.
struct PngStream {
    std::vector<std::uint8_t> chunks;
    std::unique_ptr<spng_ctx, void (*)(spng_ctx*)> context{nullptr, spng_ctx_free};
    spng_ihdr ihdr{};
};

std::unique_ptr<PngStream> openPng(std::span<const std::uint8_t> bytes, const PngHeader& header) {
    std::optional<std::vector<std::uint8_t>> chunks = essentialChunks(bytes);
    if (!chunks)
        return nullptr;
    auto stream = std::make_unique<PngStream>();
    stream->chunks = std::move(*chunks);
    stream->context.reset(spng_ctx_new(SPNG_CTX_IGNORE_ADLER32));
    spng_ctx* const context = stream->context.get();
    if (!context ||
        spng_set_png_buffer(context, stream->chunks.data(), stream->chunks.size()) != 0 ||
        spng_set_image_limits(context, kMaxPngSide, kMaxPngSide) != 0 ||
        spng_get_ihdr(context, &stream->ihdr) != 0 ||
        stream->ihdr.width != std::uint32_t(header.width) ||
        stream->ihdr.height != std::uint32_t(header.height))
        return nullptr;
    return stream;
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
    const std::unique_ptr<PngStream> stream = openPng(bytes, *header);
    if (!stream)
        return std::nullopt;
    spng_ctx* const context = stream->context.get();
    const spng_ihdr& ihdr = stream->ihdr;
    // Sixteen-bit channels are rounded to eight (v / 257), not cut.
    const bool wide = ihdr.bit_depth == 16;
    const int format = wide ? SPNG_FMT_RGBA16 : SPNG_FMT_RGBA8;
    std::size_t size = 0;
    if (spng_decoded_image_size(context, format, &size) != 0)
        return std::nullopt;
    std::vector<std::uint8_t> pixels(size);
    if (spng_decode_image(context, pixels.data(), pixels.size(), format, SPNG_DECODE_TRNS) !=
        0)
        return std::nullopt;

    const int sourceWidth = header->width;
    const int sourceHeight = header->height;
    const int width = outputWidth > 0 ? outputWidth : sourceWidth;
    const int height = outputHeight > 0 ? outputHeight : sourceHeight;
    const std::size_t channelBytes = wide ? 2 : 1;
    const std::size_t rowBytes = static_cast<std::size_t>(sourceWidth) * 4 * channelBytes;
    const auto channel = [&](const std::uint8_t* p, int c) -> int {
        if (!wide)
            return p[c];
        std::uint16_t v = 0;
        std::memcpy(&v, p + 2 * c, 2); // the decoder gives host order
        return (v + 128 - ((v + 128) >> 8)) >> 8;
    };
    IconBitmap out{Frame(width, height, kBlack), Frame(width, height, kWhite)};
    for (int y = 0; y < height; ++y) {
        const int sy = static_cast<int>(static_cast<long long>(y) * sourceHeight / height);
        const std::uint8_t* line = pixels.data() + static_cast<std::size_t>(sy) * rowBytes;
        for (int x = 0; x < width; ++x) {
            const int sx = static_cast<int>(static_cast<long long>(x) * sourceWidth / width);
            const std::uint8_t* p = line + static_cast<std::size_t>(sx) * 4 * channelBytes;
            if (channel(p, 3) >= 128) {
                out.image.set(x, y, rgb(channel(p, 0), channel(p, 1), channel(p, 2)));
                out.mask.set(x, y, kBlack);
            }
        }
    }
    return out;
}

std::optional<PngPixels> decodePngRgba(std::span<const std::uint8_t> bytes) {
    const std::optional<PngHeader> header = readPngHeader(bytes);
    if (!header)
        return std::nullopt;
    const std::unique_ptr<PngStream> stream = openPng(bytes, *header);
    if (!stream)
        return std::nullopt;
    spng_ctx* const context = stream->context.get();
    std::size_t size = 0;
    if (spng_decoded_image_size(context, SPNG_FMT_RGBA8, &size) != 0 ||
        size != std::size_t(header->width) * std::size_t(header->height) * 4)
        return std::nullopt;
    PngPixels out{header->width, header->height, std::vector<std::uint8_t>(size)};
    if (spng_decode_image(context, out.rgba.data(), out.rgba.size(), SPNG_FMT_RGBA8,
                          SPNG_DECODE_TRNS) != 0)
        return std::nullopt;
    return out;
}

} // namespace icon
