#include "editor/EditorCommands.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using editor::Pad;

TEST(EditorCommands, TheTableIsWholeAndEachPadCountsFromZero) {
    std::set<char> keys;
    for (const editor::EditorCommand& c : editor::editorCommands()) {
        EXPECT_EQ(&editor::commandInfo(c.command), &c) << c.text;
        if (c.key != 0) {
            EXPECT_TRUE(keys.insert(c.key).second) << c.key;
            EXPECT_EQ(editor::commandForKey(c.key), &c);
        }
    }
    for (Pad pad : {Pad::Edition, Pad::Couleurs, Pad::Effets, Pad::Reflets}) {
        int expected = 0;
        for (const editor::EditorCommand* c : editor::padCommands(pad))
            EXPECT_EQ(c->index, expected++) << c->text;
    }
    EXPECT_EQ(editor::padCommands(Pad::Edition).size(), 11u);
    EXPECT_EQ(editor::commandForKey('A'), nullptr);
}

} // namespace
