#include "resources/icons/Drawing.h"
#include "resources/icons/IconArt.h"

namespace iconlib {

namespace {

using namespace tone;
const std::vector<int> kAll = {16, 32, 48};

// The right-pointing arrow, turned by quarter turns for the other directions.
std::vector<std::pair<double, double>> arrow(int quarterTurns) {
    std::vector<std::pair<double, double>> points = {{3, 12},  {16, 12}, {16, 4}, {29, 16},
                                                     {16, 28}, {16, 20}, {3, 20}};
    for (auto& [x, y] : points)
        for (int q = 0; q < quarterTurns; ++q) {
            const double nx = 32 - y;
            y = x;
            x = nx;
        }
    return points;
}

void right(Sketch& s) {
    s.fill(polygon(arrow(0)), shaded(blue, 4, 28));
}
void down(Sketch& s) {
    s.fill(polygon(arrow(1)), shaded(blue, 3, 29));
}
void left(Sketch& s) {
    s.fill(polygon(arrow(2)), shaded(blue, 4, 28));
}
void up(Sketch& s) {
    s.fill(polygon(arrow(3)), shaded(blue, 3, 29));
}

void both(Sketch& s) {
    s.fill(polygon({{2, 16},
                    {11, 7},
                    {11, 12.5},
                    {21, 12.5},
                    {21, 7},
                    {30, 16},
                    {21, 25},
                    {21, 19.5},
                    {11, 19.5},
                    {11, 25}}),
           shaded(teal, 7, 25));
}

void rotate(Sketch& s) {
    s.fill(arc(16, 17, 10, 5, 80, 360), shaded(green, 4, 30));
    s.fill(polygon({{17, 1}, {17, 14}, {9, 7.5}}), darken(green, 0.05));
}

void undo(Sketch& s) {
    s.fill(arc(17, 20, 9, 4.5, -60, 110), shaded(orange, 8, 30));
    s.fill(polygon({{4, 12}, {15, 4}, {15, 20}}), orange);
}

void redo(Sketch& s) {
    s.fill(arc(15, 20, 9, 4.5, 70, 240), shaded(orange, 8, 30));
    s.fill(polygon({{28, 12}, {17, 4}, {17, 20}}), orange);
}

} // namespace

std::vector<IconArt> arrowArt() {
    return {
        {"FLECHE_HAUT", kAll, up},     {"FLECHE_BAS", kAll, down},
        {"FLECHE_GAUCHE", kAll, left}, {"FLECHE_DROITE", kAll, right},
        {"DOUBLE_FLECHE", kAll, both}, {"ROTATION", kAll, rotate},
        {"ANNULER", kAll, undo},       {"RETABLIR", kAll, redo},
    };
}

} // namespace iconlib
