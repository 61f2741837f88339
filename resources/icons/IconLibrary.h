#pragma once

#include "icon/Frame.h"
#include "icon/IconBitmap.h"
#include "icon/NeWriter.h"
#include "resources/icons/IconArt.h"

#include <cstdint>
#include <vector>

namespace iconlib {

// Every icon of the library, in order.
std::vector<IconArt> libraryArt();

// One icon drawn at one size.
icon::IconBitmap paint(const IconArt& art, int size);

// The ICO file of one icon: its sizes from the smallest.
std::vector<std::uint8_t> iconFile(const IconArt& art);

// Every icon at 48, 32 and 16 pixels over a light grey, eight icons a row: to look them over.
icon::Frame contactSheet();

// The library's icons, ready for the NE writer.
std::vector<icon::LibraryIcon> libraryIcons();

} // namespace iconlib
