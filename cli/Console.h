#pragma once

#include <ostream>
#include <string>
#include <string_view>

namespace cli {

// Exit status of every command.
enum ExitCode : int {
    kSuccess = 0,
    kRefused = 1, // the input is refused or the output cannot be written
    kUsage = 2,   // the command line is wrong
};

// Where a command writes: its results on standard output, its complaints on standard error,
// in UTF-8, each complaint one line prefixed with the program's name.
class Console {
public:
    std::ostream& out();
    // Prints "orvanne-icons : <message>" on standard error and gives `code` back.
    int fail(int code, std::string_view message);
    // Prints "orvanne-icons : attention : <message>" on standard error; the command goes on.
    void warn(std::string_view message);
};

// The characters of UTF-8 text as columns have always been counted: one per character, two
// beyond U+FFFF.
int columns(std::string_view text);

// Text laid out in a column of `width` characters: right-aligned, or left-aligned when width is
// negative. Characters are counted as the screen shows them, not as bytes.
std::string padded(std::string_view text, int width);
std::string padded(long long number, int width);

} // namespace cli
