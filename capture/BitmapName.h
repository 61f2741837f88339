#pragma once

#include <QString>

#include <optional>

namespace capture {

// The file a captured picture is written to, from the name chosen in the save dialog: a name
// typed without an extension gets the bitmap one, and a name still holding a pattern ("*.BMP")
// is no file name at all, so nothing is written.
std::optional<QString> bitmapSavePath(const QString& chosen);

} // namespace capture
