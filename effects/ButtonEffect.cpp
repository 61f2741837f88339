#include "effects/ButtonEffect.h"

#include <algorithm>

namespace effects {

using icon::Colour;

Colour darken(Colour c, int amount) {
    return icon::rgb(std::max(icon::redOf(c) - amount, 0), std::max(icon::greenOf(c) - amount, 0),
                     std::max(icon::blueOf(c) - amount, 0));
}

void buttonEffect(icon::IconPlanes& icon) {
    const int last = icon::kIconSize - 1;
    auto touch = [&icon](int x, int y, int amount) {
        if (!icon.isTransparent(x, y))
            icon.image.set(x, y, darken(icon.image.at(x, y), amount));
    };
    int amount = 8;
    for (int k = 3; k >= 0; --k, amount *= 2) {
        // Rows take the corners; the columns stop one pixel short of them.
        for (int x = k; x <= last - k; ++x) {
            touch(x, k, amount);
            touch(x, last - k, amount);
        }
        for (int y = k + 1; y <= last - 1 - k; ++y) {
            touch(k, y, amount);
            touch(last - k, y, amount);
        }
    }
}

} // namespace effects
