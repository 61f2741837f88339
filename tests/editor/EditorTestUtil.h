#pragma once

#include "editor/IconEditor.h"

#include <initializer_list>
#include <utility>

namespace editortest {

// The middle of a cell in canvas pixels.
inline double at(int cell) {
    return cell * 10 + 5;
}

// A press, moves through the given cells and a release, all with one button.
inline editor::Events stroke(editor::IconEditor& e, int button,
                             std::initializer_list<std::pair<int, int>> cells) {
    editor::Events events = 0;
    const auto first = *cells.begin();
    events |= e.press(button, at(first.first), at(first.second));
    std::pair<int, int> last = first;
    for (const auto& c : cells) {
        events |= e.move(button, at(c.first), at(c.second));
        last = c;
    }
    return events | e.release(button, at(last.first), at(last.second));
}

inline editor::Events click(editor::IconEditor& e, int button, int cx, int cy) {
    return stroke(e, button, {{cx, cy}});
}

// An icon whose every pixel differs, a seventh of them transparent.
inline icon::IconPlanes patternedIcon() {
    icon::IconPlanes planes;
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) {
            const unsigned i = static_cast<unsigned>(y * 32 + x);
            if (i % 7 == 0)
                planes.erase(x, y);
            else
                planes.paint(x, y, (i * 2654435761u) & 0xFFFFFF);
        }
    return planes;
}

// Selects the tool and drags a selection between two grid corners (in cells).
inline void drawSelection(editor::IconEditor& e, int left, int top, int right, int bottom) {
    e.selectTool(editor::Tool::Selection);
    e.press(1, left * 10, top * 10);
    e.move(1, right * 10, bottom * 10);
    e.release(1, right * 10, bottom * 10);
}

} // namespace editortest
