#pragma once

#include "icon/IconPlanes.h"

#include <cstdint>
#include <deque>
#include <optional>

namespace editor {

// The undo and redo history: two stacks of whole-icon snapshots and a counter of pushes.
// The last element of the undo stack is always the icon as it is now. There is no depth limit;
// a snapshot is a plain copy of the two planes (8 KiB), held in a deque so that a long history
// never has to be copied to grow.
class History {
public:
    // Empties both stacks and sets the counter to 0.
    void ClearHistory();
    // Records the icon as it is now on the undo stack.
    void PushSnapshot(const icon::IconSnapshot& snapshot);
    void ClearRedo() { m_redo.clear(); }

    // Undo moves the current state to the redo stack first, then gives the state before it.
    // With only the base element left, that element moves to the redo stack and nothing is
    // given back: the caller keeps its planes and reports the failure.
    std::optional<icon::IconSnapshot> Undo();
    // The mirror: the last undone state comes back and becomes the current one.
    std::optional<icon::IconSnapshot> Redo();

    std::size_t undoCount() const { return m_undo.size(); }
    std::size_t redoCount() const { return m_redo.size(); }
    std::int32_t counter() const { return m_counter; }
    // The current state, when there is one.
    const icon::IconSnapshot* current() const { return m_undo.empty() ? nullptr : &m_undo.back(); }

private:
    std::deque<icon::IconSnapshot> m_undo;
    std::deque<icon::IconSnapshot> m_redo;
    std::int32_t m_counter = 0;
};

} // namespace editor
