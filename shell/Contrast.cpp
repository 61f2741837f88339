#include "shell/Contrast.h"

#include <algorithm>
#include <cmath>

namespace shell {

namespace {

// One sRGB component (0..255) back to linear light.
double linear(int component) {
    const double c = component / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

} // namespace

double relativeLuminance(icon::Colour colour) {
    return 0.2126 * linear(icon::redOf(colour)) + 0.7152 * linear(icon::greenOf(colour)) +
           0.0722 * linear(icon::blueOf(colour));
}

double contrastRatio(icon::Colour a, icon::Colour b) {
    const double la = relativeLuminance(a);
    const double lb = relativeLuminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

GradientEnd captionEnd(icon::Colour start, icon::Colour end, icon::Colour text) {
    return contrastRatio(text, start) > contrastRatio(text, end) ? GradientEnd::Start
                                                                 : GradientEnd::End;
}

} // namespace shell
