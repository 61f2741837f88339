#include "resources/icons/Drawing.h"
#include "resources/icons/IconArt.h"

#include <cmath>
#include <numbers>

namespace iconlib {

namespace {

using namespace tone;
const std::vector<int> kAll = {16, 32, 48};

void emblem(Sketch& s) {
    // A pixel grid in four colours with a pencil laid across it: the program's own sign.
    const icon::Colour cells[4][4] = {{red, orange, yellow, green},
                                      {orange, yellow, green, teal},
                                      {yellow, green, teal, blue},
                                      {green, teal, blue, purple}};
    s.fill(roundRect(2, 2, 26, 26, 2), paper);
    for (int j = 0; j < 4; ++j)
        for (int i = 0; i < 4; ++i)
            s.fill(rect(3.5 + 5.5 * i, 3.5 + 5.5 * j, 8 + 5.5 * i, 8 + 5.5 * j),
                   shaded(cells[j][i], 3.5 + 5.5 * j, 8 + 5.5 * j));
    s.fill(line(13, 29, 28, 14, 6.5), along(yellow, orange, 13, 14, 17, 18));
    s.fill(line(26, 16, 29.5, 12.5, 6.5), pink);
    s.fill(polygon({{9.5, 31}, {11, 25.5}, {15.5, 30}}), icon::rgb(240, 210, 160));
    s.fill(polygon({{9.5, 31}, {10.2, 28.6}, {12, 30.3}}), ink);
}

void folder(Sketch& s) {
    s.fill(roundRect(2, 6, 14, 12, 1.5), darken(yellow, 0.1));
    s.fill(roundRect(2, 9, 30, 27, 1.5), shaded(yellow, 9, 27));
    s.fill(rect(3, 10, 29, 11.2), lighten(yellow, 0.6));
}

void openFolder(Sketch& s) {
    s.fill(roundRect(2, 6, 14, 12, 1.5), darken(yellow, 0.15));
    s.fill(roundRect(2, 9, 27, 27, 1.5), darken(yellow, 0.2));
    s.fill(rect(6, 7, 24, 20), paper);
    s.fill(rect(9, 10, 21, 11), silver);
    s.fill(rect(9, 13, 19, 14), silver);
    s.fill(polygon({{2, 27}, {7, 14}, {31, 14}, {26, 27}}), shaded(yellow, 14, 27));
}

void document(Sketch& s) {
    s.fill(polygon({{6, 2}, {20, 2}, {27, 9}, {27, 30}, {6, 30}}), vertical(white, paper, 2, 30));
    s.fill(polygon({{20, 2}, {27, 9}, {20, 9}}), silver);
    for (int i = 0; i < 5; ++i)
        s.fill(rect(9.5, 13 + 3.5 * i, i == 4 ? 18 : 23.5, 14.3 + 3.5 * i), sky);
}

void floppy(Sketch& s) {
    s.fill(polygon({{3, 3}, {26, 3}, {29, 6}, {29, 29}, {3, 29}}), shaded(blue, 3, 29));
    s.fill(rect(8, 3, 23, 12), silver);
    s.fill(rect(17, 4.5, 20.5, 10.5), steel);
    s.fill(roundRect(7, 16, 25, 29, 1), paper);
    s.fill(rect(9.5, 19.5, 22.5, 20.5), sky);
    s.fill(rect(9.5, 23, 20, 24), sky);
}

void magnifier(Sketch& s) {
    s.fill(line(19, 19, 28, 28, 5.5), shaded(brown, 19, 29));
    s.fill(ring(13, 13, 7.5, 11), shaded(steel, 2, 24));
    s.fill(circle(13, 13, 7.5), radial(white, sky, 10, 10, 9));
}

void pencil(Sketch& s) {
    s.fill(line(8, 24, 25, 7, 7.5), along(lighten(orange, 0.2), darken(orange, 0.2), 6, 6, 12, 12));
    s.fill(line(23, 9, 27.5, 4.5, 7.5), pink);
    s.fill(line(22, 10, 24, 8, 7.5), silver);
    s.fill(polygon({{2.5, 29.5}, {4.5, 21}, {11, 27.5}}), icon::rgb(240, 210, 160));
    s.fill(polygon({{2.5, 29.5}, {3.4, 25.8}, {6.2, 28.6}}), ink);
}

void brush(Sketch& s) {
    s.fill(line(16, 16, 28, 4, 4), shaded(brown, 4, 16));
    s.fill(line(12, 20, 16.5, 15.5, 6), silver);
    s.fill(polygon({{3, 30}, {5, 20}, {9.5, 16.5}, {15.5, 22.5}, {12, 27}}), shaded(red, 17, 30));
}

void paintPot(Sketch& s) {
    // A tin of blue paint with its handle, a drip running down the side.
    s.fill(arc(16, 12, 11, 1.8, 0, 180), steel);
    s.fill(polygon({{5, 12}, {27, 12}, {25, 29}, {7, 29}}),
           along(lighten(silver, 0.3), steel, 5, 0, 27, 0));
    s.fill(ellipse(16, 12, 11, 3.5), darken(steel, 0.1));
    s.fill(ellipse(16, 12.4, 9.5, 2.6), shaded(blue, 10, 15));
    s.fill(unite(rect(7.5, 12, 10.5, 21), circle(9, 21, 1.5)), blue);
    s.fill(rect(11, 18, 21, 24), paper);
    s.fill(rect(13, 20, 19, 22), blue);
}

void palette(Sketch& s) {
    s.fill(minus(ellipse(16, 16, 14, 12), circle(21, 22, 3)),
           shaded(icon::rgb(226, 190, 140), 4, 28));
    const icon::Colour dabs[] = {red, yellow, green, blue, purple};
    const double at[][2] = {{8, 12}, {13, 8}, {19.5, 8}, {24.5, 12}, {9, 19}};
    for (int i = 0; i < 5; ++i)
        s.fill(circle(at[i][0], at[i][1], 2.6),
               radial(lighten(dabs[i], 0.4), dabs[i], at[i][0] - 1, at[i][1] - 1, 3));
}

void eraser(Sketch& s) {
    s.fill(polygon({{3, 21}, {15, 9}, {23, 17}, {11, 29}}), shaded(pink, 9, 29));
    s.fill(polygon({{15, 9}, {21, 3}, {29, 11}, {23, 17}}), shaded(blue, 3, 17));
    s.fill(rect(12, 29, 29, 30.5), silver);
}

void eyedropper(Sketch& s) {
    s.fill(line(20, 12, 27, 5, 7), shaded(ink, 4, 12));
    s.fill(line(16.5, 15.5, 23, 9, 3.5), steel);
    s.fill(line(5, 27, 17, 15, 3.6), lighten(sky, 0.4));
    s.fill(line(5, 27, 10, 22, 2.2), blue);
    s.fill(circle(4.2, 29, 1.6), blue);
}

void key(Sketch& s) {
    s.fill(minus(circle(10, 10, 7.5), circle(8.5, 8.5, 2.5)), shaded(yellow, 2, 18));
    s.fill(line(14, 14, 28, 28, 4), shaded(yellow, 14, 28));
    s.fill(line(21, 21, 18, 24, 4), darken(yellow, 0.1));
    s.fill(line(25.5, 25.5, 22.5, 28.5, 4), darken(yellow, 0.1));
}

void padlock(Sketch& s) {
    s.fill(arc(16, 13, 7.5, 3.6, 0, 180), shaded(silver, 4, 13));
    s.fill(rect(6.7, 13, 10.3, 16), silver);
    s.fill(rect(21.7, 13, 25.3, 16), silver);
    s.fill(roundRect(4, 15, 28, 30, 2.5), shaded(yellow, 15, 30));
    s.fill(unite(circle(16, 21, 2.4), rect(15, 21, 17, 26)), darken(brown, 0.3));
}

void clock(Sketch& s) {
    s.fill(circle(16, 16, 14), shaded(blue, 2, 30));
    s.fill(circle(16, 16, 11), radial(white, paper, 13, 12, 12));
    for (int h = 0; h < 12; ++h) {
        const double a = h * std::numbers::pi / 6;
        s.fill(circle(16 + 9 * std::cos(a), 16 + 9 * std::sin(a), h % 3 ? 0.6 : 1.0), ink);
    }
    s.fill(line(16, 16, 16, 8, 1.8), ink);
    s.fill(line(16, 16, 21.5, 19, 1.8), ink);
    s.fill(circle(16, 16, 1.4), red);
}

void bulb(Sketch& s) {
    s.fill(unite(circle(16, 12, 10), polygon({{10, 17}, {22, 17}, {20, 23}, {12, 23}})),
           radial(white, yellow, 13, 9, 13));
    for (int i = 0; i < 3; ++i)
        s.fill(rect(11.5, 23 + 2.2 * i, 20.5, 24.6 + 2.2 * i), i % 2 ? steel : silver);
    s.fill(roundRect(13.5, 29.2, 18.5, 31, 0.8), ink);
    s.fill(arc(16, 13, 4, 1.2, 200, 340), orange);
}

void envelope(Sketch& s) {
    s.fill(rect(2, 7, 30, 26), vertical(white, paper, 7, 26));
    s.fill(polygon({{2, 26}, {13, 16}, {19, 16}, {30, 26}}), darken(paper, 0.06));
    s.fill(polygon({{2, 7}, {30, 7}, {16, 18.5}}), shaded(silver, 7, 18));
    s.fill(circle(16, 16.5, 2.6), red);
}

void monitor(Sketch& s) {
    s.fill(roundRect(2, 3, 30, 23, 2), shaded(silver, 3, 23));
    s.fill(rect(4.5, 5.5, 27.5, 20.5), vertical(sky, blue, 5.5, 20.5));
    s.fill(polygon({{4.5, 20.5}, {12, 12}, {17, 16}, {22, 11}, {27.5, 17}, {27.5, 20.5}}), green);
    s.fill(circle(10, 9.5, 2), yellow);
    s.fill(polygon({{12, 23}, {20, 23}, {22, 28}, {10, 28}}), steel);
    s.fill(roundRect(7, 27, 25, 30, 1), shaded(silver, 27, 30));
}

void trashCan(Sketch& s) {
    s.fill(polygon({{6, 9}, {26, 9}, {24, 30}, {8, 30}}), shaded(silver, 9, 30));
    for (int i = 0; i < 3; ++i)
        s.fill(line(11.5 + 4.5 * i, 12.5, 11.8 + 4.2 * i, 27, 1.6), steel);
    s.fill(roundRect(4, 5, 28, 9, 1), shaded(steel, 5, 9));
    s.fill(roundRect(12.5, 2.5, 19.5, 5.5, 1), steel);
}

void gear(Sketch& s) {
    Shape teeth = circle(16, 16, 10.5);
    for (int i = 0; i < 8; ++i) {
        const double a = i * std::numbers::pi / 4;
        teeth = unite(teeth, line(16, 16, 16 + 13.5 * std::cos(a), 16 + 13.5 * std::sin(a), 5));
    }
    s.fill(minus(teeth, circle(16, 16, 4.5)), radial(lighten(silver, 0.3), steel, 12, 12, 18));
    s.fill(ring(16, 16, 4.5, 6), darken(steel, 0.2));
}

void musicNote(Sketch& s) {
    s.fill(ellipse(9, 25, 5, 3.8), shaded(purple, 21, 29));
    s.fill(ellipse(23, 21, 5, 3.8), shaded(purple, 17, 25));
    s.fill(rect(12.5, 6, 14.5, 25), purple);
    s.fill(rect(26.5, 3, 28.5, 21), purple);
    s.fill(polygon({{12.5, 6}, {28.5, 2}, {28.5, 7}, {12.5, 11}}), darken(purple, 0.2));
}

void camera(Sketch& s) {
    s.fill(roundRect(8, 5, 16, 10, 1), steel);
    s.fill(roundRect(2, 8, 30, 27, 2.5), shaded(ink, 8, 27));
    s.fill(circle(17, 17.5, 8), silver);
    s.fill(circle(17, 17.5, 6), radial(sky, darken(blue, 0.4), 15, 15, 8));
    s.fill(circle(15, 15.5, 1.6), white);
    s.fill(rect(4.5, 11, 8.5, 13), orange);
}

void book(Sketch& s) {
    s.fill(roundRect(5, 3, 27, 29, 1.5), shaded(red, 3, 29));
    s.fill(rect(9, 25, 27, 29), paper);
    s.fill(rect(5, 3, 9, 29), darken(red, 0.2));
    s.fill(rect(13, 8, 23, 13), lighten(yellow, 0.3));
}

void house(Sketch& s) {
    s.fill(rect(6, 14, 26, 29), shaded(paper, 14, 29));
    s.fill(rect(20.5, 4, 24, 12), darken(brown, 0.1));
    s.fill(polygon({{2, 16}, {16, 3}, {30, 16}, {27, 16}, {16, 6.5}, {5, 16}}), shaded(red, 3, 16));
    s.fill(polygon({{5, 16}, {16, 6.5}, {27, 16}}), shaded(red, 6, 16));
    s.fill(rect(9, 19.5, 15, 29), shaded(brown, 19, 29));
    s.fill(rect(18, 18.5, 23.5, 24), sky);
}

void globe(Sketch& s) {
    s.fill(circle(16, 16, 13.5), radial(lighten(sky, 0.3), blue, 11, 10, 20));
    const Shape land =
        unite(unite(ellipse(11, 12, 6, 5), ellipse(20, 22, 5.5, 6.5)), ellipse(24, 9, 3.5, 2.5));
    s.fill(both(land, circle(16, 16, 13.5)),
           radial(lighten(green, 0.3), darken(green, 0.2), 11, 10, 20));
}

void flag(Sketch& s) {
    s.fill(rect(5, 3, 7.5, 30), shaded(steel, 3, 30));
    s.fill(
        polygon({{7.5, 4}, {15, 2.5}, {21, 5}, {28, 4}, {28, 17}, {21, 18}, {15, 15.5}, {7.5, 17}}),
        along(lighten(red, 0.2), darken(red, 0.15), 7, 0, 28, 0));
    s.fill(roundRect(2.5, 28, 10, 31, 1), steel);
}

void target(Sketch& s) {
    for (int i = 0; i < 5; ++i)
        s.fill(circle(16, 16, 14 - 2.8 * i), i % 2 ? white : red);
    s.fill(line(16, 16, 29, 3, 1.8), brown);
    s.fill(polygon({{25, 3}, {29, 3}, {29, 7}, {31, 1}}), green);
}

} // namespace

std::vector<IconArt> objectArt() {
    return {
        {"ORVANNE", kAll, emblem},
        {"DOSSIER", kAll, folder},
        {"DOSSIER_OUVERT", kAll, openFolder},
        {"DOCUMENT", kAll, document},
        {"DISQUETTE", kAll, floppy},
        {"LOUPE", kAll, magnifier},
        {"CRAYON", kAll, pencil},
        {"PINCEAU", kAll, brush},
        {"POT_DE_PEINTURE", kAll, paintPot},
        {"PALETTE", kAll, palette},
        {"GOMME", kAll, eraser},
        {"PIPETTE", kAll, eyedropper},
        {"CLE", kAll, key},
        {"CADENAS", kAll, padlock},
        {"HORLOGE", kAll, clock},
        {"AMPOULE", kAll, bulb},
        {"ENVELOPPE", kAll, envelope},
        {"ECRAN", kAll, monitor},
        {"CORBEILLE", kAll, trashCan},
        {"ENGRENAGE", kAll, gear},
        {"NOTE_DE_MUSIQUE", kAll, musicNote},
        {"APPAREIL_PHOTO", kAll, camera},
        {"LIVRE", kAll, book},
        {"MAISON", kAll, house},
        {"GLOBE", kAll, globe},
        {"DRAPEAU", kAll, flag},
        {"CIBLE", kAll, target},
    };
}

} // namespace iconlib
