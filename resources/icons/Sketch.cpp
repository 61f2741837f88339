#include "resources/icons/Sketch.h"

#include "resources/icons/Drawing.h"

namespace iconlib {

using icon::Colour;

Sketch::Sketch(int pixels)
    : m_pixels(pixels)
    , m_side(pixels * kSamples)
    , m_colour(static_cast<std::size_t>(m_side * m_side), icon::kBlack)
    , m_covered(static_cast<std::size_t>(m_side * m_side), false) {}

void Sketch::fill(const Shape& shape, const Paint& paint) {
    const double unit = 32.0 / m_side;
    for (int j = 0; j < m_side; ++j)
        for (int i = 0; i < m_side; ++i) {
            const double x = (i + 0.5) * unit;
            const double y = (j + 0.5) * unit;
            if (!shape(x, y))
                continue;
            const std::size_t k = static_cast<std::size_t>(j * m_side + i);
            m_colour[k] = paint(x, y);
            m_covered[k] = true;
        }
}

void Sketch::fill(const Shape& shape, Colour colour) {
    fill(shape, [colour](double, double) { return colour; });
}

void Sketch::erase(const Shape& shape) {
    const double unit = 32.0 / m_side;
    for (int j = 0; j < m_side; ++j)
        for (int i = 0; i < m_side; ++i)
            if (shape((i + 0.5) * unit, (j + 0.5) * unit))
                m_covered[static_cast<std::size_t>(j * m_side + i)] = false;
}

icon::IconBitmap Sketch::finish(bool outline) const {
    icon::IconBitmap out{icon::Frame(m_pixels, m_pixels, icon::kBlack),
                         icon::Frame(m_pixels, m_pixels, icon::kWhite)};
    for (int y = 0; y < m_pixels; ++y)
        for (int x = 0; x < m_pixels; ++x) {
            int covered = 0;
            int r = 0, g = 0, b = 0;
            for (int j = 0; j < kSamples; ++j)
                for (int i = 0; i < kSamples; ++i) {
                    const std::size_t k =
                        static_cast<std::size_t>((y * kSamples + j) * m_side + x * kSamples + i);
                    if (!m_covered[k])
                        continue;
                    ++covered;
                    r += icon::redOf(m_colour[k]);
                    g += icon::greenOf(m_colour[k]);
                    b += icon::blueOf(m_colour[k]);
                }
            if (2 * covered < kSamples * kSamples)
                continue;
            out.image.set(x, y, icon::rgb(r / covered, g / covered, b / covered));
            out.mask.set(x, y, icon::kBlack);
        }
    if (!outline)
        return out;
    const icon::IconBitmap plain = out;
    const auto transparent = [&](int x, int y) {
        return !plain.mask.contains(x, y) || icon::isTransparentMask(plain.mask.at(x, y));
    };
    for (int y = 0; y < m_pixels; ++y)
        for (int x = 0; x < m_pixels; ++x)
            if (!transparent(x, y) && (transparent(x - 1, y) || transparent(x + 1, y) ||
                                       transparent(x, y - 1) || transparent(x, y + 1)))
                out.image.set(x, y, darken(plain.image.at(x, y), 0.55));
    return out;
}

} // namespace iconlib
