#pragma once

#include <QString>

#include <filesystem>

namespace iconqt {

// A path as the file system holds it (bytes), from a name shown or typed in the interface.
std::filesystem::path pathFromText(const QString& text);
// A path as the interface shows it; names that are not valid text show replacement marks.
QString textFromPath(const std::filesystem::path& path);

} // namespace iconqt
