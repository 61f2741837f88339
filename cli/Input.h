#pragma once

#include "cli/Console.h"

#include "icon/FileBytes.h"

#include <QString>

#include <memory>

namespace cli {

// A file name as the messages show it: « name ».
QString quoted(const QString& path);

// A file named on the command line, mapped rather than copied; nothing, after saying why, when it
// cannot be read (missing, not a regular file, too large).
std::shared_ptr<const icon::MappedFile> readInput(const QString& path, Console& console);

} // namespace cli
