#include "EditorTestUtil.h"
#include "editor/EditorCommands.h"

#include <gtest/gtest.h>

using editor::CanvasRect;
using editor::IconEditor;
using editor::SelectionState;
using editor::Tool;
using editortest::drawSelection;
using editortest::patternedIcon;

TEST(Selection, ADragLiftsARectangleOnGridLines) {
    IconEditor e;
    e.loadIcon(patternedIcon());
    e.selectTool(Tool::Selection);
    e.press(1, 64, 26); // snaps to (60, 30)
    e.move(1, 18, 77);  // the frame follows, corners not yet in order
    EXPECT_EQ(e.selectionFrame(), (CanvasRect{20, 30, 60, 80}));
    e.release(1, 16, 84); // snaps to (20, 80)
    EXPECT_EQ(e.selectionState(), SelectionState::Drawn);
    EXPECT_EQ(e.selectionRect(), (CanvasRect{20, 30, 60, 80}));
    ASSERT_EQ(e.selectionBuffers().width(), 4);
    ASSERT_EQ(e.selectionBuffers().height(), 5);
    EXPECT_EQ(e.selectionBuffers().image.at(0, 0), patternedIcon().image.at(2, 3));
    EXPECT_EQ(e.selectionBuffers().mask.at(3, 4), patternedIcon().mask.at(5, 7));
    // Selecting changes nothing and records nothing.
    EXPECT_EQ(e.planes(), patternedIcon());
    EXPECT_EQ(e.history().undoCount(), 1u);
    EXPECT_FALSE(e.isModified());
}

TEST(Selection, DragsSnapToTheCanvasOrLeaveNothing) {
    const struct {
        double x0, y0, x1, y1;
        std::optional<CanvasRect> rect;
    } cases[] = {{50, 50, 52, 90, {}},
                 {50, 50, 90, 48, {}},
                 {30, 30, 30, 30, {}},
                 {300, 300, 400, -40, CanvasRect{300, 0, 320, 300}}}; // kept on the canvas
    for (const auto& c : cases) {
        IconEditor e;
        e.selectTool(Tool::Selection);
        e.press(1, c.x0, c.y0);
        e.move(1, c.x1, c.y1);
        e.release(1, c.x1, c.y1);
        EXPECT_EQ(e.selectionState(), c.rect ? SelectionState::Drawn : SelectionState::None);
        EXPECT_EQ(e.selectionFrame(), c.rect) << c.x1 << "," << c.y1;
    }
}

TEST(Selection, MovingFloatsItAndDroppingStampsItInOneStep) {
    IconEditor e;
    icon::IconPlanes icon;
    icon.paint(1, 1, 0x111111);
    icon.paint(2, 1, 0x222222); // (1, 2) and (2, 2) stay transparent
    e.loadIcon(icon);
    drawSelection(e, 1, 1, 3, 3);
    EXPECT_TRUE(e.showsMoveShape(15, 15));
    EXPECT_FALSE(e.showsMoveShape(35, 15));
    e.press(1, 12, 12);
    EXPECT_EQ(e.selectionState(), SelectionState::Floating);
    EXPECT_TRUE(e.isSelectionMoving());
    e.move(1, 32, 42);
    e.release(1, 52, 72); // the frame settles where the button is let go
    EXPECT_FALSE(e.isSelectionMoving());
    EXPECT_EQ(e.selectionRect(), (CanvasRect{50, 70, 70, 90}));
    // Floating: the icon is untouched until the picture is stamped.
    EXPECT_EQ(e.planes(), icon);
    EXPECT_EQ(e.displayedPlanes().image.at(5, 7), 0x111111u);
    EXPECT_EQ(e.history().undoCount(), 1u);

    EXPECT_EQ(e.DropSelection(), editor::kRedraw);
    EXPECT_EQ(e.selectionState(), SelectionState::None);
    EXPECT_EQ(e.planes().image.at(5, 7), 0x111111u);
    EXPECT_EQ(e.planes().image.at(6, 7), 0x222222u);
    EXPECT_TRUE(e.planes().isTransparent(5, 8));
    EXPECT_EQ(e.planes().image.at(1, 1), 0x111111u); // lifting copies
    EXPECT_EQ(e.history().undoCount(), 2u);
    e.Undo();
    EXPECT_EQ(e.planes(), icon);
}

