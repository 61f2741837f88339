#pragma once

#include "cli/Console.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace cli {

// A file name as the messages show it: « name ».
QString quoted(const QString& path);

// The bytes of a file named on the command line; nothing, after saying why, when it cannot be
// read.
std::optional<std::vector<std::uint8_t>> readInput(const QString& path, Console& console);

} // namespace cli
