#pragma once

#include "browser/IconGrid.h"

#include <filesystem>
#include <optional>

namespace browser {

// What a key does in the main window, wherever its focus is (but on a button, which takes
// Return and Space for itself): the grid's moves and the editor on the centred icon.
enum class GridKey { PageNext, PagePrevious, LineNext, LinePrevious, First, Last, Edit };

// The key (a Qt::Key) pressed without modifiers; nothing for a key the grid leaves alone.
std::optional<GridKey> gridKey(int key);
// Makes the move a key says; false for Edit, which is not a move.
bool applyGridKey(IconGrid& grid, GridKey key);

// Where a file dropped on the main window takes it: a folder shows that folder; an icon file
// shows its folder centred on it. Nothing for anything else.
struct DropTarget {
    std::filesystem::path folder;
    std::optional<std::filesystem::path> icon;
};
std::optional<DropTarget> dropTarget(const std::filesystem::path& dropped);

} // namespace browser
