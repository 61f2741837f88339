#pragma once

#include "icon/Colour.h"
#include "icon/IconPlanes.h"

namespace effects {

// Each channel lowered by `amount`, floored at 0.
icon::Colour darken(icon::Colour c, int amount);

// Gives the icon a button's relief: the four outermost rings of opaque pixels are darkened,
// the border by 64, then 32, 16 and 8. Transparent pixels are never touched; each ring is
// visited once, corners included.
void buttonEffect(icon::IconPlanes& icon);

} // namespace effects
