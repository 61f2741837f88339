#pragma once

#include "editor/Tool.h"
#include "icon/Colour.h"
#include "icon/IconPlanes.h"

#include <vector>

namespace editor {

// One icon pixel that a figure paints, and in which colour.
struct PaintedCell {
    int x;
    int y;
    icon::Colour colour;
    bool operator==(const PaintedCell&) const = default;
};

// The cells of the figures, between a start cell and an end cell given in icon pixels (either
// may lie outside the icon; only the cells inside it are given).
// - A line includes both end cells (Bresenham between the cells).
// - A rectangle includes both corner cells.
// - An ellipse is the one inscribed in the rectangle of cells from start to end inclusive: a
//   cell belongs to it when its centre lies inside; it is symmetric about both axes, and a
//   one-cell-wide ellipse is a line. Its outline is the cells of the region that touch a cell
//   outside it by a side.
std::vector<PaintedCell> lineCells(int x0, int y0, int x1, int y1, icon::Colour colour);

// The figure of a tool (Line to TwoColourEllipse), in painting order: for the two-colour
// figures the interior comes first, in `other`, then the outline in `pen`.
std::vector<PaintedCell> figureCells(Tool tool, int x0, int y0, int x1, int y1, icon::Colour pen,
                                     icon::Colour other);

// Paints the cells into the planes, every one opaque.
void paintCells(icon::IconPlanes& planes, const std::vector<PaintedCell>& cells);

} // namespace editor
