#pragma once

#include "resources/icons/Sketch.h"

#include <utility>
#include <vector>

namespace iconlib {

// Colours of the library: one warm, slightly soft palette for every icon.
namespace tone {
inline constexpr icon::Colour yellow = icon::rgb(250, 200, 70);
inline constexpr icon::Colour orange = icon::rgb(244, 140, 52);
inline constexpr icon::Colour red = icon::rgb(222, 68, 60);
inline constexpr icon::Colour pink = icon::rgb(240, 120, 160);
inline constexpr icon::Colour purple = icon::rgb(146, 98, 204);
inline constexpr icon::Colour blue = icon::rgb(66, 136, 222);
inline constexpr icon::Colour sky = icon::rgb(130, 200, 245);
inline constexpr icon::Colour teal = icon::rgb(40, 170, 160);
inline constexpr icon::Colour green = icon::rgb(86, 178, 84);
inline constexpr icon::Colour brown = icon::rgb(164, 110, 62);
inline constexpr icon::Colour paper = icon::rgb(252, 250, 242);
inline constexpr icon::Colour silver = icon::rgb(184, 190, 200);
inline constexpr icon::Colour steel = icon::rgb(110, 120, 136);
inline constexpr icon::Colour ink = icon::rgb(46, 52, 64);
inline constexpr icon::Colour white = icon::rgb(255, 255, 255);
} // namespace tone

icon::Colour mix(icon::Colour a, icon::Colour b, double t);
inline icon::Colour lighten(icon::Colour c, double t) {
    return mix(c, icon::kWhite, t);
}
inline icon::Colour darken(icon::Colour c, double t) {
    return mix(c, icon::kBlack, t);
}

// Shapes, in icon units.
Shape rect(double x0, double y0, double x1, double y1);
Shape roundRect(double x0, double y0, double x1, double y1, double radius);
Shape ellipse(double cx, double cy, double rx, double ry);
Shape circle(double cx, double cy, double r);
Shape ring(double cx, double cy, double inner, double outer);
Shape polygon(std::vector<std::pair<double, double>> points);
// A stroke of the given width with round ends.
Shape line(double x0, double y0, double x1, double y1, double width);
// A band of a ring between two angles in degrees (0 to the right, counter-clockwise).
Shape arc(double cx, double cy, double radius, double width, double from, double to);
Shape unite(Shape a, Shape b);
Shape minus(Shape a, Shape b);
Shape both(Shape a, Shape b);

// Paints.
Paint vertical(icon::Colour top, icon::Colour bottom, double y0, double y1);
Paint along(icon::Colour from, icon::Colour to, double x0, double y0, double x1, double y1);
Paint radial(icon::Colour centre, icon::Colour edge, double cx, double cy, double r);
// The library's usual shading: lighter at the top of [y0, y1], deeper at the bottom.
Paint shaded(icon::Colour c, double y0, double y1);

} // namespace iconlib
