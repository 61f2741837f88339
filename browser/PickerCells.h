#pragma once

#include "icon/IconPlanes.h"
#include "icon/IconSource.h"

#include <cstddef>
#include <map>
#include <memory>
#include <unordered_map>
#include <vector>

namespace browser {

// The pictures of the icon picker's cells, decoded lazily: only the icons asked for, and in
// each pass no more icon data than a byte budget, so that a file of tens of thousands of
// icons shows its first rows at once and the window keeps answering while the rest comes.
// Icons that are made of the very same images (groups sharing their data) are decoded once.
class PickerCells {
public:
    // Icon data decoded in one pass before the window gets a turn again.
    static constexpr std::size_t kPassBudget = 4u * 1024u * 1024u;
    // Decoded cells kept; past this the cells out of view are forgotten.
    static constexpr std::size_t kKeptCells = 2048;

    explicit PickerCells(icon::IconSource source);

    int count() const { return m_source.count(); }
    // An animated cursor shows its first frame in every cell.
    bool firstInEveryCell() const;
    // The icon of the source that cell `n` (from 1) shows.
    int sourceNumber(int n) const { return firstInEveryCell() ? 1 : n; }
    const icon::IconSource& source() const { return m_source; }

    // The planes of cell n once decoded, or nothing yet.
    const icon::IconPlanes* cell(int n) const;
    bool isDecoded(int n) const { return cell(n) != nullptr; }
    // Decodes the cells first..last (from 1) not decoded yet, in order, stopping once `budget`
    // bytes of icon data have been read (always at least one). True when all of them are
    // decoded.
    bool decode(int first, int last, std::size_t budget = kPassBudget);

    // Bytes of icon data decoding cell n reads: what the budget counts.
    std::size_t cost(int n) const;
    // Bytes of icon data decoded since the source was opened.
    std::size_t bytesDecoded() const { return m_bytesDecoded; }

private:
    using Planes = std::shared_ptr<const icon::IconPlanes>;
    std::vector<std::size_t> dataKey(int number) const;
    void forgetOutside(int first, int last);

    icon::IconSource m_source;
    std::unordered_map<int, Planes> m_cells;
    std::map<std::vector<std::size_t>, Planes> m_byData;
    std::size_t m_bytesDecoded = 0;
};

} // namespace browser
