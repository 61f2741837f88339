#include "icon/NeReader.h"

#include "icon/ByteReader.h"
#include "icon/IconGroup.h"
#include "icon/Text.h"

#include <algorithm>
#include <map>

namespace icon {

namespace {

constexpr std::size_t kNeHeaderSize = 64;
constexpr std::size_t kTypeInfoSize = 8;
constexpr std::size_t kNameInfoSize = 12;
constexpr std::uint8_t kTargetOs2 = 1;

struct NeResource {
    std::uint16_t id = 0; // with the high bit when numbered, else the name's offset
    ImagePlace place;
};

// A name of the resource table: a length byte and that many characters.
std::string tableName(const ByteReader& r, std::size_t at) {
    const std::size_t length = r.u8(at);
    // The ANSI code page of those days; Latin-1 is near enough.
    return utf8FromLatin1(r.sliceClamped(at + 1, length));
}

// Lengths are counted in alignment units, so the last resource may claim padding the file
// does not have.
ImagePlace clampedPlace(const ByteReader& r, std::size_t offset, std::size_t length) {
    if (offset >= r.size())
        return {offset, 0};
    return {offset, std::min(length, r.size() - offset)};
}

} // namespace

std::optional<std::vector<IconResource>> readNeIcons(std::span<const std::uint8_t> bytes) {
    const ByteReader r(bytes);
    if (r.u16(0) != 0x5A4D) // "MZ"
        return std::nullopt;
    const std::size_t ne = r.u32(0x3C);
    if (!r.contains(ne, kNeHeaderSize) || r.u16(ne) != 0x454E) // "NE"
        return std::nullopt;
    const std::size_t table = ne + r.u16(ne + 0x24);
    const std::size_t residentNames = ne + r.u16(ne + 0x26);
    std::vector<IconResource> icons;
    // OS/2 modules keep resources as segments, and a table that ends where it starts is none.
    if (r.u8(ne + 0x36) == kTargetOs2 || table == residentNames)
        return icons;

    const int shift = r.u16(table);
    if (r.failed() || shift > kMaxNeAlignmentShift)
        return std::nullopt;
    std::vector<NeResource> groups;
    std::map<std::uint16_t, ImagePlace> iconsById;
    std::size_t at = table + 2;
    for (;;) {
        const std::uint16_t type = r.u16(at);
        if (type == 0)
            break;
        const std::size_t count = r.u16(at + 2);
        at += kTypeInfoSize;
        // Every type record and its entries must lie in the file: the walk cannot run long.
        if (r.failed() || !r.contains(at, count * kNameInfoSize))
            return std::nullopt;
        for (std::size_t i = 0; i < count; ++i, at += kNameInfoSize) {
            const NeResource res{r.u16(at + 6), clampedPlace(r, std::size_t{r.u16(at)} << shift,
                                                             std::size_t{r.u16(at + 2)} << shift)};
            if (type == kNeGroupIcon && groups.size() == kMaxIconsInFile)
                return std::nullopt;
            if (type == kNeGroupIcon)
                groups.push_back(res);
            else if (type == kNeIcon && (res.id & 0x8000) != 0)
                iconsById.try_emplace(static_cast<std::uint16_t>(res.id & 0x7FFF), res.place);
        }
    }
    if (r.failed())
        return std::nullopt;

    const auto findIcon = [&](std::uint16_t number) -> std::optional<ImagePlace> {
        const auto it = iconsById.find(number);
        if (it == iconsById.end())
            return std::nullopt;
        return it->second;
    };
    std::size_t entryBudget = kMaxGroupEntriesInFile;
    for (const NeResource& group : groups) {
        IconResource icon;
        if ((group.id & 0x8000) != 0)
            icon.id = group.id & 0x7FFF;
        else
            icon.name = tableName(r, table + group.id);
        auto images =
            readIconGroup(r, group.place, findIcon, ImageSize::GroupClampedToResource, entryBudget);
        if (images)
            icon.images = std::move(*images);
        else if (entryBudget == 0)
            return std::nullopt;
        icons.push_back(std::move(icon));
    }
    return icons;
}

} // namespace icon
