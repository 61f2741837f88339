#include "browser/ThumbnailCache.h"

namespace browser {

std::size_t ThumbnailCache::cost(const Entry& entry) {
    // The picture, the key twice (list and index) and the bookkeeping of both.
    constexpr std::size_t kOverhead = 96;
    return entry.second.picture.bytes() + 2 * entry.first.capacity() + kOverhead;
}

const Thumbnail* ThumbnailCache::use(const std::string& key) {
    const auto found = m_index.find(key);
    if (found == m_index.end())
        return nullptr;
    m_order.splice(m_order.begin(), m_order, found->second);
    return &found->second->second;
}

const Thumbnail* ThumbnailCache::peek(const std::string& key) const {
    const auto found = m_index.find(key);
    return found == m_index.end() ? nullptr : &found->second->second;
}

void ThumbnailCache::put(const std::string& key, Thumbnail thumbnail) {
    erase(key);
    m_order.emplace_front(key, std::move(thumbnail));
    m_index.emplace(key, m_order.begin());
    m_bytes += cost(m_order.front());
    trim();
}

void ThumbnailCache::erase(const std::string& key) {
    const auto found = m_index.find(key);
    if (found == m_index.end())
        return;
    m_bytes -= cost(*found->second);
    m_order.erase(found->second);
    m_index.erase(found);
}

void ThumbnailCache::clear() {
    m_order.clear();
    m_index.clear();
    m_bytes = 0;
}

void ThumbnailCache::setBudget(std::size_t budgetBytes) {
    m_budget = budgetBytes;
    trim();
}

void ThumbnailCache::trim() {
    while (m_bytes > m_budget && m_order.size() > 1) {
        const Entry& oldest = m_order.back();
        m_bytes -= cost(oldest);
        m_index.erase(oldest.first);
        m_order.pop_back();
    }
}

} // namespace browser
