#include "resources/icons/Drawing.h"
#include "resources/icons/IconArt.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace iconlib {

namespace {

using namespace tone;
const std::vector<int> kAll = {16, 32, 48};

std::vector<std::pair<double, double>> starPoints(double cx, double cy, double outer, double inner,
                                                  int points) {
    std::vector<std::pair<double, double>> out;
    for (int i = 0; i < 2 * points; ++i) {
        const double a = -std::numbers::pi / 2 + i * std::numbers::pi / points;
        const double r = i % 2 ? inner : outer;
        out.emplace_back(cx + r * std::cos(a), cy + r * std::sin(a));
    }
    return out;
}

void star(Sketch& s) {
    s.fill(polygon(starPoints(16, 17, 15, 6.5, 5)),
           radial(lighten(yellow, 0.5), orange, 14, 13, 17));
}

void heart(Sketch& s) {
    s.fill(unite(unite(circle(10, 11, 7), circle(22, 11, 7)),
                 polygon({{3.6, 13.5}, {28.4, 13.5}, {16, 29}})),
           radial(lighten(red, 0.45), darken(red, 0.1), 10, 8, 22));
}

void sun(Sketch& s) {
    for (int i = 0; i < 12; ++i) {
        const double a = i * std::numbers::pi / 6;
        s.fill(line(16 + 10 * std::cos(a), 16 + 10 * std::sin(a), 16 + 14.5 * std::cos(a),
                    16 + 14.5 * std::sin(a), 2.6),
               orange);
    }
    s.fill(circle(16, 16, 8.5), radial(lighten(yellow, 0.6), yellow, 13, 13, 10));
}

void moon(Sketch& s) {
    s.fill(minus(circle(15, 16, 13), circle(22, 11, 11)),
           radial(lighten(yellow, 0.5), yellow, 8, 18, 14));
    s.fill(polygon(starPoints(24, 22, 4, 1.6, 4)), lighten(yellow, 0.4));
}

void cloud(Sketch& s) {
    s.fill(unite(unite(circle(11, 17, 6.5), circle(19, 13, 8)),
                 unite(circle(25, 19, 5.5), roundRect(4.5, 17, 30, 25, 4))),
           vertical(white, lighten(sky, 0.2), 5, 25));
}

void lightning(Sketch& s) {
    s.fill(polygon({{19, 1}, {6, 18}, {14.5, 18}, {11, 31}, {26, 12}, {17, 12}, {22, 1}}),
           along(lighten(yellow, 0.5), orange, 10, 2, 20, 30));
}

void drop(Sketch& s) {
    s.fill(unite(circle(16, 20, 9), polygon({{7.6, 17.5}, {16, 2}, {24.4, 17.5}})),
           radial(lighten(sky, 0.6), blue, 13, 16, 14));
    s.fill(arc(16, 20, 5.5, 1.6, 190, 250), white);
}

void check(Sketch& s) {
    s.fill(polygon({{3, 17}, {8, 12}, {13, 17}, {25, 4}, {30, 9}, {13, 27}}), shaded(green, 4, 27));
}

void cross(Sketch& s) {
    s.fill(unite(line(6, 6, 26, 26, 7), line(26, 6, 6, 26, 7)), shaded(red, 3, 29));
}

void plus(Sketch& s) {
    s.fill(unite(roundRect(12, 3, 20, 29, 1.5), roundRect(3, 12, 29, 20, 1.5)),
           shaded(green, 3, 29));
}

void minusSign(Sketch& s) {
    s.fill(roundRect(3, 12, 29, 20, 1.5), shaded(red, 12, 20));
}

void info(Sketch& s) {
    s.fill(circle(16, 16, 14), radial(lighten(blue, 0.4), darken(blue, 0.1), 11, 10, 20));
    s.fill(circle(16, 9, 2.4), white);
    s.fill(unite(roundRect(13.7, 13, 18.3, 25, 1), rect(12, 23, 20, 25.5)), white);
}

void warning(Sketch& s) {
    s.fill(polygon({{16, 2}, {31, 29}, {1, 29}}), shaded(yellow, 2, 29));
    s.fill(polygon({{14.2, 11}, {17.8, 11}, {17, 21}, {15, 21}}), ink);
    s.fill(circle(16, 24.8, 1.9), ink);
}

void forbidden(Sketch& s) {
    s.fill(circle(16, 16, 14), radial(lighten(red, 0.35), darken(red, 0.1), 11, 10, 20));
    s.fill(roundRect(6, 13.5, 26, 18.5, 1), white);
}

void question(Sketch& s) {
    s.fill(circle(16, 16, 14), radial(lighten(purple, 0.4), darken(purple, 0.1), 11, 10, 20));
    s.fill(arc(16, 11.5, 4.6, 3.4, -90, 180), white);
    s.fill(line(16, 16, 16, 19, 3.4), white);
    s.fill(circle(16, 24, 2.1), white);
}

void rainbow(Sketch& s) {
    const icon::Colour bands[] = {red, orange, yellow, green, blue, purple};
    for (int i = 0; i < 6; ++i)
        s.fill(arc(16, 26, 14 - 1.9 * i, 2.1, 0, 180), bands[i]);
    s.fill(unite(circle(6, 26, 3.5), circle(26, 26, 3.5)), white);
}

void pixelGrid(Sketch& s) {
    s.fill(rect(2, 2, 30, 30), white);
    for (int i = 0; i <= 7; ++i) {
        s.fill(rect(2 + 4 * i - 0.5, 2, 2 + 4 * i + 0.5, 30), silver);
        s.fill(rect(2, 2 + 4 * i - 0.5, 30, 2 + 4 * i + 0.5), silver);
    }
    // A heart drawn cell by cell, as in the editor.
    const char* const heart[] = {".XX.XX.", "XXXXXXX", "XXXXXXX", ".XXXXX.", "..XXX..", "...X..."};
    for (int row = 0; row < 6; ++row)
        for (int col = 0; col < 7; ++col)
            if (heart[row][col] == 'X')
                s.fill(rect(2.5 + 4 * col, 6.5 + 4 * row, 5.5 + 4 * col, 9.5 + 4 * row),
                       shaded(red, 6.5 + 4 * row, 9.5 + 4 * row));
}

void selection(Sketch& s) {
    // The marching ants of a selection around a pale area.
    s.fill(rect(3, 3, 29, 29), lighten(sky, 0.6));
    for (int i = 0; i < 7; ++i) {
        const double a = 3 + 4 * i;
        const double b = std::min(a + 4, 29.0);
        const icon::Colour c = i % 2 ? white : ink;
        const icon::Colour d = i % 2 ? ink : white;
        s.fill(rect(a, 3, b, 5), c);
        s.fill(rect(a, 27, b, 29), d);
        s.fill(rect(3, a, 5, b), d);
        s.fill(rect(27, a, 29, b), c);
    }
}

void sparkles(Sketch& s) {
    s.fill(polygon(starPoints(12, 14, 11, 3, 4)), radial(white, yellow, 12, 14, 11));
    s.fill(polygon(starPoints(24, 24, 7, 2, 4)), radial(white, sky, 24, 24, 7));
    s.fill(polygon(starPoints(25, 7, 4.5, 1.4, 4)), radial(white, pink, 25, 7, 4.5));
}

} // namespace

std::vector<IconArt> symbolArt() {
    return {
        {"ETOILE", kAll, star},
        {"COEUR", kAll, heart},
        {"SOLEIL", kAll, sun},
        {"LUNE", kAll, moon},
        {"NUAGE", kAll, cloud},
        {"ECLAIR", kAll, lightning},
        {"GOUTTE", kAll, drop},
        {"COCHE", kAll, check},
        {"CROIX", kAll, cross},
        {"PLUS", kAll, plus},
        {"MOINS", kAll, minusSign},
        {"INFORMATION", kAll, info},
        {"ATTENTION", kAll, warning},
        {"INTERDIT", kAll, forbidden},
        {"QUESTION", kAll, question},
        {"ARC_EN_CIEL", kAll, rainbow},
        {"GRILLE_DE_PIXELS", {32, 48}, pixelGrid},
        {"SELECTION", {32, 48}, selection},
        {"ETINCELLES", kAll, sparkles},
    };
}

} // namespace iconlib
