#pragma once

#include <QString>

namespace browser {

// The outcome of a file operation: no error, or the system's error number (errno).
struct FileResult {
    int error = 0;
    bool ok() const { return error == 0; }
};

// Not a system number: a copy whose source and target are the same file.
inline constexpr int kSameFile = -1;
// Not a system number: a source that is not a regular file (a folder, a device, a pipe).
inline constexpr int kNotRegular = -2;

// The French text the program shows for an error number, since the interface is French
// whatever the system's language.
QString errorText(int error);

} // namespace browser
