#pragma once

#include "icon/Colour.h"

#include <array>

namespace icon {

inline constexpr int kIconSize = 32;

// One 32×32 plane of colours, row by row from the top.
class Plane {
public:
    static constexpr int kPixels = kIconSize * kIconSize;

    constexpr Plane() = default;
    constexpr explicit Plane(Colour fill) { m_pixels.fill(fill); }

    static constexpr bool contains(int x, int y) {
        return x >= 0 && x < kIconSize && y >= 0 && y < kIconSize;
    }
    constexpr Colour at(int x, int y) const { return m_pixels[index(x, y)]; }
    constexpr void set(int x, int y, Colour c) { m_pixels[index(x, y)] = c; }
    constexpr void fill(Colour c) { m_pixels.fill(c); }

    bool operator==(const Plane&) const = default;

private:
    static constexpr int index(int x, int y) { return y * kIconSize + x; }
    std::array<Colour, kPixels> m_pixels{};
};

// The icon being edited: the colour plane (the XOR image) and the mask plane (the AND mask,
// white where transparent, black where opaque). A copy is a snapshot: 8 KiB, no sharing.
struct IconPlanes {
    Plane image{kBlack};
    Plane mask{kWhite};

    // A new icon is fully transparent: black colour under a white mask.
    static constexpr IconPlanes blank() { return {}; }

    constexpr bool isTransparent(int x, int y) const { return isTransparentMask(mask.at(x, y)); }
    // Makes the pixel opaque in the given colour.
    constexpr void paint(int x, int y, Colour c) {
        image.set(x, y, c);
        mask.set(x, y, kBlack);
    }
    // Makes the pixel transparent, with black beneath as a written file has it.
    constexpr void erase(int x, int y) {
        image.set(x, y, kBlack);
        mask.set(x, y, kWhite);
    }

    bool operator==(const IconPlanes&) const = default;
};

// The unit of the undo history is simply a copy of the two planes.
using IconSnapshot = IconPlanes;

} // namespace icon
