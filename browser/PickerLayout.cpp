#include "browser/PickerLayout.h"

#include <algorithm>

namespace browser {

int PickerLayout::rows(int count) {
    return count <= 0 ? 0 : (count + kPerRow - 1) / kPerRow;
}

int PickerLayout::gridHeight(int count) {
    return scrolls(count) ? rows(count) * kPitch : kFrameHeight;
}

int PickerLayout::scrollRange(int count) {
    return scrolls(count) ? rows(count) * kPitch - kFrameHeight : 0;
}

PickerLayout::Point PickerLayout::iconOrigin(int index) {
    return {kMargin + (index % kPerRow) * kPitch, kMargin + (index / kPerRow) * kPitch};
}

std::optional<int> PickerLayout::iconAt(Point point, int count) {
    if (point.x < 0 || point.y < 0)
        return std::nullopt;
    const int column = point.x / kPitch;
    const int row = point.y / kPitch;
    if (column >= kPerRow)
        return std::nullopt;
    const long long number = static_cast<long long>(row) * kPerRow + column + 1;
    if (number > count)
        return std::nullopt;
    return static_cast<int>(number);
}

PickerLayout::Rows PickerLayout::rowsInView(int scroll, int count) {
    const int total = rows(count);
    if (total == 0)
        return {};
    const int top = std::clamp(scroll, 0, scrollRange(count));
    const int first = top / kPitch;
    const int last = std::min(total - 1, (top + kFrameHeight - 1) / kPitch);
    return {first, last};
}

} // namespace browser
