#include "editor/Coordinates.h"

#include <gtest/gtest.h>

using namespace editor;

TEST(Coordinates, SnapHelpersRewriteBothCoordinates) {
    const struct {
        const char* name;
        void (*snap)(int&, int&);
        int in, out;
    } cases[] = {
        {"cell origin", SnapCellOrigin, 19, 10},   {"cell origin", SnapCellOrigin, -7, 0},
        {"grid line", SnapGridLine, 4, 0},         {"grid line", SnapGridLine, 5, 10},
        {"grid line", SnapGridLine, 316, 320},     {"grid line", SnapGridLine, -17, -10},
        {"cell centre", SnapCellCentre, 319, 315}, {"cell centre", SnapCellCentre, -3, 5},
        {"cell centre", SnapCellCentre, -13, -5},  {"clamp", ClampCanvas, -1, 0},
        {"clamp", ClampCanvas, 321, 320},          {"clamp", ClampCanvas, 17, 17},
    };
    for (const auto& c : cases) {
        int x = c.in, y = c.in;
        c.snap(x, y);
        EXPECT_EQ(x, c.out) << c.name << " " << c.in;
        EXPECT_EQ(y, c.out) << c.name << " " << c.in;
    }
}

TEST(Coordinates, MousePositionsRoundHalvesToEven) {
    const struct {
        double in;
        int out;
    } cases[] = {{0.5, 0},  {1.5, 2},   {2.5, 2},     {9.49, 9},
                 {-0.5, 0}, {-1.5, -2}, {1e9, 32767}, {-1e9, -32768}};
    for (const auto& c : cases)
        EXPECT_EQ(toCanvasCoordinate(c.in), c.out) << c.in;
}

TEST(Coordinates, PositionReadoutIsRoughlyRightAligned) {
    const struct {
        int x, y;
        const char* text;
    } cases[] = {{0, 0, "  0 , 0"},     {105, 99, "  10 , 9"},  {100, 100, "10 , 10"},
                 {319, 319, "31 , 31"}, {400, -50, "  31 , 0"}, {99, 250, "  9 , 25"}};
    for (const auto& c : cases)
        EXPECT_EQ(ShowPosition(c.x, c.y), c.text) << c.x << "," << c.y;
}
