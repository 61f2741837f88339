#pragma once

#include <cstdint>

namespace icon {

// A colour is 0x00BBGGRR: red in the low byte. The components are always taken by integer
// division and remainder on the unsigned value, never by shifting a signed one.
using Colour = std::uint32_t;

inline constexpr Colour kBlack = 0x000000;
inline constexpr Colour kWhite = 0xFFFFFF;

constexpr int redOf(Colour c) {
    return static_cast<int>(c % 256);
}
constexpr int greenOf(Colour c) {
    return static_cast<int>((c % 65536) / 256);
}
constexpr int blueOf(Colour c) {
    return static_cast<int>(c / 65536);
}

// Builds a colour from components in 0..255.
constexpr Colour rgb(int red, int green, int blue) {
    return static_cast<Colour>(red) + 256u * static_cast<Colour>(green) +
           65536u * static_cast<Colour>(blue);
}

// A mask pixel means "transparent" only when it is exactly white; anything else is opaque.
constexpr bool isTransparentMask(Colour mask) {
    return mask == kWhite;
}

// How a pixel shows over a background: (background AND mask) XOR colour.
constexpr Colour composePixel(Colour background, Colour mask, Colour colour) {
    return ((background & mask) ^ colour) & kWhite;
}

} // namespace icon
