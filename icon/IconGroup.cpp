#include "icon/IconGroup.h"

#include <algorithm>

namespace icon {

namespace {
constexpr std::size_t kGroupHeader = 6;
constexpr std::size_t kGroupEntry = 14;
} // namespace

std::optional<std::vector<GroupImage>>
readIconGroup(const ByteReader& file, ImagePlace group,
              const std::function<std::optional<ImagePlace>(std::uint16_t)>& findIcon,
              ImageSize sizing, std::size_t& entryBudget) {
    if (!file.contains(group.offset, group.size) || group.size < kGroupHeader)
        return std::nullopt;
    const std::size_t base = group.offset;
    if (file.u16(base) != 0)
        return std::nullopt;
    // The count is bounded by what the group's data can hold, so a lying count costs nothing.
    const std::size_t declared = file.u16(base + 4);
    const std::size_t fits = (group.size - kGroupHeader) / kGroupEntry;
    const std::size_t count = std::min(declared, fits);
    if (count > entryBudget) {
        entryBudget = 0;
        return std::nullopt;
    }
    entryBudget -= count;

    std::vector<GroupImage> images;
    images.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t e = base + kGroupHeader + i * kGroupEntry;
        const std::optional<ImagePlace> place = findIcon(file.u16(e + 12));
        if (!place || place->size == 0 || !file.contains(place->offset, place->size))
            continue;
        GroupImage image;
        image.width = file.u8(e);
        image.height = file.u8(e + 1);
        image.colourCount = file.u8(e + 2);
        image.reserved = file.u8(e + 3);
        image.planes = file.u16(e + 4);
        image.bitCount = file.u16(e + 6);
        image.offset = place->offset;
        image.size = place->size;
        const std::size_t groupBytes = file.u32(e + 8);
        if (sizing == ImageSize::GroupClampedToResource && groupBytes > 0)
            image.size = std::min(groupBytes, place->size);
        images.push_back(image);
    }
    return images;
}

} // namespace icon
