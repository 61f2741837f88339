#pragma once

#include <filesystem>
#include <optional>
#include <vector>

namespace editor {

// The icon the editor opens from files dropped on it: the first one whose name ends in ".ico"
// (in any case) and that is a regular file, a link to one included. Folders and other files
// are refused; nothing when none is left. Whether the file really holds an icon is the open's
// business, as for the Open dialog.
std::optional<std::filesystem::path> droppedIcon(const std::vector<std::filesystem::path>& files);

} // namespace editor
