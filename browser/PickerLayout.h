#pragma once

#include <optional>

namespace browser {

// The grid of the icon picker: ten icons a row, 32×32 at a pitch of 38 pixels from (3, 3),
// seen through a frame five rows high. A file of up to five rows fills the frame and does not
// scroll; a longer one is as high as its rows and the bar scrolls over what does not fit.
class PickerLayout {
public:
    static constexpr int kPerRow = 10;
    static constexpr int kPitch = 38;
    static constexpr int kMargin = 3;
    static constexpr int kIconSize = 32;
    static constexpr int kFrameHeight = 190;
    static constexpr int kFrameRows = kFrameHeight / kPitch;

    struct Point {
        int x = 0;
        int y = 0;
        bool operator==(const Point&) const = default;
    };
    struct Rows {
        int first = 0; // 0-based, inclusive
        int last = -1;
        bool operator==(const Rows&) const = default;
    };

    static int rows(int count);
    // Height of the grid picture `PicIcons`.
    static int gridHeight(int count);
    static bool scrolls(int count) { return rows(count) > kFrameRows; }
    // Pixels the bar scrolls over (its maximum, from 0).
    static int scrollRange(int count);
    // Top-left corner of icon `index` (0-based) in the grid picture.
    static Point iconOrigin(int index);
    // The icon number (from 1) under a point of the grid picture; nothing off the icons.
    static std::optional<int> iconAt(Point point, int count);
    // The rows that show, wholly or partly, when the grid is scrolled by `scroll` pixels.
    static Rows rowsInView(int scroll, int count);
};

} // namespace browser
