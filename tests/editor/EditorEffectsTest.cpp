#include "EditorTestUtil.h"

#include "effects/Gradient.h"
#include "effects/Transforms.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

using editor::CanvasRect;
using editor::Events;
using editor::IconEditor;
using editor::SelectionState;
using editortest::drawSelection;
using editortest::patternedIcon;

namespace {

struct EffectCase {
    const char* name;
    std::function<Events(IconEditor&)> run;
};

// The pixel effects, by name.
EffectCase named(const char* name, editor::PixelEffect effect) {
    return {name, [=](IconEditor& e) {
                return e.applyEffect(effect);
            }};
}

using P = editor::PixelEffect;
const std::vector<EffectCase> kBlockEffects = {
    named("mirror left-right", P::FlipHorizontal),
    named("mirror top-bottom", P::FlipVertical),
    named("turn left", P::TurnLeft),
    named("turn right", P::TurnRight),
    named("reflect left/right", P::ReflectLeftOntoRight),
    named("reflect right/left", P::ReflectRightOntoLeft),
    named("reflect top/bottom", P::ReflectTopOntoBottom),
    named("reflect bottom/top", P::ReflectBottomOntoTop),
    named("grey levels", P::GreyLevels),
    named("negative", P::Negative),
};

Events adjustColours(IconEditor& e) {
    auto adjuster = e.beginColourAdjustment();
    adjuster.change(effects::ColourAdjuster::Bar::Brightness, 5);
    return e.applyColourAdjustment(adjuster);
}

const std::vector<EffectCase> kWholeIconEffects = {
    {"button", &IconEditor::buttonEffect},
    {"gradient",
     [](IconEditor& e) {
         return e.applyBackground(effects::Gradient::render(0, icon::kWhite, 45));
     }},
    {"colour adjustment", adjustColours},
};

} // namespace

TEST(EditorEffects, OnTheWholeIconEachIsOneStepThatUndoRestores) {
    for (const auto* table : {&kBlockEffects, &kWholeIconEffects})
        for (const EffectCase& c : *table) {
            IconEditor e;
            e.loadIcon(patternedIcon());
            EXPECT_EQ(c.run(e), editor::kRedraw) << c.name;
            EXPECT_NE(e.planes(), patternedIcon()) << c.name;
            EXPECT_EQ(e.history().undoCount(), 2u) << c.name;
            EXPECT_TRUE(e.isModified()) << c.name;
            e.Undo();
            EXPECT_EQ(e.planes(), patternedIcon()) << c.name;
        }
}

TEST(EditorEffects, OnAFloatingSelectionOnlyTheBuffersChange) {
    for (const EffectCase& c : kBlockEffects) {
        IconEditor e;
        e.loadIcon(patternedIcon());
        drawSelection(e, 2, 2, 8, 6);
        e.press(1, 25, 25); // grabbing floats it
        e.release(1, 25, 25);
        ASSERT_EQ(e.selectionState(), SelectionState::Floating);
        const icon::IconBitmap before = e.selectionBuffers();
        c.run(e);
        EXPECT_EQ(e.planes(), patternedIcon()) << c.name;
        EXPECT_NE(e.selectionBuffers(), before) << c.name;
        EXPECT_EQ(e.selectionState(), SelectionState::Floating) << c.name;
        EXPECT_EQ(e.history().undoCount(), 1u) << c.name;
        EXPECT_EQ(e.history().redoCount(), 0u) << c.name;
    }
}

TEST(EditorEffects, OnADrawnSelectionTheZoneChangesInPlaceWithoutAStep) {
    IconEditor e;
    e.loadIcon(patternedIcon());
    drawSelection(e, 2, 2, 8, 6);
    e.applyEffect(P::FlipHorizontal);
    EXPECT_EQ(e.selectionState(), SelectionState::Drawn);
    EXPECT_EQ(e.history().undoCount(), 1u);
    EXPECT_TRUE(e.isModified());
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) {
            const bool inside = x >= 2 && x < 8 && y >= 2 && y < 6;
            const int sx = inside ? 2 + 7 - x : x;
            ASSERT_EQ(e.planes().image.at(x, y), patternedIcon().image.at(sx, y));
            ASSERT_EQ(e.planes().mask.at(x, y), patternedIcon().mask.at(sx, y));
        }
}

TEST(EditorEffects, AQuarterTurnLiftsADrawnSelection) {
    IconEditor e;
    e.loadIcon(patternedIcon());
    drawSelection(e, 1, 2, 6, 5); // 5 × 3 cells
    e.applyEffect(P::TurnLeft);   // a selection turns clockwise anyway
    EXPECT_EQ(e.selectionState(), SelectionState::Floating);
    EXPECT_EQ(e.selectionRect(), (CanvasRect{10, 20, 40, 70}));
    icon::IconBitmap lifted{icon::Frame(5, 3), icon::Frame(5, 3)};
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x) {
            lifted.image.set(x, y, patternedIcon().image.at(1 + x, 2 + y));
            lifted.mask.set(x, y, patternedIcon().mask.at(1 + x, 2 + y));
        }
    EXPECT_EQ(e.selectionBuffers(), effects::turnRight(lifted));
    EXPECT_EQ(e.planes(), patternedIcon());
    EXPECT_EQ(e.history().undoCount(), 1u);
    e.applyEffect(P::TurnRight);
    EXPECT_EQ(e.selectionRect(), (CanvasRect{10, 20, 60, 50}));
}

TEST(EditorEffects, ReflectionsNeedEvenSidesOfTheSelection) {
    IconEditor e;
    const P reflections[] = {P::ReflectLeftOntoRight, P::ReflectRightOntoLeft,
                             P::ReflectTopOntoBottom, P::ReflectBottomOntoTop};
    for (P r : reflections)
        EXPECT_TRUE(e.effectEnabled(r));
    drawSelection(e, 0, 0, 7, 6);
    const bool expected[] = {false, false, true, true};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(e.effectEnabled(reflections[i]), expected[i]) << i;
    EXPECT_TRUE(e.effectEnabled(P::Negative));
    EXPECT_EQ(e.applyEffect(P::ReflectLeftOntoRight), editor::kNoEvent);
}

TEST(EditorEffects, WholeIconEffectsStampAFloatingSelectionFirst) {
    for (const EffectCase& c : kWholeIconEffects) {
        IconEditor e;
        QImage red(3, 3, QImage::Format_RGB32);
        red.fill(Qt::red);
        e.PasteClipboard(red, true);
        c.run(e);
        EXPECT_EQ(e.selectionState(), SelectionState::None) << c.name;
        EXPECT_FALSE(e.planes().isTransparent(1, 1)) << c.name;
        // One step for the stamp, one for the effect.
        EXPECT_EQ(e.history().undoCount(), 3u) << c.name;
    }
}

TEST(EditorEffects, BackgroundsKeepOpaquePixelsAndStillRecordAStep) {
    icon::IconPlanes opaque = patternedIcon();
    opaque.mask.fill(icon::kBlack);
    IconEditor e;
    e.loadIcon(opaque);
    e.applyBackground(icon::Frame(32, 32, 0x123456));
    EXPECT_EQ(e.planes(), opaque);
    EXPECT_EQ(e.history().undoCount(), 2u);
}
