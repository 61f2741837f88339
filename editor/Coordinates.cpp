#include "editor/Coordinates.h"

#include "effects/Rounding.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace editor {

int toCanvasCoordinate(double value) {
    if (std::isnan(value))
        return 0;
    const double held = std::clamp(value, double(INT16_MIN), double(INT16_MAX));
    return effects::roundHalfEven(held);
}

void SnapCellOrigin(int& x, int& y) {
    x = (x / kCellSize) * kCellSize;
    y = (y / kCellSize) * kCellSize;
}

void SnapGridLine(int& x, int& y) {
    auto snap = [](int v) {
        const int line = (v / kCellSize) * kCellSize;
        return v % kCellSize < 5 ? line : line + kCellSize;
    };
    x = snap(x);
    y = snap(y);
}

void SnapCellCentre(int& x, int& y) {
    x = (x / kCellSize) * kCellSize + 5;
    y = (y / kCellSize) * kCellSize + 5;
}

void ClampCanvas(int& x, int& y) {
    x = std::clamp(x, 0, kCanvasSize);
    y = std::clamp(y, 0, kCanvasSize);
}

void SwapInt(int& a, int& b) {
    std::swap(a, b);
}

std::string ShowPosition(int x, int y) {
    const int cx = std::clamp(x / kCellSize, 0, 31);
    const int cy = std::clamp(y / kCellSize, 0, 31);
    std::string text = std::to_string(cx) + " , " + std::to_string(cy);
    return (cx >= 10 && cy >= 10) ? text : "  " + text;
}

} // namespace editor