TEST(Selection, AMovedPictureIsClippedAtTheCanvasEdges) {
    IconEditor e;
    e.loadIcon(patternedIcon());
    drawSelection(e, 0, 0, 4, 4);
    e.press(1, 20, 20);
    e.move(1, 315, 315); // the grab point snaps to (320, 320)
    e.release(1, 315, 315);
    EXPECT_EQ(e.selectionRect(), (CanvasRect{300, 300, 340, 340}));
    e.DropSelection();
    EXPECT_EQ(e.planes().image.at(30, 31), patternedIcon().image.at(0, 1));
    EXPECT_EQ(e.planes().image.at(31, 31), patternedIcon().image.at(1, 1));
}

TEST(Selection, StartingANewSelectionDropsTheOldOne) {
    IconEditor e;
    QImage red(2, 2, QImage::Format_RGB32);
    red.fill(Qt::red);
    e.PasteClipboard(red, true);
    EXPECT_EQ(e.selectionState(), SelectionState::Floating);
    e.selectTool(Tool::Selection);
    e.press(1, 200, 200);
    EXPECT_EQ(e.selectionState(), SelectionState::None);
    EXPECT_FALSE(e.planes().isTransparent(0, 0));
    EXPECT_EQ(e.history().undoCount(), 2u);
    e.release(1, 250, 250);
    EXPECT_EQ(e.selectionState(), SelectionState::Drawn);
}

TEST(Selection, SelectAllOrADragThenDeleteClearsTheRectangleInOneStep) {
    IconEditor all;
    all.loadIcon(patternedIcon());
    all.selectTool(Tool::Pencil);
    EXPECT_EQ(all.SelectAll() & editor::kToolChanged, editor::kToolChanged);
    EXPECT_EQ(all.tool(), Tool::Selection);
    EXPECT_EQ(all.selectionRect(), (CanvasRect{0, 0, 320, 320}));
    EXPECT_EQ(all.history().undoCount(), 1u);
    all.DeleteSelection();
    EXPECT_EQ(all.planes(), icon::IconPlanes::blank());

    IconEditor e;
    e.loadIcon(patternedIcon());
    drawSelection(e, 2, 2, 5, 4);
    e.DeleteSelection();
    icon::IconPlanes expected = patternedIcon();
    for (int y = 2; y < 4; ++y)
        for (int x = 2; x < 5; ++x)
            expected.erase(x, y);
    EXPECT_EQ(e.planes(), expected);
    EXPECT_EQ(e.history().undoCount(), 2u);
    EXPECT_TRUE(e.isModified());
    // Without a selection the command still records its step.
    IconEditor plain;
    plain.DeleteSelection();
    EXPECT_EQ(plain.history().undoCount(), 2u);
}

TEST(Selection, CopyAndCutGiveThePictureOverWhite) {
    IconEditor e;
    e.loadIcon(patternedIcon());
    EXPECT_TRUE(e.CopySelection().isNull());
    EXPECT_TRUE(e.Cut().picture.isNull());
    EXPECT_EQ(e.history().undoCount(), 2u); // a cut without a selection is still a step
    EXPECT_EQ(e.history().redoCount(), 0u);

    drawSelection(e, 0, 0, 3, 2);
    const QImage copy = e.CopySelection();
    ASSERT_EQ(copy.size(), QSize(3, 2));
    EXPECT_EQ(copy.pixel(0, 0), qRgb(255, 255, 255)); // pixel 0 is transparent
    const icon::Colour c = patternedIcon().image.at(1, 0);
    EXPECT_EQ(copy.pixel(1, 0), qRgb(icon::redOf(c), icon::greenOf(c), icon::blueOf(c)));
    EXPECT_EQ(e.history().undoCount(), 2u); // copying records nothing

    const auto cut = e.Cut();
    EXPECT_EQ(cut.picture, copy);
    EXPECT_TRUE(e.planes().isTransparent(1, 0));
    EXPECT_EQ(e.history().undoCount(), 3u);
}

TEST(Selection, UndoFromThePadStampsAFloatingPictureFirst) {
    QImage red(2, 2, QImage::Format_RGB32);
    red.fill(Qt::red);
    const auto& undo = editor::commandInfo(editor::Command::Undo);
    // From the pad: the picture is stamped (one step), then that step is undone.
    IconEditor pad;
    pad.PasteClipboard(red, true);
    EXPECT_EQ(undo.run(pad, editor::Origin::Pad), editor::kRedraw);
    EXPECT_EQ(pad.selectionState(), SelectionState::None);
    EXPECT_EQ(pad.planes(), icon::IconPlanes::blank());
    EXPECT_EQ(pad.history().redoCount(), 1u);
    // From the keyboard: the picture keeps floating and the undo goes back past the base.
    IconEditor keys;
    keys.PasteClipboard(red, true);
    EXPECT_EQ(undo.run(keys, editor::Origin::Key), editor::kHistoryFailed);
    EXPECT_EQ(keys.selectionState(), SelectionState::Floating);
}
