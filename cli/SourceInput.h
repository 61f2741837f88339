#pragma once

#include "cli/Arguments.h"
#include "cli/Console.h"

#include "icon/IconSource.h"

#include <optional>
#include <string>

namespace cli {

// The icon source of a file named on the command line; nothing, after saying why, when the
// file cannot be read or is not a file that holds icons.
std::optional<icon::IconSource> openSource(const std::string& path, Console& console);

// What a file is, as the listing says it.
std::string kindName(icon::IconSource::Kind kind);

// A whole number written in decimal (spaces around allowed); nothing for anything else.
std::optional<int> parseNumber(const std::string& text);

// The value of "--index N" (icons are numbered from 1): nothing when the option is absent,
// the exit code when it is wrong (a usage error for a bad number, a refusal for a number the
// file does not have).
struct Index {
    std::optional<int> number; // the icon asked for, if one was
    int failure = 0;           // the exit code when the option is wrong, else 0
};
Index indexOption(const Arguments& args, const icon::IconSource& source, const std::string& path,
                  Console& console);

} // namespace cli
