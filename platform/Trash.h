#pragma once

#include <QString>

namespace platform {

// Moves a file to the desktop trash, where the user can take it back. False when it could
// not be moved (the file is then left where it was).
bool moveToTrash(const QString& path);

} // namespace platform
