#include "icon/IcoReader.h"

#include "icon/BmpDecoder.h"
#include "icon/ByteReader.h"
#include "icon/PngDecoder.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <tuple>

namespace icon {

namespace {

constexpr std::size_t kHeaderBytes = 6;
constexpr std::size_t kEntryBytes = 16;
constexpr int kTypeIcon = 1;
constexpr int kTypeCursor = 2;
constexpr int kMaxIconSide = kMaxPngSide;
constexpr std::size_t kMaxDecodeAttempts = 4;

// The bytes of an image: from its offset to the end of the file. The directory's byte count is
// often wrong (too small, or huge), so each image's own header says how much it needs.
std::span<const std::uint8_t> imageBytes(std::span<const std::uint8_t> file, std::uint32_t offset) {
    return ByteReader(file).sliceClamped(offset, std::numeric_limits<std::size_t>::max());
}

// Fills in what the image's own header says; the directory's values stay where it says nothing.
void readImageHeader(std::span<const std::uint8_t> file, IcoImageInfo& info) {
    const std::span<const std::uint8_t> data = imageBytes(file, info.offset);
    if (isPng(data)) {
        info.format = ImageFormat::Png;
        if (const std::optional<PngHeader> png = readPngHeader(data)) {
            info.width = png->width;
            info.height = png->height;
            info.bitDepth = png->bitDepth;
            info.usable = true;
        }
        return;
    }
    if (const std::optional<DibLayout> dib =
            readDibLayout(data, info.directoryWidth, info.directoryHeight)) {
        info.width = dib->width;
        info.height = dib->height;
        info.bitDepth = dib->bitCount;
        info.usable = true;
    }
}

} // namespace

std::optional<IcoDirectory> readIcoDirectory(std::span<const std::uint8_t> bytes) {
    const ByteReader reader(bytes);
    if (bytes.size() < kHeaderBytes)
        return std::nullopt;
    const int reserved = reader.u16(0);
    const int type = reader.u16(2);
    const std::size_t count = reader.u16(4);
    if (reserved != 0 || (type != kTypeIcon && type != kTypeCursor) || count == 0)
        return std::nullopt;
    // Every entry of the directory must be there: the count is bounded by the file size.
    if (count > (bytes.size() - kHeaderBytes) / kEntryBytes)
        return std::nullopt;

    IcoDirectory directory;
    directory.type = type;
    directory.images.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t entry = kHeaderBytes + i * kEntryBytes;
        IcoImageInfo info;
        info.directoryWidth = reader.u8(entry) == 0 ? 256 : reader.u8(entry);
        info.directoryHeight = reader.u8(entry + 1) == 0 ? 256 : reader.u8(entry + 1);
        info.directoryBitCount = type == kTypeIcon ? reader.u16(entry + 6) : 0;
        if (type == kTypeCursor) {
            info.hotspotX = reader.u16(entry + 4);
            info.hotspotY = reader.u16(entry + 6);
        }
        info.size = reader.u32(entry + 8);
        info.offset = reader.u32(entry + 12);
        info.width = info.directoryWidth;
        info.height = info.directoryHeight;
        info.bitDepth = info.directoryBitCount;
        readImageHeader(bytes, info);
        directory.images.push_back(info);
    }
    if (reader.failed())
        return std::nullopt;
    return directory;
}

IcoImageInfo describeImage(std::span<const std::uint8_t> image, int directoryWidth,
                           int directoryHeight, int directoryBitCount) {
    IcoImageInfo info;
    info.directoryWidth = directoryWidth == 0 ? 256 : directoryWidth;
    info.directoryHeight = directoryHeight == 0 ? 256 : directoryHeight;
    info.directoryBitCount = directoryBitCount;
    info.size = static_cast<std::uint32_t>(std::min<std::size_t>(image.size(), UINT32_MAX));
    info.width = info.directoryWidth;
    info.height = info.directoryHeight;
    info.bitDepth = directoryBitCount;
    readImageHeader(image, info);
    return info;
}

