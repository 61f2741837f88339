#pragma once

#include "resources/icons/Sketch.h"

#include <vector>

namespace iconlib {

// One icon of the program's own library: its resource name, the sizes it is drawn at, and how
// it is drawn (in the 32-unit square, whatever the size).
struct IconArt {
    const char* name;
    std::vector<int> sizes;
    void (*draw)(Sketch&);
};

// The icons of each theme, in the order the library shows them.
std::vector<IconArt> objectArt();
std::vector<IconArt> symbolArt();
std::vector<IconArt> arrowArt();
std::vector<IconArt> faceAndLetterArt();

// Every icon of the library, in order.
std::vector<IconArt> libraryArt();

} // namespace iconlib
