#pragma once

#include "icon/Frame.h"
#include "icon/SafeSave.h"

#include <cstdint>
#include <vector>

namespace icon {

// A picture as a 24-bit BMP file: file header, 40-byte bitmap header, rows from the bottom in
// blue-green-red order, each padded to 4 bytes.
std::vector<std::uint8_t> encodeBmp24(const Frame& picture);

// Writes the picture as a BMP file, replacing the target whole, the same safe way as icons.
SaveResult writeBmpFile(const std::filesystem::path& path, const Frame& picture);

} // namespace icon
