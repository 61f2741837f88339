#include "editor/Figures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using editor::figureCells;
using editor::lineCells;
using editor::PaintedCell;
using editor::Tool;

namespace {

using CellSet = std::set<std::pair<int, int>>;

CellSet cellsOf(const std::vector<PaintedCell>& cells, icon::Colour colour = 1) {
    CellSet out;
    for (const PaintedCell& c : cells)
        if (c.colour == colour)
            out.insert({c.x, c.y});
    return out;
}

// Draws a cell set as rows of '#' and '.', for readable expectations.
std::vector<std::string> picture(const CellSet& cells, int width, int height) {
    std::vector<std::string> rows(static_cast<std::size_t>(height), std::string(width, '.'));
    for (const auto& [x, y] : cells)
        rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = '#';
    return rows;
}

} // namespace

TEST(Figures, LinesIncludeBothEnds) {
    const struct {
        int x0, y0, x1, y1;
        std::size_t count;
    } cases[] = {{0, 0, 0, 0, 1}, {0, 0, 5, 0, 6},   {3, 9, 3, 2, 8},
                 {0, 0, 4, 4, 5}, {0, 0, 31, 7, 32}, {10, 3, 2, 1, 9}};
    for (const auto& c : cases) {
        const auto cells = lineCells(c.x0, c.y0, c.x1, c.y1, 1);
        EXPECT_EQ(cells.size(), c.count);
        const CellSet set = cellsOf(cells);
        EXPECT_TRUE(set.count({c.x0, c.y0}) && set.count({c.x1, c.y1}))
            << c.x0 << "," << c.y0 << " to " << c.x1 << "," << c.y1;
    }
    // Cells outside the icon are left out, the rest of the line is kept.
    EXPECT_EQ(lineCells(-5, 0, 5, 0, 1).size(), 6u);
}

TEST(Figures, RectanglesIncludeBothCorners) {
    const auto outline = cellsOf(figureCells(Tool::Rectangle, 4, 3, 0, 0, 1, 2));
    EXPECT_EQ(picture(outline, 5, 4),
              (std::vector<std::string>{"#####", "#...#", "#...#", "#####"}));
    EXPECT_EQ(cellsOf(figureCells(Tool::FilledRectangle, 0, 0, 4, 3, 1, 2)).size(), 20u);
}

TEST(Figures, TwoColourFiguresPaintTheirInteriorFirstInTheOtherColour) {
    const struct {
        Tool tool, outline;
        int right, bottom;
        std::size_t interior;
    } cases[] = {{Tool::TwoColourRectangle, Tool::Rectangle, 4, 3, 6},
                 {Tool::TwoColourEllipse, Tool::Ellipse, 6, 6, 21}};
    for (const auto& c : cases) {
        const auto cells = figureCells(c.tool, 0, 0, c.right, c.bottom, 1, 2);
        EXPECT_EQ(cellsOf(cells, 1),
                  cellsOf(figureCells(c.outline, 0, 0, c.right, c.bottom, 1, 2)));
        EXPECT_EQ(cellsOf(cells, 2).size(), c.interior);
        EXPECT_EQ(cells.front().colour, 2u);
    }
}

TEST(Figures, EllipseOutlinesAreInscribedAndSymmetric) {
    const auto ring = cellsOf(figureCells(Tool::Ellipse, 0, 0, 6, 6, 1, 2));
    EXPECT_EQ(picture(ring, 7, 7),
              (std::vector<std::string>{"..###..", ".#...#.", "#.....#", "#.....#", "#.....#",
                                        ".#...#.", "..###.."}));
    for (int w = 1; w <= 20; w += 3)
        for (int h = 1; h <= 12; h += 2) {
            const auto cells =
                cellsOf(figureCells(Tool::Ellipse, 2, 3, 2 + w - 1, 3 + h - 1, 1, 2));
            for (const auto& [x, y] : cells) {
                ASSERT_TRUE(cells.count({2 + (2 + w - 1) - x, y})) << w << "x" << h;
                ASSERT_TRUE(cells.count({x, 3 + (3 + h - 1) - y})) << w << "x" << h;
            }
            // It touches all four sides of its rectangle.
            const auto [minX, maxX] = std::minmax_element(
                cells.begin(), cells.end(), [](auto a, auto b) { return a.first < b.first; });
            EXPECT_EQ(minX->first, 2);
            EXPECT_EQ(maxX->first, 2 + w - 1);
        }
    // One cell wide, it is a line.
    EXPECT_EQ(cellsOf(figureCells(Tool::Ellipse, 5, 0, 5, 9, 1, 2)).size(), 10u);
    EXPECT_EQ(cellsOf(figureCells(Tool::Ellipse, 0, 5, 9, 5, 1, 2)).size(), 10u);
}

TEST(Figures, OnlyCellsInsideTheIconAreGiven) {
    for (Tool t : {Tool::Line, Tool::Rectangle, Tool::FilledRectangle, Tool::Ellipse,
                   Tool::TwoColourEllipse})
        for (const PaintedCell& c : figureCells(t, -40, -3, 3000, 40, 1, 2))
            ASSERT_TRUE(icon::Plane::contains(c.x, c.y));
}

TEST(Figures, AFilledEllipseHoldsTheCellsWhoseCentreIsInside) {
    const auto disc = cellsOf(figureCells(Tool::FilledEllipse, 6, 4, 0, 0, 1, 2));
    EXPECT_EQ(picture(disc, 7, 5),
              (std::vector<std::string>{".#####.", "#######", "#######", "#######", ".#####."}));
}
