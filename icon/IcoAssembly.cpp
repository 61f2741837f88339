#include "icon/IcoAssembly.h"

#include "icon/ByteReader.h"
#include "icon/ByteWriter.h"

#include <algorithm>
#include <utility>

namespace icon {

namespace {

constexpr std::size_t kHeader = 6;
constexpr std::size_t kEntry = 16;

// The images that fit under the limit and the bytes they make with their directory.
std::pair<std::size_t, std::size_t> groupLayout(const std::vector<GroupImage>& images) {
    std::size_t kept = 0;
    std::size_t total = kHeader;
    for (const GroupImage& image : images) {
        if (kept == 65535 || total + kEntry > kMaxAssembledIcoBytes ||
            image.size > kMaxAssembledIcoBytes - total - kEntry)
            break;
        total += kEntry + image.size;
        ++kept;
    }
    return {kept, total};
}

std::vector<std::uint8_t> assembleGroup(std::span<const std::uint8_t> file,
                                        const std::vector<GroupImage>& images) {
    const auto [kept, total] = groupLayout(images);
    std::vector<std::uint8_t> out(total, 0);
    ByteWriter::at16(out, 2, 1);
    ByteWriter::at16(out, 4, static_cast<std::uint32_t>(kept));
    std::size_t dataAt = kHeader + kept * kEntry;
    for (std::size_t i = 0; i < kept; ++i) {
        const GroupImage& image = images[i];
        const std::size_t e = kHeader + i * kEntry;
        out[e] = image.width;
        out[e + 1] = image.height;
        out[e + 2] = image.colourCount;
        out[e + 3] = image.reserved;
        ByteWriter::at16(out, e + 4, image.planes);
        ByteWriter::at16(out, e + 6, image.bitCount);
        ByteWriter::at32(out, e + 8, static_cast<std::uint32_t>(image.size));
        ByteWriter::at32(out, e + 12, static_cast<std::uint32_t>(dataAt));
        const std::span<const std::uint8_t> data = file.subspan(image.offset, image.size);
        std::copy(data.begin(), data.end(), out.begin() + static_cast<std::ptrdiff_t>(dataAt));
        dataAt += image.size;
    }
    return out;
}

// The bit depth an image's own header gives: 32 for a PNG image, biBitCount for a bitmap.
std::uint16_t imageDepth(const ByteReader& r, std::size_t offset) {
    static constexpr std::uint8_t kPng[8] = {0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A};
    const std::span<const std::uint8_t> head = r.slice(offset, 16);
    if (head.empty())
        return 0;
    if (std::equal(head.begin(), head.begin() + 8, kPng))
        return 32;
    return r.u16(offset + 14);
}

} // namespace

std::size_t keptImages(const std::vector<GroupImage>& images) {
    return groupLayout(images).first;
}

std::size_t assembledSize(std::span<const std::uint8_t> file, const IconResource& icon) {
    const ByteReader r(file);
    if (icon.form == IconResource::Form::Embedded)
        return r.contains(icon.offset, icon.size) ? icon.size : 0;
    for (const GroupImage& image : icon.images)
        if (!r.contains(image.offset, image.size))
            return 0;
    return groupLayout(icon.images).second;
}

std::vector<std::uint8_t> cursorAsIcon(std::span<const std::uint8_t> bytes) {
    std::vector<std::uint8_t> out(bytes.begin(), bytes.end());
    const ByteReader r(bytes);
    if (r.u16(0) != 0 || r.u16(2) != 2 || r.failed())
        return out;
    const std::size_t count = r.u16(4);
    if (!r.contains(kHeader, count * kEntry))
        return out;
    ByteWriter::at16(out, 2, 1);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t e = kHeader + i * kEntry;
        ByteWriter::at16(out, e + 4, 1);
        ByteWriter::at16(out, e + 6, imageDepth(r, r.u32(e + 12)));
    }
    return out;
}

std::vector<std::uint8_t> assembleIco(std::span<const std::uint8_t> file,
                                      const IconResource& icon) {
    const ByteReader r(file);
    if (icon.form == IconResource::Form::Embedded) {
        const std::span<const std::uint8_t> embedded = r.slice(icon.offset, icon.size);
        return cursorAsIcon(embedded);
    }
    for (const GroupImage& image : icon.images)
        if (!r.contains(image.offset, image.size))
            return {};
    return assembleGroup(file, icon.images);
}

} // namespace icon
