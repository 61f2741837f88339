#include "browser/PickerCells.h"

#include <algorithm>

namespace browser {

PickerCells::PickerCells(icon::IconSource source)
    : m_source(std::move(source)) {}

bool PickerCells::firstInEveryCell() const {
    return m_source.kind() == icon::IconSource::Kind::AnimatedCursor;
}

const icon::IconPlanes* PickerCells::cell(int n) const {
    const auto it = m_cells.find(sourceNumber(n));
    return it == m_cells.end() ? nullptr : it->second.get();
}

std::vector<std::size_t> PickerCells::dataKey(int number) const {
    // Where the icon's bytes lie says what it looks like: two icons with the same places are
    // the same picture.
    const icon::IconResource* resource = m_source.resource(number);
    if (resource == nullptr)
        return {};
    std::vector<std::size_t> key{static_cast<std::size_t>(resource->form)};
    if (resource->form == icon::IconResource::Form::Embedded) {
        key.insert(key.end(), {resource->offset, resource->size});
        return key;
    }
    for (const icon::GroupImage& image : resource->images)
        key.insert(key.end(),
                   {image.offset, image.size, image.width, image.height, image.bitCount});
    return key;
}

std::size_t PickerCells::cost(int n) const {
    const icon::IconResource* resource = m_source.resource(sourceNumber(n));
    if (resource == nullptr)
        return 0;
    if (resource->form == icon::IconResource::Form::Embedded)
        return resource->size;
    std::size_t bytes = 6;
    for (const icon::GroupImage& image : resource->images)
        bytes += 16 + image.size;
    return bytes;
}

bool PickerCells::decode(int first, int last, std::size_t budget) {
    first = std::max(first, 1);
    last = std::min(last, count());
    if (firstInEveryCell())
        first = last = std::min(1, last);
    forgetOutside(first, last);
    std::size_t spent = 0;
    bool decodedOne = false;
    for (int n = first; n <= last; ++n) {
        const int number = sourceNumber(n);
        if (m_cells.contains(number))
            continue;
        std::vector<std::size_t> key = dataKey(number);
        if (const auto shared = m_byData.find(key); shared != m_byData.end()) {
            m_cells.emplace(number, shared->second);
            continue;
        }
        const std::size_t bytes = cost(number);
        if (decodedOne && spent + bytes > budget)
            return false;
        auto planes = std::make_shared<const icon::IconPlanes>(m_source.planes(number));
        m_cells.emplace(number, planes);
        m_byData.emplace(std::move(key), std::move(planes));
        spent += bytes;
        m_bytesDecoded += bytes;
        decodedOne = true;
    }
    return true;
}

void PickerCells::forgetOutside(int first, int last) {
    if (m_cells.size() < kKeptCells)
        return;
    std::erase_if(m_cells,
                  [&](const auto& entry) { return entry.first < first || entry.first > last; });
    m_byData.clear();
    for (const auto& [number, planes] : m_cells)
        m_byData.emplace(dataKey(number), planes);
}

} // namespace browser