std::optional<IconBitmap> decodeImage(std::span<const std::uint8_t> bytes, const IcoImageInfo& info,
                                      int outputWidth, int outputHeight) {
    const std::span<const std::uint8_t> data = imageBytes(bytes, info.offset);
    if (isPng(data))
        return decodePngImage(data, outputWidth, outputHeight);
    return decodeIconDib(data, info.directoryWidth, info.directoryHeight, outputWidth,
                         outputHeight);
}

std::vector<int> rankImages(const IcoDirectory& directory, int size) {
    std::vector<int> ranked;
    for (std::size_t i = 0; i < directory.images.size(); ++i)
        if (directory.images[i].usable)
            ranked.push_back(static_cast<int>(i));
    // Exact size first, deepest first among those; then the nearest, the larger on a tie (a
    // picture shrunk by dropping pixels keeps more of itself than one blown up), the deeper.
    const auto key = [&](int i) {
        const IcoImageInfo& im = directory.images[static_cast<std::size_t>(i)];
        const bool exact = im.width == size && im.height == size;
        const int distance = std::abs(im.width - size) + std::abs(im.height - size);
        return std::make_tuple(!exact, distance, -im.width * im.height, -im.bitDepth, i);
    };
    std::sort(ranked.begin(), ranked.end(), [&](int a, int b) { return key(a) < key(b); });
    return ranked;
}

int chooseImage(const IcoDirectory& directory, int size) {
    const std::vector<int> ranked = rankImages(directory, size);
    return ranked.empty() ? -1 : ranked.front();
}

std::optional<ChosenImage> decodeChosenImage(std::span<const std::uint8_t> bytes,
                                             const IcoDirectory& directory, int size) {
    if (size < 1 || size > kMaxIconSide)
        return std::nullopt;
    // A file may point many entries at one broken image: each image is tried once, and only
    // the first few candidates, so that no file can make the reader spin.
    std::vector<std::uint32_t> tried;
    for (int index : rankImages(directory, size)) {
        const IcoImageInfo& info = directory.images[static_cast<std::size_t>(index)];
        if (std::find(tried.begin(), tried.end(), info.offset) != tried.end())
            continue;
        if (tried.size() == kMaxDecodeAttempts)
            break;
        tried.push_back(info.offset);
        if (std::optional<IconBitmap> image = decodeImage(bytes, info, size, size))
            return ChosenImage{index, std::move(*image)};
    }
    return std::nullopt;
}

std::optional<IconBitmap> decodeIcon(std::span<const std::uint8_t> bytes, int size) {
    const std::optional<IcoDirectory> directory = readIcoDirectory(bytes);
    if (!directory)
        return std::nullopt;
    std::optional<ChosenImage> chosen = decodeChosenImage(bytes, *directory, size);
    if (!chosen)
        return std::nullopt;
    return std::move(chosen->bitmap);
}

std::optional<IconPlanes> decodeIconPlanes(std::span<const std::uint8_t> bytes) {
    const std::optional<IconBitmap> icon = decodeIcon(bytes, kIconSize);
    if (!icon)
        return std::nullopt;
    return toPlanes(*icon);
}

std::optional<int> readHeaderCount(std::span<const std::uint8_t> bytes) {
    const ByteReader reader(bytes);
    if (!reader.contains(0, kHeaderBytes))
        return std::nullopt;
    return reader.i16(4);
}

bool isLoadablePicture(std::span<const std::uint8_t> bytes) {
    if (decodeIcon(bytes, kIconSize))
        return true;
    if (isPng(bytes))
        return decodePngImage(bytes, 1, 1).has_value();
    const ByteReader r(bytes);
    const std::uint32_t dibHeader = r.u32(14);
    const bool bmp = r.u8(0) == 'B' && r.u8(1) == 'M' && !r.failed() &&
                     (dibHeader == 12 || dibHeader == 40 || dibHeader == 52 || dibHeader == 56 ||
                      dibHeader == 108 || dibHeader == 124);
    const bool jpeg = r.u8(0) == 0xFF && r.u8(1) == 0xD8 && r.u8(2) == 0xFF && !r.failed();
    const bool gif = r.u32(0) == 0x38464947 && (r.u16(4) == 0x6137 || r.u16(4) == 0x6139) &&
                     !r.failed(); // "GIF87a", "GIF89a"
    return bmp || jpeg || gif;
}

} // namespace icon
