#include "effects/GradientPreview.h"

#include <algorithm>

namespace effects {

GradientPreview::GradientPreview() {
    redraw();
}

void GradientPreview::setBar(int index, int value) {
    if (index < 0 || index >= kBars)
        return;
    m_bars[static_cast<std::size_t>(index)] = std::clamp(value, 0, 255);
}

icon::Colour GradientPreview::startColour() const {
    return icon::rgb(m_bars[0], m_bars[1], m_bars[2]);
}

icon::Colour GradientPreview::endColour() const {
    return icon::rgb(m_bars[3], m_bars[4], m_bars[5]);
}

void GradientPreview::setDirection(int direction) {
    m_direction = std::clamp(direction, 0, Gradient::kMaxDirection);
    redraw();
}

void GradientPreview::redraw() {
    m_picture = Gradient::render(startColour(), endColour(), angle());
}

} // namespace effects
