#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace icon {

// More icons than this in one file is no real file: the readers stop there or refuse it.
inline constexpr std::size_t kMaxIconsInFile = 65536;

// One image of an icon group: the directory fields the group gives it and where its data
// lies in the container file.
struct GroupImage {
    std::uint8_t width = 0; // 0 means 256
    std::uint8_t height = 0;
    std::uint8_t colourCount = 0;
    std::uint8_t reserved = 0;
    std::uint16_t planes = 0;
    std::uint16_t bitCount = 0;
    std::size_t offset = 0; // of the image data in the container file
    std::size_t size = 0;
};

// One icon held in a container file, as its reader found it, without copying any byte:
// either a group of images spread over the file's resources (PE, NE), or a whole ICO or CUR
// file lying inside it (an animated cursor's frame, an icon file itself).
struct IconResource {
    enum class Form { Group, Embedded };

    Form form = Form::Group;
    std::string name; // the resource name (UTF-8); empty when the resource has a number or none
    int id = -1;  // the resource number; -1 when named or none
    std::vector<GroupImage> images; // Group: in group order; images that do not exist are left out
    std::size_t offset = 0;         // Embedded: the ICO or CUR file's place in the container
    std::size_t size = 0;
};

} // namespace icon
