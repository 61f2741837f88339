#pragma once

#include "cli/Arguments.h"
#include "cli/Console.h"

#include <string>
#include <vector>

namespace cli {

// One command of orvanne-icons. main() holds the table of them; a new command is one more file
// with its run function and one more row.
struct Command {
    const char* name;
    const char* synopsis; // the usage line after the program's name, French words
    const char* summary;  // what it does, in French
    std::vector<std::string> valueOptions;
    std::size_t minPositional;
    std::size_t maxPositional;
    int (*run)(const Arguments& args, Console& console);
    std::vector<std::string> flags = {}; // options without a value
};

int runInfo(const Arguments& args, Console& console);
int runToIco(const Arguments& args, Console& console);
int runToBmp(const Arguments& args, Console& console);
int runList(const Arguments& args, Console& console);
int runExtract(const Arguments& args, Console& console);
int runToPng(const Arguments& args, Console& console);
int runThumbnail(const Arguments& args, Console& console);
int runCreate(const Arguments& args, Console& console);

} // namespace cli
