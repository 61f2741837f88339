#include "editor/FloodFill.h"

#include "icon/Frame.h"

#include <array>

namespace editor {

using icon::Colour;
using icon::Frame;
using icon::kIconSize;
using icon::Plane;

namespace {

// Fills the connected area of the seed's colour with `fill`, as a surface fill does.
void surfaceFill(Frame& surface, int cx, int cy, Colour fill) {
    const Colour seed = surface.at(cx, cy);
    if (seed == fill)
        return;
    // A pixel is pushed once at most: it takes the fill colour as it is pushed.
    std::array<int, Plane::kPixels> stack{};
    int top = 0;
    stack[top++] = cy * kIconSize + cx;
    surface.set(cx, cy, fill);
    while (top > 0) {
        const int p = stack[--top];
        const int x = p % kIconSize, y = p / kIconSize;
        const int next[4][2] = {{x - 1, y}, {x + 1, y}, {x, y - 1}, {x, y + 1}};
        for (const auto& n : next)
            if (surface.contains(n[0], n[1]) && surface.at(n[0], n[1]) == seed) {
                surface.set(n[0], n[1], fill);
                stack[top++] = n[1] * kIconSize + n[0];
            }
    }
}

} // namespace

void FloodFillAt(icon::IconPlanes& planes, int cx, int cy, Colour fill, Colour previewBackground) {
    if (!Plane::contains(cx, cy))
        return;
    Frame overGrey = icon::compose(planes, previewBackground, 1);
    Frame overWhite = icon::compose(planes, icon::kWhite, 1);
    const Colour seedMask = planes.mask.at(cx, cy);
    surfaceFill(overGrey, cx, cy, fill);
    surfaceFill(overWhite, cx, cy, fill);
    for (int y = 0; y < kIconSize; ++y)
        for (int x = 0; x < kIconSize; ++x)
            if (planes.mask.at(x, y) == seedMask && overGrey.at(x, y) == fill &&
                overWhite.at(x, y) == fill)
                planes.paint(x, y, fill);
}

} // namespace editor
