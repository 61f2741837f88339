#include "editor/History.h"

namespace editor {

void History::ClearHistory() {
    m_undo.clear();
    m_redo.clear();
    m_counter = 0;
}

void History::PushSnapshot(const icon::IconSnapshot& snapshot) {
    ++m_counter;
    m_undo.push_back(snapshot);
}

std::optional<icon::IconSnapshot> History::Undo() {
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

std::optional<icon::IconSnapshot> History::Redo() {
    if (m_redo.empty())
        return std::nullopt;
    m_undo.push_back(m_redo.back());
    m_redo.pop_back();
    return m_undo.back();
}

} // namespace editor
