#pragma once

#include "icon/Colour.h"
#include "icon/IconPlanes.h"

namespace editor {

// The fill tool on cell (cx, cy) with colour `fill`. The icon is composed twice, over the
// preview's background and over white, and each composite is flood-filled from the seed (the
// connected area, side by side, of the seed's colour). A pixel is filled only where both fills
// reached it and its mask equals the seed's: transparent and opaque pixels of the same apparent
// colour stay apart. A seed outside the icon fills nothing.
void FloodFillAt(icon::IconPlanes& planes, int cx, int cy, icon::Colour fill,
                 icon::Colour previewBackground);

} // namespace editor
