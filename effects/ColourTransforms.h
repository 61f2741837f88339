#pragma once

#include "icon/Colour.h"
#include "icon/IconBitmap.h"

namespace effects {

// The grey of a colour: L = (222·R + 707·G + 71·B) / 1000, rounded halves to even.
icon::Colour greyOf(icon::Colour c);
// (R, G, B) → (255 − R, 255 − G, 255 − B).
icon::Colour negativeOf(icon::Colour c);

// Both change only the opaque pixels of the block (mask not white); transparent pixels keep
// their colour value as it is.
icon::IconBitmap greyLevels(const icon::IconBitmap& block);
icon::IconBitmap negative(const icon::IconBitmap& block);

} // namespace effects
