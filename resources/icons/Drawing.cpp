#include "resources/icons/Drawing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace iconlib {

using icon::Colour;

Colour mix(Colour a, Colour b, double t) {
    t = std::clamp(t, 0.0, 1.0);
    const auto channel = [t](int x, int y) {
        return static_cast<int>(std::lround(x + (y - x) * t));
    };
    return icon::rgb(channel(icon::redOf(a), icon::redOf(b)),
                     channel(icon::greenOf(a), icon::greenOf(b)),
                     channel(icon::blueOf(a), icon::blueOf(b)));
}

Shape rect(double x0, double y0, double x1, double y1) {
    return [=](double x, double y) {
        return x >= x0 && x < x1 && y >= y0 && y < y1;
    };
}

Shape roundRect(double x0, double y0, double x1, double y1, double radius) {
    return [=](double x, double y) {
        if (x < x0 || x >= x1 || y < y0 || y >= y1)
            return false;
        const double cx = std::clamp(x, x0 + radius, x1 - radius);
        const double cy = std::clamp(y, y0 + radius, y1 - radius);
        return (x - cx) * (x - cx) + (y - cy) * (y - cy) <= radius * radius;
    };
}

Shape ellipse(double cx, double cy, double rx, double ry) {
    return [=](double x, double y) {
        const double dx = (x - cx) / rx;
        const double dy = (y - cy) / ry;
        return dx * dx + dy * dy <= 1.0;
    };
}

Shape circle(double cx, double cy, double r) {
    return ellipse(cx, cy, r, r);
}

Shape ring(double cx, double cy, double inner, double outer) {
    return [=](double x, double y) {
        const double d = std::hypot(x - cx, y - cy);
        return d >= inner && d <= outer;
    };
}

Shape polygon(std::vector<std::pair<double, double>> points) {
    return [points = std::move(points)](double x, double y) {
        bool inside = false;
        for (std::size_t i = 0, j = points.size() - 1; i < points.size(); j = i++) {
            const auto [xi, yi] = points[i];
            const auto [xj, yj] = points[j];
            if ((yi > y) != (yj > y) && x < (xj - xi) * (y - yi) / (yj - yi) + xi)
                inside = !inside;
        }
        return inside;
    };
}

Shape line(double x0, double y0, double x1, double y1, double width) {
    return [=](double x, double y) {
        const double dx = x1 - x0;
        const double dy = y1 - y0;
        const double length = dx * dx + dy * dy;
        const double t =
            length == 0 ? 0 : std::clamp(((x - x0) * dx + (y - y0) * dy) / length, 0.0, 1.0);
        return std::hypot(x - (x0 + t * dx), y - (y0 + t * dy)) <= width / 2;
    };
}

Shape arc(double cx, double cy, double radius, double width, double from, double to) {
    return [=](double x, double y) {
        const double d = std::hypot(x - cx, y - cy);
        if (std::abs(d - radius) > width / 2)
            return false;
        double a = std::atan2(cy - y, x - cx) * 180 / std::numbers::pi;
        while (a < from)
            a += 360;
        while (a >= from + 360)
            a -= 360;
        return a <= to;
    };
}

Shape unite(Shape a, Shape b) {
    return [=](double x, double y) {
        return a(x, y) || b(x, y);
    };
}

Shape minus(Shape a, Shape b) {
    return [=](double x, double y) {
        return a(x, y) && !b(x, y);
    };
}

Shape both(Shape a, Shape b) {
    return [=](double x, double y) {
        return a(x, y) && b(x, y);
    };
}

Paint vertical(Colour top, Colour bottom, double y0, double y1) {
    return [=](double, double y) {
        return mix(top, bottom, (y - y0) / (y1 - y0));
    };
}

Paint along(Colour from, Colour to, double x0, double y0, double x1, double y1) {
    return [=](double x, double y) {
        const double dx = x1 - x0;
        const double dy = y1 - y0;
        return mix(from, to, ((x - x0) * dx + (y - y0) * dy) / (dx * dx + dy * dy));
    };
}

Paint radial(Colour centre, Colour edge, double cx, double cy, double r) {
    return [=](double x, double y) {
        return mix(centre, edge, std::hypot(x - cx, y - cy) / r);
    };
}

Paint shaded(Colour c, double y0, double y1) {
    return vertical(lighten(c, 0.35), darken(c, 0.12), y0, y1);
}

} // namespace iconlib
