#include "EditorTestUtil.h"

#include <gtest/gtest.h>

using editor::Events;
using editor::IconEditor;
using editor::Tool;
using editortest::at;
using editortest::click;
using editortest::stroke;
using icon::rgb;

namespace {

int opaqueCount(const icon::IconPlanes& p) {
    int n = 0;
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x)
            n += !p.isTransparent(x, y);
    return n;
}

} // namespace

TEST(Pencil, PaintsTheCellUnderBothCoordinatesAboveZero) {
    const struct {
        double x, y;
        int cx, cy; // -1: nothing painted
    } cases[] = {{1, 1, 0, 0},   {0, 50, -1, -1},   {50, 0, -1, -1},  {0.4, 5, -1, -1},
                 {0.6, 5, 0, 0}, {319.4, 5, 31, 0}, {320, 5, -1, -1}, {105, 219, 10, 21}};
    for (const auto& c : cases) {
        IconEditor e;
        e.selectTool(Tool::Pencil);
        e.press(1, c.x, c.y);
        e.release(1, c.x, c.y);
        EXPECT_EQ(opaqueCount(e.planes()), c.cx < 0 ? 0 : 1) << c.x << "," << c.y;
        if (c.cx >= 0) {
            EXPECT_FALSE(e.planes().isTransparent(c.cx, c.cy));
        }
        // A stroke is one step, even one that painted nothing.
        EXPECT_EQ(e.history().undoCount(), 2u);
        EXPECT_TRUE(e.isModified());
    }
}

TEST(Pencil, AStrokeIsOneStepInTheButtonsColour) {
    IconEditor e;
    e.paletteRelease(2, 13, 0); // right button: dark red
    e.selectTool(Tool::Pencil);
    stroke(e, 2, {{1, 1}, {2, 1}, {3, 1}, {3, 2}});
    for (const auto& [x, y] : {std::pair{1, 1}, {2, 1}, {3, 1}, {3, 2}})
        EXPECT_EQ(e.planes().image.at(x, y), 0x000080u);
    EXPECT_EQ(opaqueCount(e.planes()), 4);
    EXPECT_EQ(e.history().undoCount(), 2u);
    // Other buttons are ignored everywhere.
    EXPECT_EQ(e.press(4, at(9), at(9)), editor::kNoEvent);
    e.move(4, at(9), at(9));
    EXPECT_EQ(e.release(4, at(9), at(9)), editor::kNoEvent);
    EXPECT_TRUE(e.planes().isTransparent(9, 9));
    EXPECT_EQ(e.history().undoCount(), 2u);
    // Without a held button a move draws nothing but still updates the readout.
    EXPECT_EQ(e.move(1, 123.4, 56.5), editor::kPositionChanged);
    EXPECT_EQ(e.positionText(), "  12 , 5");
    EXPECT_TRUE(e.planes().isTransparent(12, 5));
    // The eraser makes pixels transparent (and black) whatever the button.
    e.selectTool(Tool::Eraser);
    stroke(e, 2, {{1, 1}, {2, 1}});
    EXPECT_TRUE(e.planes().isTransparent(2, 1));
    EXPECT_EQ(e.planes().image.at(2, 1), icon::kBlack);
    EXPECT_EQ(opaqueCount(e.planes()), 2);
    EXPECT_EQ(e.history().undoCount(), 3u);
}

TEST(Picker, TakesAnOpaqueColourAndGoesBackToThePreviousTool) {
    IconEditor e;
    icon::IconPlanes icon;
    icon.paint(4, 4, rgb(1, 2, 3));
    e.loadIcon(icon);
    e.selectTool(Tool::Picker);
    e.selectTool(Tool::Picker); // chosen twice, the pad remembers the picker itself
    click(e, 1, 5, 5);
    EXPECT_EQ(e.tool(), Tool::Picker);
    e.selectTool(Tool::Line);
    e.selectTool(Tool::Picker);
    const Events events = click(e, 2, 4, 4);
    EXPECT_EQ(events & editor::kColoursChanged, editor::kColoursChanged);
    EXPECT_EQ(e.buttonColour(1), rgb(1, 2, 3));
    EXPECT_EQ(e.tool(), Tool::Line);

    const struct {
        double x, y;
        Events expected;
    } cases[] = {
        {at(5), at(5), editor::kToolChanged | editor::kBeep}, // transparent: beep, no change
        {320, 5, editor::kToolChanged},                       // accepted, reads nothing
        {5, 320, editor::kToolChanged},
        {321, 5, editor::kToolChanged}, // refused, but the picker still hands back the tool
        {-1, 5, editor::kToolChanged},
    };
    for (const auto& c : cases) {
        e.selectTool(Tool::Picker);
        e.press(1, c.x, c.y);
        EXPECT_EQ(e.release(1, c.x, c.y), c.expected) << c.x << "," << c.y;
        EXPECT_EQ(e.buttonColour(0), icon::kBlack);
        EXPECT_EQ(e.tool(), Tool::Line);
    }
    EXPECT_EQ(e.planes(), icon);
    EXPECT_EQ(e.history().undoCount(), 1u);
}

