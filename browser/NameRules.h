#pragma once

#include <QString>

namespace browser {

// The names the browser's save dialogs propose. They keep the program's old habit of looking at
// the last 12 characters of a path only, a width made for "12345678.ico" names: a longer name is
// proposed cut to its last 12 characters, on purpose.

// The last 12 characters of `path`; when they hold a "/", only what follows the first one.
QString proposedName(const QString& path);
// The same name with its last three characters replaced by "bmp"; "*.bmp" for an empty path
// (nothing selected).
QString proposedBmpName(const QString& path);
// The folder remembered after a copy: `chosen` less its last part, found by the same
// 12-character rule (so a long name leaves part of itself in the folder, as it always did).
QString folderBeforeName(const QString& chosen);

} // namespace browser
