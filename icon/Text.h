#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace icon {

// Text in the core is UTF-8. Old formats hold other encodings: these convert at their edge.

// Latin-1 characters (one byte each) as UTF-8.
std::string utf8FromLatin1(std::span<const std::uint8_t> latin1);
// UTF-16 code units as UTF-8; a lone surrogate becomes U+FFFD.
std::string utf8FromUtf16(std::span<const char16_t> utf16);
// UTF-8 as Latin-1: characters beyond U+00FF, and malformed bytes, become '?'.
std::string latin1FromUtf8(std::string_view utf8);

} // namespace icon
