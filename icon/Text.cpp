#include "icon/Text.h"

namespace icon {

namespace {

void appendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

} // namespace

std::string utf8FromLatin1(std::span<const std::uint8_t> latin1) {
    std::string out;
    out.reserve(latin1.size());
    for (std::uint8_t c : latin1)
        appendUtf8(out, c);
    return out;
}

std::string utf8FromUtf16(std::span<const char16_t> utf16) {
    std::string out;
    out.reserve(utf16.size());
    for (std::size_t i = 0; i < utf16.size(); ++i) {
        const char32_t c = utf16[i];
        if (c >= 0xD800 && c < 0xDC00 && i + 1 < utf16.size() && utf16[i + 1] >= 0xDC00 &&
            utf16[i + 1] < 0xE000) {
            appendUtf8(out, 0x10000 + ((c - 0xD800) << 10) + (utf16[i + 1] - 0xDC00));
            ++i;
        } else if (c >= 0xD800 && c < 0xE000) {
            appendUtf8(out, 0xFFFD);
        } else {
            appendUtf8(out, c);
        }
    }
    return out;
}

std::string latin1FromUtf8(std::string_view utf8) {
    std::string out;
    for (std::size_t i = 0; i < utf8.size();) {
        const auto c = static_cast<unsigned char>(utf8[i]);
        std::size_t length = c < 0x80 ? 1 : c >= 0xF0 ? 4 : c >= 0xE0 ? 3 : c >= 0xC0 ? 2 : 1;
        if (i + length > utf8.size())
            length = 1;
        if (length == 2) {
            const char32_t code = ((c & 0x1Fu) << 6) | (static_cast<unsigned char>(utf8[i + 1]) & 0x3Fu);
            out += code < 0x100 ? static_cast<char>(code) : '?';
        } else {
            out += c < 0x80 ? static_cast<char>(c) : '?';
        }
        i += length;
    }
    return out;
}

} // namespace icon
