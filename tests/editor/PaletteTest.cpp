#include "editor/Palette.h"
#include "editor/IconEditor.h"

#include <gtest/gtest.h>

using editor::IconEditor;
using editor::Palette;

TEST(Palette, ParsesIdentifiersAndSkipsTheRest) {
    const auto colours = Palette::parse("# comment\n\n101 255\n99 7\n356 9\n355 65280\nbad line\n");
    EXPECT_EQ(colours[1], 255u);
    EXPECT_EQ(colours[255], 65280u);
    EXPECT_EQ(colours[0], 0u);
}

TEST(Palette, ReleaseMapsToACell) {
    const struct {
        double x, y;
        int index; // -1: ignored
    } cases[] = {{0, 0, 0},      {207, 207, 255},   {13, 0, 1},    {12.4, 0, 0}, {12.5, 0, 0},
                 {13.5, 0, 1},   {208, 0, 16},      {208, 13, 32}, {0, 208, -1}, {-0.1, 5, -1},
                 {5, 208.1, -1}, {207.5, 194, 240}, {0, 195, 240}};
    for (const auto& c : cases) {
        const auto index = Palette::indexAt(c.x, c.y);
        if (c.index < 0) {
            EXPECT_FALSE(index) << c.x << "," << c.y;
        } else {
            EXPECT_EQ(index, c.index) << c.x << "," << c.y;
        }
    }
    EXPECT_EQ(Palette::cellOrigin(17).x, 13);
    EXPECT_EQ(Palette::cellOrigin(17).y, 13);
}

TEST(Palette, ReleasesSetTheButtonColours) {
    IconEditor e;
    EXPECT_EQ(e.paletteRelease(2, 13, 0), editor::kColoursChanged);
    EXPECT_EQ(e.buttonColour(1), 0x000080u);
    EXPECT_EQ(e.buttonColour(0), icon::kBlack);
    e.paletteRelease(1, 207, 207);
    EXPECT_EQ(e.buttonColour(0), icon::kWhite);
    EXPECT_EQ(e.paletteRelease(4, 13, 0), editor::kNoEvent);
    EXPECT_EQ(e.paletteRelease(1, 0, 208), editor::kNoEvent);
    EXPECT_EQ(e.buttonColour(0), icon::kWhite);

    // "Couleurs vraies": the cell is redefined first.
    EXPECT_EQ(e.paletteRelease(1, 30, 30, 0x123456),
              editor::kColoursChanged | editor::kPaletteChanged);
    EXPECT_EQ(e.palette().at(34), 0x123456u);
    EXPECT_EQ(e.buttonColour(0), 0x123456u);

    e.NewIcon();
    EXPECT_EQ(e.buttonColour(0), icon::kBlack);
    EXPECT_EQ(e.buttonColour(1), icon::kWhite);
    EXPECT_EQ(e.palette().at(34), 0x123456u); // kept until the window loads again
}
