#pragma once

#include "icon/Colour.h"

namespace shell {

// How a colour reads on another, as the accessibility guidelines measure it: the relative
// luminance of each (0 for black, 1 for white) and their contrast ratio, from 1 (none) to 21
// (black on white). Body text wants 4.5 or more; 3 is the least a caption can get by with.
double relativeLuminance(icon::Colour colour);
double contrastRatio(icon::Colour a, icon::Colour b);

inline constexpr double kGoodContrast = 4.5;
inline constexpr double kLeastContrast = 3.0;

// Which end of a two-colour gradient a caption of this colour reads better on; the end colour
// when both read alike.
enum class GradientEnd { Start, End };
GradientEnd captionEnd(icon::Colour start, icon::Colour end, icon::Colour text);

} // namespace shell
