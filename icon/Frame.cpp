#include "icon/Frame.h"

#include <algorithm>
#include <cassert>

namespace icon {

Frame::Frame(int width, int height, Colour fill)
    : m_width(std::max(width, 0))
    , m_height(std::max(height, 0))
    , m_pixels(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height), fill) {}

void Frame::fill(Colour c) {
    std::fill(m_pixels.begin(), m_pixels.end(), c);
}

void Frame::fillRect(int x, int y, int w, int h, Colour c) {
    const int left = std::max(x, 0), top = std::max(y, 0);
    const int right = std::min(x + w, m_width), bottom = std::min(y + h, m_height);
    for (int row = top; row < bottom; ++row)
        std::fill_n(m_pixels.begin() + static_cast<std::ptrdiff_t>(index(left, row)),
                    std::max(right - left, 0), c);
}

Frame compose(const IconPlanes& icon, const Frame& background, int zoom) {
    assert(zoom > 0 && background.width() == kIconSize * zoom &&
           background.height() == kIconSize * zoom);
    Frame out = background;
    for (int y = 0; y < out.height(); ++y) {
        const int iy = y / zoom;
        for (int x = 0; x < out.width(); ++x) {
            const int ix = x / zoom;
            out.set(x, y,
                    composePixel(background.at(x, y), icon.mask.at(ix, iy), icon.image.at(ix, iy)));
        }
    }
    return out;
}

Frame compose(const IconPlanes& icon, Colour background, int zoom) {
    return compose(icon, Frame(kIconSize * zoom, kIconSize * zoom, background), zoom);
}

} // namespace icon
