#pragma once

#include "effects/Kaleidoscope.h"
#include "effects/UniformGenerator.h"
#include "icon/Colour.h"
#include "icon/Frame.h"

#include <string>

namespace effects {

// What the kaleidoscope dialog holds for one opening: the density, the background colour and
// the preview. The preview is kept as a picture, so that "Ok" lays exactly what the user saw
// under the icon.
class KaleidoscopePreview {
public:
    explicit KaleidoscopePreview(icon::Colour background);

    int density() const { return m_density; }
    // The density control's new value, kept within 10..500.
    void setDensity(int density);
    static std::string densityLabel(int density) { return std::to_string(density); }

    icon::Colour background() const { return m_background; }
    // A back colour, even the same one again, clears the preview at once: a pattern drawn
    // before is lost. The program has always done so when the colour dialog was cancelled too.
    void setBackground(icon::Colour colour);

    // The preview in the background colour alone.
    void clear();
    // A new pattern of `density` passes over a cleared preview.
    void generate(UniformGenerator& random);

    const icon::Frame& picture() const { return m_picture; }

private:
    int m_density = Kaleidoscope::kDefaultDensity;
    icon::Colour m_background;
    icon::Frame m_picture;
};

} // namespace effects
