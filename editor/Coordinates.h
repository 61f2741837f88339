#pragma once

#include <string>

namespace editor {

// The canvas shows every icon pixel as a cell of 10×10 screen pixels, 320×320 in all.
inline constexpr int kCellSize = 10;
inline constexpr int kCanvasSize = 320;

// A mouse position in canvas pixels as the program holds it: rounded to the nearest integer,
// halves to even, kept within 16 bits.
int toCanvasCoordinate(double value);

// The coordinate helpers of the canvas. Each rewrites both coordinates in place; divisions
// truncate toward zero, as the program has always computed them.
// x ← (x div 10)·10, y likewise: the origin of the cell (pencil and eraser).
void SnapCellOrigin(int& x, int& y);
// To the nearest grid line, halves up (selection corners).
void SnapGridLine(int& x, int& y);
// x ← (x div 10)·10 + 5, y likewise: the centre of the cell (figure end points).
void SnapCellCentre(int& x, int& y);
// Each coordinate within 0..320.
void ClampCanvas(int& x, int& y);
void SwapInt(int& a, int& b);

// The position readout: the cell of the last position, each coordinate held within 0..31,
// "cx , cy" behind two blanks unless both are 10 or more.
std::string ShowPosition(int x, int y);

} // namespace editor
