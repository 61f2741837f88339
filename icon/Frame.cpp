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

QImage Frame::toImage() const {
    QImage image(m_width, m_height, QImage::Format_RGB32);
    for (int y = 0; y < m_height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < m_width; ++x) {
            const Colour c = at(x, y);
            line[x] = qRgb(redOf(c), greenOf(c), blueOf(c));
        }
    }
    return image;
}

Frame Frame::fromImage(const QImage& source) {
    const QImage image = source.convertToFormat(QImage::Format_RGB32);
    Frame frame(image.width(), image.height());
    for (int y = 0; y < frame.m_height; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < frame.m_width; ++x)
            frame.set(x, y, rgb(qRed(line[x]), qGreen(line[x]), qBlue(line[x])));
    }
    return frame;
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
