#include "cli/Console.h"

#include <iostream>

namespace cli {

std::ostream& Console::out() {
    return std::cout;
}

int Console::fail(int code, std::string_view message) {
    std::cout.flush();
    std::cerr << "orvanne-icons : " << message << std::endl;
    return code;
}

void Console::warn(std::string_view message) {
    std::cout.flush();
    std::cerr << "orvanne-icons : attention : " << message << std::endl;
}

int columns(std::string_view text) {
    int length = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0) != 0x80)
            length += byte >= 0xF0 ? 2 : 1;
    }
    return length;
}

std::string padded(std::string_view text, int width) {
    const auto length = static_cast<std::size_t>(columns(text));
    const std::size_t column = static_cast<std::size_t>(width < 0 ? -width : width);
    const std::string fill(length < column ? column - length : 0, ' ');
    return width < 0 ? std::string(text) + fill : fill + std::string(text);
}

std::string padded(long long number, int width) {
    return padded(std::to_string(number), width);
}

} // namespace cli
