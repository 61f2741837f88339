#pragma once

#include "icon/ByteReader.h"
#include "icon/IconResource.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace icon {

// Where one icon image lies in the container file.
struct ImagePlace {
    std::size_t offset = 0;
    std::size_t size = 0;
};

// How the size of an image is settled. In a PE file a resource's size is exact; in an NE
// file it is rounded up to the alignment unit, and the group's own byte count is the truth.
enum class ImageSize { Resource, GroupClampedToResource };

// Reads the directory of an icon group (the data of an RT_GROUP_ICON resource: a 6-byte
// header and 14-byte entries naming RT_ICON resources by number). `findIcon` says where the
// icon of a number lies, or nothing when there is none; such images are left out. Entries the
// group's data cannot hold are ignored. Nothing when the bytes are not a group directory.
// Groups may share their data, so the entries looked at across a whole file are counted down
// in `entryBudget`; when it runs out the group is refused and the budget left at 0.
std::optional<std::vector<GroupImage>>
readIconGroup(const ByteReader& file, ImagePlace group,
              const std::function<std::optional<ImagePlace>(std::uint16_t)>& findIcon,
              ImageSize sizing, std::size_t& entryBudget);

// Entries a whole file may have looked at before it is refused as absurd.
inline constexpr std::size_t kMaxGroupEntriesInFile = 1u << 20;

} // namespace icon
