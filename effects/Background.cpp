#include "effects/Background.h"

namespace effects {

void applyBackground(icon::IconPlanes& icon, const icon::Frame& picture) {
    for (int y = 0; y < icon::kIconSize; ++y)
        for (int x = 0; x < icon::kIconSize; ++x)
            if (icon.isTransparent(x, y) && picture.contains(x, y))
                icon.image.set(x, y, picture.at(x, y));
    icon.mask.fill(icon::kBlack);
}

} // namespace effects
