#pragma once

#include "icon/Colour.h"
#include "icon/IconPlanes.h"

#include <vector>

namespace icon {

// A rectangle of colours: what a window shows, a background, a decoded image.
class Frame {
public:
    Frame() = default;
    Frame(int width, int height, Colour fill = kBlack);

    int width() const { return m_width; }
    int height() const { return m_height; }
    bool isEmpty() const { return m_width == 0 || m_height == 0; }
    bool contains(int x, int y) const { return x >= 0 && x < m_width && y >= 0 && y < m_height; }

    Colour at(int x, int y) const { return m_pixels[index(x, y)]; }
    void set(int x, int y, Colour c) { m_pixels[index(x, y)] = c; }
    void fill(Colour c);
    void fillRect(int x, int y, int w, int h, Colour c); // clipped to the frame

    // Row y, left to right: width() colours.
    const Colour* row(int y) const { return m_pixels.data() + index(0, y); }
    Colour* row(int y) { return m_pixels.data() + index(0, y); }

    bool operator==(const Frame&) const = default;

private:
    std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
               static_cast<std::size_t>(x);
    }
    int m_width = 0;
    int m_height = 0;
    std::vector<Colour> m_pixels;
};

// The icon shown over a background frame of 32·zoom square pixels: every icon pixel becomes a
// zoom×zoom block, each screen pixel (background AND mask) XOR colour.
Frame compose(const IconPlanes& icon, const Frame& background, int zoom);
// The same over a plain background colour.
Frame compose(const IconPlanes& icon, Colour background, int zoom);

} // namespace icon
