#include "editor/History.h"

namespace editor {

void History::clear() {
    m_undo.clear();
    m_redo.clear();
    m_counter = 0;
}

void History::push(const icon::IconSnapshot& snapshot) {
    ++m_counter;
    m_undo.push_back(snapshot);
}

std::optional<icon::IconSnapshot> History::undo() {
    if (m_undo.empty())
        return std::nullopt;
    // The move happens before the restore, so undoing the base element moves it across and
    // then fails; a redo brings it back.
    m_redo.push_back(m_undo.back());
    m_undo.pop_back();
    if (m_undo.empty())
        return std::nullopt;
    return m_undo.back();
}

std::optional<icon::IconSnapshot> History::redo() {
    if (m_redo.empty())
        return std::nullopt;
    m_undo.push_back(m_redo.back());
    m_redo.pop_back();
    return m_undo.back();
}

} // namespace editor
