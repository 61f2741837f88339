#include "shell/WindowPlacement.h"

#include <algorithm>

namespace shell {

namespace {
constexpr int kGap = 8;
constexpr int kNudge = 32;
} // namespace

QPoint placeBeside(const QRect& main, const QSize& window, const QRect& screen) {
    const QPoint sides[] = {
        {main.right() + 1 + kGap, main.top()},
        {main.left() - kGap - window.width(), main.top()},
        {main.left(), main.bottom() + 1 + kGap},
        {main.left(), main.top() - kGap - window.height()},
    };
    for (const QPoint& place : sides) {
        if (screen.contains(QRect(place, window)))
            return place;
    }
    // No side has room: keep to the screen, to the right of the main window as far as it can.
    const int right = std::max(screen.left(), screen.right() + 1 - window.width());
    const int bottom = std::max(screen.top(), screen.bottom() + 1 - window.height());
    QPoint place(std::clamp(sides[0].x(), screen.left(), right),
                 std::clamp(main.top(), screen.top(), bottom));
    if (place == main.topLeft())
        place += QPoint(kNudge, kNudge);
    return place;
}

} // namespace shell
