#include "EditorTestUtil.h"

#include <gtest/gtest.h>

using editor::IconEditor;
using editor::Tool;
using editortest::click;

TEST(EditorHistory, ThreeStrokesUndoneAndRedone) {
    IconEditor e;
    e.loadIcon(editortest::patternedIcon());
    e.selectTool(Tool::Pencil);
    std::vector<icon::IconPlanes> states{e.planes()};
    for (int i = 0; i < 3; ++i) {
        click(e, 1, 5 + i, 5);
        states.push_back(e.planes());
    }
    for (int i = 2; i >= 0; --i) {
        EXPECT_EQ(e.Undo(), editor::kRedraw);
        EXPECT_EQ(e.planes(), states[i]);
    }
    EXPECT_EQ(e.Undo(), editor::kHistoryFailed);
    EXPECT_EQ(e.planes(), states[0]);
    // The failed undo moved the base across: the first redo restores it and the next three
    // give the strokes back in order.
    EXPECT_EQ(e.Redo(), editor::kRedraw);
    EXPECT_EQ(e.planes(), states[0]);
    for (int i = 1; i <= 3; ++i) {
        e.Redo();
        EXPECT_EQ(e.planes(), states[i]);
    }
    EXPECT_EQ(e.Redo(), editor::kHistoryFailed);
    // A new stroke empties the redo stack.
    e.Undo();
    e.Undo();
    EXPECT_EQ(e.history().redoCount(), 2u);
    click(e, 1, 3, 3);
    EXPECT_EQ(e.history().redoCount(), 0u);
    EXPECT_EQ(e.Redo(), editor::kHistoryFailed);
}

TEST(EditorHistory, EveryStateIsKept) {
    IconEditor e;
    const icon::IconPlanes blank = e.planes();
    e.selectTool(Tool::Pencil);
    for (int i = 0; i < 200; ++i)
        click(e, 1 + i % 2, i % 32, i / 32);
    EXPECT_EQ(e.history().undoCount(), 201u);
    for (int i = 0; i < 200; ++i)
        ASSERT_EQ(e.Undo(), editor::kRedraw) << i;
    EXPECT_EQ(e.planes(), blank);
}

TEST(EditorHistory, LoadingBasesTheHistoryOnTheOpenedIcon) {
    IconEditor e;
    e.selectTool(Tool::Pencil);
    click(e, 1, 1, 1);
    e.loadIcon(editortest::patternedIcon());
    EXPECT_EQ(e.history().undoCount(), 1u);
    EXPECT_EQ(e.history().counter(), 1);
    EXPECT_FALSE(e.isModified());
    EXPECT_EQ(*e.history().current(), editortest::patternedIcon());
    EXPECT_EQ(e.Undo(), editor::kHistoryFailed);
    EXPECT_EQ(e.planes(), editortest::patternedIcon());
}
