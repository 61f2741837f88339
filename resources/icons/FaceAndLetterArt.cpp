#include "resources/icons/Drawing.h"
#include "resources/icons/IconArt.h"

namespace iconlib {

namespace {

using namespace tone;
const std::vector<int> kAll = {16, 32, 48};

void head(Sketch& s, icon::Colour c) {
    s.fill(circle(16, 16, 14), radial(lighten(c, 0.55), c, 11, 10, 19));
}

void eyes(Sketch& s) {
    s.fill(ellipse(11, 12, 2, 3), ink);
    s.fill(ellipse(21, 12, 2, 3), ink);
}

void smile(Sketch& s) {
    head(s, yellow);
    eyes(s);
    s.fill(arc(16, 15, 8.5, 2.4, 200, 340), ink);
}

void sad(Sketch& s) {
    head(s, sky);
    eyes(s);
    s.fill(arc(16, 28, 7.5, 2.4, 45, 135), ink);
    s.fill(ellipse(22, 18, 1.5, 2.2), blue);
}

void wink(Sketch& s) {
    head(s, yellow);
    s.fill(ellipse(11, 12, 2, 3), ink);
    s.fill(arc(21, 14, 3, 2, 20, 160), ink);
    s.fill(arc(16, 15, 8.5, 2.4, 200, 340), ink);
    s.fill(ellipse(19.5, 24.5, 2.5, 2), red);
}

void surprised(Sketch& s) {
    head(s, orange);
    s.fill(circle(11, 11.5, 2.6), white);
    s.fill(circle(21, 11.5, 2.6), white);
    s.fill(circle(11, 12, 1.3), ink);
    s.fill(circle(21, 12, 1.3), ink);
    s.fill(ellipse(16, 22, 3.2, 4), darken(red, 0.4));
}

void cat(Sketch& s) {
    s.fill(unite(circle(16, 18, 12),
                 unite(polygon({{5, 14}, {6, 2}, {14, 8}}), polygon({{27, 14}, {26, 2}, {18, 8}}))),
           radial(lighten(orange, 0.5), orange, 13, 14, 16));
    s.fill(polygon({{7.5, 10}, {8, 5}, {11.5, 8}}), pink);
    s.fill(polygon({{24.5, 10}, {24, 5}, {20.5, 8}}), pink);
    s.fill(ellipse(11.5, 16, 2, 2.8), green);
    s.fill(ellipse(20.5, 16, 2, 2.8), green);
    s.fill(ellipse(11.5, 16, 0.7, 2.2), ink);
    s.fill(ellipse(20.5, 16, 0.7, 2.2), ink);
    s.fill(polygon({{14.5, 21}, {17.5, 21}, {16, 23}}), pink);
    s.fill(line(3, 21, 11, 22, 0.9), ink);
    s.fill(line(29, 21, 21, 22, 0.9), ink);
}

// A letter on a toy block.
void block(Sketch& s, icon::Colour c) {
    s.fill(roundRect(2, 2, 30, 30, 4), shaded(c, 2, 30));
    s.fill(roundRect(4.5, 4.5, 27.5, 27.5, 3), lighten(c, 0.75));
}

void letterA(Sketch& s) {
    block(s, red);
    s.fill(unite(unite(line(9.5, 24, 16, 8, 3.4), line(16, 8, 22.5, 24, 3.4)),
                 line(12.5, 18.5, 19.5, 18.5, 3)),
           darken(red, 0.15));
}

void letterB(Sketch& s) {
    block(s, blue);
    const Shape b = unite(unite(line(11, 8, 11, 24, 3.4), line(11, 8, 17, 8, 3.4)),
                          unite(line(11, 16, 18, 16, 3.4), line(11, 24, 18, 24, 3.4)));
    s.fill(unite(b, unite(arc(17, 12, 4, 3.4, -90, 90), arc(18, 20, 4, 3.4, -90, 90))),
           darken(blue, 0.15));
}

void letterC(Sketch& s) {
    block(s, green);
    s.fill(arc(16.5, 16, 7.5, 3.4, 45, 315), darken(green, 0.2));
}

void letterZ(Sketch& s) {
    block(s, purple);
    s.fill(
        unite(unite(line(10, 9, 22, 9, 3.4), line(22, 9, 10, 23, 3.4)), line(10, 23, 22, 23, 3.4)),
        darken(purple, 0.1));
}

} // namespace

std::vector<IconArt> faceAndLetterArt() {
    return {
        {"SOURIRE", kAll, smile},      {"TRISTE", kAll, sad},       {"CLIN_D_OEIL", kAll, wink},
        {"SURPRISE", kAll, surprised}, {"CHAT", kAll, cat},         {"LETTRE_A", kAll, letterA},
        {"LETTRE_B", kAll, letterB},   {"LETTRE_C", kAll, letterC}, {"LETTRE_Z", {32, 48}, letterZ},
    };
}

} // namespace iconlib
