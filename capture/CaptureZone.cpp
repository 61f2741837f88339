#include "capture/CaptureZone.h"

#include "effects/Rounding.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace capture {

namespace {

int toPixel(double value) {
    return effects::roundHalfEven(value);
}

// The second corner's step for each key, in units of the step.
QPoint direction(ZoneKey key) {
    switch (key) {
    case ZoneKey::Right:
        return {1, 0};
    case ZoneKey::Left:
        return {-1, 0};
    case ZoneKey::Down:
        return {0, 1};
    case ZoneKey::Up:
        return {0, -1};
    case ZoneKey::PageUp:
        return {1, -1};
    case ZoneKey::PageDown:
        return {1, 1};
    case ZoneKey::End:
        return {-1, 1};
    case ZoneKey::Home:
        return {-1, -1};
    }
    return {};
}

} // namespace

void CaptureZone::press(double x, double y) {
    x1 = x2 = toPixel(x);
    y1 = y2 = toPixel(y);
    width = height = 1;
}

void CaptureZone::drag(double x, double y) {
    x2 = toPixel(x);
    y2 = toPixel(y);
    measure();
}

void CaptureZone::release(double x, double y) {
    x2 = toPixel(x);
    y2 = toPixel(y);
    if (x2 < x1)
        std::swap(x1, x2);
    if (y2 < y1)
        std::swap(y1, y2);
    width = x2 - x1 + 1;
    if (width < kMinimumSide) {
        width = kMinimumSide;
        x2 = x1 + kMinimumSide;
    }
    height = y2 - y1 + 1;
    if (height < kMinimumSide) {
        height = kMinimumSide;
        y2 = y1 + kMinimumSide;
    }
    if (width == kMinimumSide && height == kMinimumSide) {
        // A plain click: the default square around the pointer. The corners span 36 pixels and
        // the copy takes 35, as it always has.
        width = height = kDefaultSide;
        x1 = toPixel(x - 18);
        x2 = toPixel(x + 17);
        y1 = toPixel(y - 18);
        y2 = toPixel(y + 17);
    }
}

void CaptureZone::moveByKey(ZoneKey key, bool shift, bool ctrl) {
    const QPoint step = direction(key) * (shift ? kShiftStep : 1);
    x2 += step.x();
    y2 += step.y();
    if (ctrl) {
        x1 += step.x();
        y1 += step.y();
    }
    measure();
}

void CaptureZone::measure() {
    width = std::abs(x2 - x1) + 1;
    height = std::abs(y2 - y1) + 1;
}

QString CaptureZone::sizeText() const {
    return QString::number(width) + QStringLiteral(" x") + QStringLiteral(" ") +
           QString::number(height);
}

QRect CaptureZone::cornerRect() const {
    return QRect(QPoint(std::min(x1, x2), std::min(y1, y2)),
                 QPoint(std::max(x1, x2), std::max(y1, y2)));
}

std::array<QPoint, 4> CaptureZone::nodeCorners() const {
    const QRect r =
        cornerRect().adjusted(-kNodeDistance, -kNodeDistance, kNodeDistance, kNodeDistance);
    return {r.topLeft(), r.topRight(), r.bottomRight(), r.bottomLeft()};
}

int CaptureZone::nodeAt(QPoint point, int reach) const {
    const auto corners = nodeCorners();
    for (int i = 0; i < 4; ++i) {
        const QPoint d = point - corners[static_cast<std::size_t>(i)];
        if (std::abs(d.x()) <= reach && std::abs(d.y()) <= reach)
            return i;
    }
    return -1;
}

void CaptureZone::grabNode(int node) {
    const QRect r = cornerRect();
    const std::array<QPoint, 4> corners{r.topLeft(), r.topRight(), r.bottomRight(), r.bottomLeft()};
    const auto index = static_cast<std::size_t>(std::clamp(node, 0, 3));
    const QPoint moving = corners[index];
    const QPoint still = corners[(index + 2) % 4];
    x1 = still.x();
    y1 = still.y();
    x2 = moving.x();
    y2 = moving.y();
    measure();
}

QRect CaptureZone::copyRect() const {
    return QRect(std::min(x1, x2), std::min(y1, y2), width, height);
}

} // namespace capture
