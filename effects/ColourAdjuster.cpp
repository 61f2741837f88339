#include "effects/ColourAdjuster.h"

#include <algorithm>

namespace effects {

using icon::Colour;
using icon::kIconSize;

ColourAdjuster::ColourAdjuster(const icon::IconPlanes& icon, Colour background)
    : m_preview(icon::compose(icon, background, 1)) {
    for (int y = 0; y < kIconSize; ++y)
        for (int x = 0; x < kIconSize; ++x) {
            const int p = y * kIconSize + x;
            // Only a black mask counts as opaque here: the dialog has always marked every
            // other mask value, near-white ones included, as untouchable.
            Channels c{kMarker, kMarker, kMarker};
            if (icon.mask.at(x, y) == icon::kBlack) {
                const Colour colour = icon.image.at(x, y);
                c = {icon::redOf(colour), icon::greenOf(colour), icon::blueOf(colour)};
            }
            m_reference[p] = m_working[p] = m_display[p] = c;
        }
}

void ColourAdjuster::change(Bar bar, int value) {
    const int b = index(bar);
    m_current[b] = value;
    if (value == m_previous[b])
        return;
    const int step = value > m_previous[b] ? kStep : -kStep;
    const bool red = bar == Bar::Brightness || bar == Bar::Red;
    const bool green = bar == Bar::Brightness || bar == Bar::Green;
    const bool blue = bar == Bar::Brightness || bar == Bar::Blue;
    auto move = [step](int& working, int& display) {
        working += step;
        if (working >= 0 && working <= 255)
            display = working;
    };
    for (int p = 0; p < icon::Plane::kPixels; ++p) {
        Channels& w = m_working[p];
        Channels& d = m_display[p];
        if (red)
            move(w.red, d.red);
        if (green)
            move(w.green, d.green);
        if (blue)
            move(w.blue, d.blue);
        if (d.red != kMarker)
            paint(p, d);
    }
    m_previous[b] = value;
}

void ColourAdjuster::reset() {
    m_working = m_reference;
    m_display = m_reference;
    // A marked pixel shows white: the marker saturates every component.
    for (int p = 0; p < icon::Plane::kPixels; ++p)
        paint(p, m_reference[p]);
    m_current.fill(0);
    m_previous.fill(0);
}

void ColourAdjuster::paint(int p, const Channels& c) {
    auto clampByte = [](int v) {
        return std::clamp(v, 0, 255);
    };
    m_preview.set(p % kIconSize, p / kIconSize,
                  icon::rgb(clampByte(c.red), clampByte(c.green), clampByte(c.blue)));
}

void ColourAdjuster::applyTo(icon::IconPlanes& icon) const {
    for (int p = 0; p < icon::Plane::kPixels; ++p) {
        const Channels& d = m_display[p];
        if (d.red != kMarker)
            icon.image.set(p % kIconSize, p / kIconSize, icon::rgb(d.red, d.green, d.blue));
    }
}

} // namespace effects
