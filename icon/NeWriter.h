#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace icon {

// One icon of a library to write: its ICO file, and the name of its group (letters, digits
// and '_', stored upper-case) or an empty name for a group known by its number.
struct LibraryIcon {
    std::string name;
    std::vector<std::uint8_t> ico;
};

// Writes a 16-bit icon library: a DOS stub, an NE header and a resource table holding one
// icon group (RT_GROUP_ICON) per icon, in the given order, and one icon resource (RT_ICON)
// per image, numbered from 1. An unnamed group is numbered by its place in the list (from 1).
// The description is UTF-8, stored as Latin-1. Nothing when an ICO file is malformed, a name is
// not plain ASCII, or the icons do not fit in the format.
std::optional<std::vector<std::uint8_t>> writeNeIconLibrary(const std::vector<LibraryIcon>& icons,
                                                            const std::string& moduleName,
                                                            const std::string& description);

} // namespace icon
