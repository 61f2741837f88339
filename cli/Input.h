#pragma once

#include "cli/Console.h"

#include "icon/FileBytes.h"

#include <memory>
#include <string>

namespace cli {

// A file name as the messages show it: « name ».
std::string quoted(const std::string& path);

// A file named on the command line, mapped rather than copied; nothing, after saying why, when it
// cannot be read (missing, not a regular file, too large).
std::shared_ptr<const icon::MappedFile> readInput(const std::string& path, Console& console);

} // namespace cli
