#pragma once

#include "browser/CellPicture.h"

#include <cstddef>
#include <list>
#include <string>
#include <unordered_map>
#include <utility>

namespace browser {

// What a cell of the grid holds once loaded.
struct Thumbnail {
    enum class State { Icon, Unreadable, Missing };
    State state = State::Missing;
    CellPicture picture; // at the cell's size in screen pixels when state is Icon
};

// The decoded cells, the least recently used dropped first once their bytes pass the budget, so
// that paging through a large folder keeps memory flat. A budget smaller than one entry still
// keeps that entry: what was just put is always there.
class ThumbnailCache {
public:
    explicit ThumbnailCache(std::size_t budgetBytes)
        : m_budget(budgetBytes) {}

    // The entry, now the most recently used; nothing when it is not kept.
    const Thumbnail* use(const std::string& key);
    // The entry, its place in the order untouched.
    const Thumbnail* peek(const std::string& key) const;
    void put(const std::string& key, Thumbnail thumbnail);
    void erase(const std::string& key);
    void clear();

    void setBudget(std::size_t budgetBytes);
    std::size_t budget() const { return m_budget; }
    std::size_t bytes() const { return m_bytes; }
    std::size_t size() const { return m_order.size(); }

private:
    using Entry = std::pair<std::string, Thumbnail>;
    static std::size_t cost(const Entry& entry);
    void trim();

    std::size_t m_budget;
    std::size_t m_bytes = 0;
    std::list<Entry> m_order; // most recently used first
    std::unordered_map<std::string, std::list<Entry>::iterator> m_index;
};

} // namespace browser
