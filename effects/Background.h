#pragma once

#include "icon/Frame.h"
#include "icon/IconPlanes.h"

namespace effects {

// Lays a 32×32 picture (a kaleidoscope or gradient preview) under the icon: every transparent
// pixel takes the picture's colour, opaque pixels keep theirs, and the whole mask turns black,
// so that the icon is opaque everywhere afterwards.
void applyBackground(icon::IconPlanes& icon, const icon::Frame& picture);

} // namespace effects
