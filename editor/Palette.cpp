#include "editor/Palette.h"

#include "editor/PaletteText.h"
#include "effects/Rounding.h"

#include <charconv>

namespace editor {

std::array<icon::Colour, Palette::kCount> Palette::parse(std::string_view text) {
    std::array<icon::Colour, kCount> colours{};
    while (!text.empty()) {
        const auto end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
        if (line.empty() || line.front() == '#')
            continue;
        long long identifier = 0, value = 0;
        const char* p = line.data();
        const char* last = line.data() + line.size();
        auto r = std::from_chars(p, last, identifier);
        if (r.ec != std::errc{})
            continue;
        p = r.ptr;
        while (p < last && (*p == ' ' || *p == '\t'))
            ++p;
        if (std::from_chars(p, last, value).ec != std::errc{})
            continue;
        const long long i = identifier - kFirstIdentifier;
        if (i >= 0 && i < kCount)
            colours[static_cast<std::size_t>(i)] = static_cast<icon::Colour>(value) & icon::kWhite;
    }
    return colours;
}

const std::array<icon::Colour, Palette::kCount>& Palette::initialColours() {
    static const std::array<icon::Colour, kCount> colours = parse(kPaletteText);
    return colours;
}

void Palette::reload() {
    m_colours = initialColours();
}

std::optional<int> Palette::indexAt(double x, double y) {
    if (x < 0 || x > kGridSize || y < 0 || y > kGridSize)
        return std::nullopt;
    const int index =
        effects::roundHalfEven(y) / kCellPitch * kColumns + effects::roundHalfEven(x) / kCellPitch;
    if (index >= kCount)
        return std::nullopt;
    return index;
}

} // namespace editor