TEST(Fill, KeepsOpaqueAndTransparentAreasApart) {
    IconEditor e;
    icon::IconPlanes icon;
    // Left half opaque white, right half transparent (shows white over white).
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 16; ++x)
            icon.paint(x, y, icon::kWhite);
    e.loadIcon(icon);
    e.selectTool(Tool::Fill);
    e.paletteRelease(1, 13 * 7, 0); // silver
    click(e, 1, 3, 3);
    EXPECT_EQ(e.planes().image.at(0, 0), 0xC0C0C0u);
    EXPECT_EQ(e.planes().image.at(15, 31), 0xC0C0C0u);
    EXPECT_TRUE(e.planes().isTransparent(16, 0));
    EXPECT_EQ(e.history().undoCount(), 2u);

    // From the transparent side the fill stays among transparent pixels.
    e.paletteRelease(1, 13 * 2, 0); // green
    click(e, 1, 20, 20);
    EXPECT_EQ(e.planes().image.at(16, 0), 0x008000u);
    EXPECT_FALSE(e.planes().isTransparent(31, 31));
    EXPECT_EQ(e.planes().image.at(15, 0), 0xC0C0C0u);
}

TEST(Fill, StopsAtOtherColoursAndRecordsEvenAnIdleFill) {
    IconEditor e;
    e.selectTool(Tool::Rectangle);
    stroke(e, 1, {{5, 5}, {10, 10}}); // a black frame around a transparent hole
    e.selectTool(Tool::Fill);
    e.paletteRelease(1, 13 * 9, 0);
    click(e, 1, 7, 7);
    EXPECT_EQ(e.planes().image.at(7, 7), 0xF0CAA6u);
    EXPECT_EQ(e.planes().image.at(5, 5), icon::kBlack);
    EXPECT_TRUE(e.planes().isTransparent(4, 4));
    const icon::IconPlanes filled = e.planes();
    const std::size_t steps = e.history().undoCount();
    click(e, 1, 7, 7); // the same colour again
    EXPECT_EQ(e.planes(), filled);
    EXPECT_EQ(e.history().undoCount(), steps + 1);
    // A release off the canvas does nothing at all.
    e.press(1, 330, 5);
    EXPECT_EQ(e.release(1, 330, 5), editor::kNoEvent);
    EXPECT_EQ(e.history().undoCount(), steps + 1);
}

TEST(Figures, TheRubberBandNeverTouchesThePlanes) {
    IconEditor e;
    e.selectTool(Tool::TwoColourRectangle);
    e.press(2, at(2), at(2));
    e.move(2, at(6), at(5));
    EXPECT_EQ(e.rubberBand().size(), 20u);
    EXPECT_EQ(opaqueCount(e.planes()), 0);
    e.move(2, at(4), at(4));
    EXPECT_EQ(e.rubberBand().size(), 9u);
    e.release(2, at(6), at(5));
    EXPECT_TRUE(e.rubberBand().empty());
    // Right button: outline in the right colour (white), interior in the left (black).
    EXPECT_EQ(e.planes().image.at(2, 2), icon::kWhite);
    EXPECT_EQ(e.planes().image.at(3, 3), icon::kBlack);
    EXPECT_EQ(opaqueCount(e.planes()), 20);
    EXPECT_EQ(e.history().undoCount(), 2u);
    EXPECT_EQ(e.positionText(), "  6 , 5");
}

TEST(Figures, EveryFigureToolRecordsOneStep) {
    for (int t = static_cast<int>(Tool::Line); t <= static_cast<int>(Tool::TwoColourEllipse); ++t) {
        IconEditor e;
        e.selectTool(static_cast<Tool>(t));
        stroke(e, 1, {{1, 1}, {5, 3}, {8, 8}});
        EXPECT_EQ(e.history().undoCount(), 2u) << t;
        EXPECT_GT(opaqueCount(e.planes()), 0) << t;
        EXPECT_EQ(e.Undo(), editor::kRedraw);
        EXPECT_EQ(e.planes(), icon::IconPlanes::blank());
    }
}

TEST(ToolPad, MapsPointsToTools) {
    using editor::ToolPad;
    const struct {
        int x, y;
        std::optional<Tool> tool;
    } cases[] = {{27, 25, Tool::Selection},
                 {28, 0, Tool::Pencil},
                 {111, 0, Tool::Picker},
                 {0, 26, Tool::Fill},
                 {111, 77, Tool::TwoColourEllipse},
                 {112, 0, {}}};
    for (const auto& c : cases)
        EXPECT_EQ(ToolPad::toolAt(c.x, c.y), c.tool) << c.x << "," << c.y;
}
