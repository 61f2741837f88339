#include "effects/KaleidoscopePreview.h"

#include <algorithm>

namespace effects {

KaleidoscopePreview::KaleidoscopePreview(icon::Colour background)
    : m_background(background)
    , m_picture(icon::kIconSize, icon::kIconSize, background) {}

void KaleidoscopePreview::setDensity(int density) {
    m_density = std::clamp(density, Kaleidoscope::kMinimumDensity, Kaleidoscope::kMaximumDensity);
}

void KaleidoscopePreview::setBackground(icon::Colour colour) {
    m_background = colour;
    clear();
}

void KaleidoscopePreview::clear() {
    m_picture.fill(m_background);
}

void KaleidoscopePreview::generate(UniformGenerator& random) {
    m_picture = Kaleidoscope::generate(m_density, m_background, random);
}

} // namespace effects
