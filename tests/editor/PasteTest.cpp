#include "EditorTestUtil.h"
#include "editor/PasteSizing.h"

#include <gtest/gtest.h>

using editor::IconEditor;
using editor::PasteFit;
using editor::SelectionState;

TEST(PasteSizing, TheDialogIsForPicturesLargerThanTheIcon) {
    EXPECT_TRUE(editor::pasteNeedsDialog({33, 10}));
    EXPECT_TRUE(editor::pasteNeedsDialog({1, 33}));
    EXPECT_FALSE(editor::pasteNeedsDialog({32, 32}));
}

TEST(PasteSizing, ProportionalSizeShrinksInTenThousandths) {
    const struct {
        int w, h, outW, outH;
    } cases[] = {{100, 50, 32, 16}, {1000, 1, 32, 1}, {1, 1000, 1, 32},  {64, 48, 32, 24},
                 {33, 10, 32, 10},  {40, 40, 32, 32}, {50, 100, 16, 32}, {640, 480, 32, 24},
                 {300, 7, 32, 1},   {33, 33, 32, 32}};
    for (const auto& c : cases)
        EXPECT_EQ(editor::ProportionalSize(c.w, c.h), QSize(c.outW, c.outH)) << c.w << "x" << c.h;
    // At least one step is always taken, even for a picture that already fits.
    EXPECT_EQ(editor::ProportionalSize(32, 16), QSize(32, 16));
    EXPECT_EQ(editor::ProportionalSize(10, 10), QSize(10, 10));
    // The dialog's other answer squeezes a large picture into the square.
    EXPECT_EQ(editor::pasteSize({100, 50}, PasteFit::Square), QSize(32, 32));
    EXPECT_EQ(editor::pasteSize({20, 7}, PasteFit::Square), QSize(20, 7));
}

TEST(Paste, StretchesByDroppingPixels) {
    // 64×2: columns alternate red and blue; halving keeps every even column, never a blend.
    QImage picture(64, 2, QImage::Format_RGB32);
    for (int x = 0; x < 64; ++x)
        for (int y = 0; y < 2; ++y)
            picture.setPixel(x, y, x % 2 ? qRgb(0, 0, 255) : qRgb(255, 0, 0));
    IconEditor e;
    e.PasteClipboard(picture, true, PasteFit::Proportional);
    ASSERT_EQ(e.selectionBuffers().width(), 32);
    ASSERT_EQ(e.selectionBuffers().height(), 1);
    for (int x = 0; x < 32; ++x)
        ASSERT_EQ(e.selectionBuffers().image.at(x, 0), icon::rgb(255, 0, 0));
    EXPECT_EQ(e.selectionRect(), (editor::CanvasRect{0, 0, 320, 10}));
}

TEST(Paste, TransparentPasteHolesTheBackgroundAndLowAlpha) {
    QImage picture(4, 1, QImage::Format_ARGB32);
    picture.setPixel(0, 0, qRgba(255, 255, 255, 255)); // the background colour
    picture.setPixel(1, 0, qRgba(10, 20, 30, 255));
    picture.setPixel(2, 0, qRgba(10, 20, 30, 127)); // nearly see-through
    picture.setPixel(3, 0, qRgba(10, 20, 30, 128));
    const struct {
        bool opaque;
        bool transparent[4];
    } cases[] = {{false, {true, false, true, false}}, {true, {false, false, false, false}}};
    for (const auto& c : cases) {
        IconEditor e;
        e.PasteClipboard(picture, c.opaque);
        EXPECT_EQ(e.selectionState(), SelectionState::Floating);
        const icon::IconBitmap& b = e.selectionBuffers();
        for (int x = 0; x < 4; ++x) {
            EXPECT_EQ(icon::isTransparentMask(b.mask.at(x, 0)), c.transparent[x])
                << "opaque " << c.opaque << " pixel " << x;
            if (c.transparent[x]) {
                EXPECT_EQ(b.image.at(x, 0), icon::kBlack);
            }
        }
        EXPECT_EQ(e.planes(), icon::IconPlanes::blank());
        EXPECT_EQ(e.history().undoCount(), 1u);
    }
}

TEST(Paste, ReadsPicturesOfAnyFormat) {
    QImage premultiplied(2, 1, QImage::Format_ARGB32_Premultiplied);
    premultiplied.setPixel(0, 0, qRgba(0, 0, 0, 0));
    premultiplied.setPixel(1, 0, qRgba(200, 100, 50, 255));
    QImage indexed(2, 1, QImage::Format_Indexed8);
    indexed.setColorTable({qRgb(255, 255, 255), qRgb(200, 100, 50)});
    indexed.setPixel(0, 0, 0);
    indexed.setPixel(1, 0, 1);
    for (const QImage& picture : {premultiplied, indexed}) {
        IconEditor e;
        e.PasteClipboard(picture, false);
        EXPECT_TRUE(icon::isTransparentMask(e.selectionBuffers().mask.at(0, 0)))
            << picture.format();
        EXPECT_EQ(e.selectionBuffers().image.at(1, 0), icon::rgb(200, 100, 50)) << picture.format();
    }
}

TEST(Paste, CopiedSelectionComesBackWithItsHoles) {
    IconEditor e;
    e.loadIcon(editortest::patternedIcon());
    e.SelectAll();
    const QImage copy = e.CopySelection();
    e.NewIcon();
    e.PasteClipboard(copy, false);
    e.DropSelection();
    EXPECT_EQ(e.planes(), editortest::patternedIcon());
}

TEST(Paste, NothingToPasteChangesNothing) {
    IconEditor e;
    EXPECT_EQ(e.PasteClipboard(QImage(), false), editor::kNoEvent);
    EXPECT_EQ(e.selectionState(), SelectionState::None);
}
