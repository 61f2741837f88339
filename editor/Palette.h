#pragma once

#include "icon/Colour.h"

#include <array>
#include <optional>
#include <string_view>

namespace editor {

// The editor's 256 colours, index = row·16 + column, shown as a 16×16 grid of 13-pixel cells.
class Palette {
public:
    static constexpr int kCount = 256;
    static constexpr int kColumns = 16;
    static constexpr int kCellPitch = 13;
    static constexpr int kGridSize = kColumns * kCellPitch; // 208
    static constexpr int kFirstIdentifier = 100;

    // Starts from the initial values.
    Palette() { reload(); }

    // Reads the initial values again (identifier 100 + i holds entry i).
    void reload();
    // Parses "identifier value" lines; lines starting with '#' and blank lines are skipped,
    // identifiers outside 100..355 are ignored.
    static std::array<icon::Colour, kCount> parse(std::string_view text);
    static const std::array<icon::Colour, kCount>& initialColours();

    icon::Colour at(int index) const { return m_colours[static_cast<std::size_t>(index)]; }
    void set(int index, icon::Colour colour) {
        m_colours[static_cast<std::size_t>(index)] = colour;
    }
    const std::array<icon::Colour, kCount>& colours() const { return m_colours; }

    // Where cell k is painted: a filled box of 13×13 pixels from (x, y) to (x + 12, y + 12),
    // framed by a sunken edge around (x, y, x + 13, y + 13).
    struct Cell {
        int x;
        int y;
    };
    static Cell cellOrigin(int index) {
        return {(index % kColumns) * kCellPitch, (index / kColumns) * kCellPitch};
    }

    // The cell under a release at (x, y): positions rounded halves to even, row from y and
    // column from x. Releases outside 0..208 are ignored; 208 itself is accepted, so a release
    // there on x wraps to the first cell of the next row, and one on y lands past the last
    // entry and is ignored.
    static std::optional<int> indexAt(double x, double y);

private:
    std::array<icon::Colour, kCount> m_colours{};
};

} // namespace editor
