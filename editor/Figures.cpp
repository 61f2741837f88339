#include "editor/Figures.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace editor {

using icon::Colour;

namespace {

bool inIcon(int x, int y) {
    return icon::Plane::contains(x, y);
}

// The rectangle of cells of a figure, corners put in order.
struct Box {
    int left, top, right, bottom;
    Box(int x0, int y0, int x1, int y1)
        : left(std::min(x0, x1))
        , top(std::min(y0, y1))
        , right(std::max(x0, x1))
        , bottom(std::max(y0, y1)) {}
    bool onEdge(int x, int y) const { return x == left || x == right || y == top || y == bottom; }
    // The part of the box inside the icon.
    int firstX() const { return std::max(left, 0); }
    int lastX() const { return std::min(right, icon::kIconSize - 1); }
    int firstY() const { return std::max(top, 0); }
    int lastY() const { return std::min(bottom, icon::kIconSize - 1); }
};

// The ellipse inscribed in the box: a cell belongs to it when its centre (x + ½, y + ½) lies
// inside the ellipse whose bounding rectangle is the box's outer edges. Every quantity is a
// multiple of ½, exact in floating point, so the shape is exactly symmetric. Membership is
// worked out once for the cells that can matter (the box within the icon, one cell around it
// for the outline test), as one span of columns per row: the shape is convex.
class EllipseShape {
public:
    explicit EllipseShape(const Box& box) {
        const double centreX = (box.left + box.right + 1) / 2.0;
        const double centreY = (box.top + box.bottom + 1) / 2.0;
        const double radiusX = (box.right - box.left + 1) / 2.0;
        const double radiusY = (box.bottom - box.top + 1) / 2.0;
        m_firstRow = box.firstY() - 1;
        const int rows = box.lastY() - box.firstY() + 3;
        m_spans.assign(static_cast<std::size_t>(std::max(rows, 0)), {1, 0});
        for (int i = 0; i < rows; ++i) {
            const int y = m_firstRow + i;
            if (y < box.top || y > box.bottom)
                continue;
            const double dy = (y + 0.5 - centreY) / radiusY;
            const double rest = 1.0 - dy * dy;
            if (rest < 0)
                continue;
            // The first column of the row inside the ellipse, found from the left edge of the
            // box and exact by the same test as everywhere else.
            const int middle = static_cast<int>(std::floor(centreX - 0.5));
            auto inside = [&](int x) {
                const double dx = (x + 0.5 - centreX) / radiusX;
                return dx * dx + dy * dy <= 1.0;
            };
            const double reach = radiusX * std::sqrt(rest);
            int first = std::max(box.left, static_cast<int>(std::floor(centreX - reach - 0.5)) - 1);
            while (first <= middle && !inside(first))
                ++first;
            if (first > middle)
                continue;
            // Symmetric: the last column mirrors the first.
            m_spans[static_cast<std::size_t>(i)] = {first, box.left + box.right - first};
        }
    }

    bool contains(int x, int y) const {
        const int i = y - m_firstRow;
        if (i < 0 || i >= static_cast<int>(m_spans.size()))
            return false;
        const auto& [first, last] = m_spans[static_cast<std::size_t>(i)];
        return x >= first && x <= last;
    }
    bool onOutline(int x, int y) const {
        return contains(x, y) && (!contains(x - 1, y) || !contains(x + 1, y) ||
                                  !contains(x, y - 1) || !contains(x, y + 1));
    }

private:
    int m_firstRow = 0;
    std::vector<std::pair<int, int>> m_spans; // first and last column of each row
};

template <typename Member>
void addCells(std::vector<PaintedCell>& out, const Box& box, Colour colour, Member member) {
    for (int y = box.firstY(); y <= box.lastY(); ++y)
        for (int x = box.firstX(); x <= box.lastX(); ++x)
            if (member(x, y))
                out.push_back({x, y, colour});
}

} // namespace

std::vector<PaintedCell> lineCells(int x0, int y0, int x1, int y1, Colour colour) {
    std::vector<PaintedCell> out;
    const int dx = std::abs(x1 - x0), dy = -std::abs(y1 - y0);
    const int sx = x0 < x1 ? 1 : -1, sy = y0 < y1 ? 1 : -1;
    int error = dx + dy;
    int x = x0, y = y0;
    for (;;) {
        if (inIcon(x, y))
            out.push_back({x, y, colour});
        if (x == x1 && y == y1)
            break;
        const int twice = 2 * error;
        if (twice >= dy) {
            error += dy;
            x += sx;
        }
        if (twice <= dx) {
            error += dx;
            y += sy;
        }
    }
    return out;
}

std::vector<PaintedCell> figureCells(Tool tool, int x0, int y0, int x1, int y1, Colour pen,
                                     Colour other) {
    const Box box(x0, y0, x1, y1);
    const EllipseShape ellipse(box);
    auto all = [](int, int) {
        return true;
    };
    auto edge = [&box](int x, int y) {
        return box.onEdge(x, y);
    };
    auto inside = [&box](int x, int y) {
        return !box.onEdge(x, y);
    };
    auto region = [&ellipse](int x, int y) {
        return ellipse.contains(x, y);
    };
    auto outline = [&ellipse](int x, int y) {
        return ellipse.onOutline(x, y);
    };
    auto interior = [&ellipse](int x, int y) {
        return ellipse.contains(x, y) && !ellipse.onOutline(x, y);
    };

    std::vector<PaintedCell> out;
    switch (tool) {
    case Tool::Line:
        return lineCells(x0, y0, x1, y1, pen);
    case Tool::Rectangle:
        addCells(out, box, pen, edge);
        break;
    case Tool::FilledRectangle:
        addCells(out, box, pen, all);
        break;
    case Tool::TwoColourRectangle:
        addCells(out, box, other, inside);
        addCells(out, box, pen, edge);
        break;
    case Tool::Ellipse:
        addCells(out, box, pen, outline);
        break;
    case Tool::FilledEllipse:
        addCells(out, box, pen, region);
        break;
    case Tool::TwoColourEllipse:
        addCells(out, box, other, interior);
        addCells(out, box, pen, outline);
        break;
    default:
        break;
    }
    return out;
}

void paintCells(icon::IconPlanes& planes, const std::vector<PaintedCell>& cells) {
    for (const PaintedCell& cell : cells)
        planes.paint(cell.x, cell.y, cell.colour);
}

} // namespace editor
