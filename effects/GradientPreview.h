#pragma once

#include "effects/Gradient.h"
#include "icon/Colour.h"
#include "icon/Frame.h"

#include <array>

namespace effects {

// What the gradient dialog holds for one opening: six channel bars (red, green and blue of the
// start colour, then of the end colour), the direction and the preview. The preview is drawn
// when it is asked for, and when the direction changes; moving a channel bar alone leaves the
// last drawing in place, and that drawing is what "Ok" applies.
class GradientPreview {
public:
    static constexpr int kBars = 6;

    // Start black, end white, direction 0, and the preview drawn once.
    GradientPreview();

    int bar(int index) const { return m_bars[static_cast<std::size_t>(index)]; }
    // A channel bar's new value, kept within 0..255; the preview is not redrawn.
    void setBar(int index, int value);
    icon::Colour startColour() const;
    icon::Colour endColour() const;

    int direction() const { return m_direction; }
    int angle() const { return Gradient::angleOf(m_direction); }
    // The direction bar's new value, kept within 0..8; the preview is redrawn.
    void setDirection(int direction);

    // Draws the preview from the bars and the angle as they are now.
    void redraw();
    const icon::Frame& picture() const { return m_picture; }

private:
    std::array<int, kBars> m_bars{0, 0, 0, 255, 255, 255};
    int m_direction = 0;
    icon::Frame m_picture;
};

} // namespace effects
