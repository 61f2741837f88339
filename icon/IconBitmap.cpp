#include "icon/IconBitmap.h"

namespace icon {

IconBitmap resample(const IconBitmap& source, int width, int height) {
    if (source.width() == width && source.height() == height)
        return source;
    IconBitmap out{Frame(width, height, kBlack), Frame(width, height, kWhite)};
    if (source.isEmpty())
        return out;
    for (int y = 0; y < height; ++y) {
        const int sy = static_cast<int>(static_cast<long long>(y) * source.height() / height);
        for (int x = 0; x < width; ++x) {
            const int sx = static_cast<int>(static_cast<long long>(x) * source.width() / width);
            out.image.set(x, y, source.image.at(sx, sy));
            out.mask.set(x, y, source.mask.at(sx, sy));
        }
    }
    return out;
}

IconPlanes toPlanes(const IconBitmap& bitmap) {
    const IconBitmap b = resample(bitmap, kIconSize, kIconSize);
    IconPlanes planes;
    for (int y = 0; y < kIconSize; ++y)
        for (int x = 0; x < kIconSize; ++x) {
            planes.image.set(x, y, b.image.at(x, y));
            planes.mask.set(x, y, b.mask.at(x, y));
        }
    return planes;
}

IconBitmap fromPlanes(const IconPlanes& planes) {
    IconBitmap b{Frame(kIconSize, kIconSize), Frame(kIconSize, kIconSize)};
    for (int y = 0; y < kIconSize; ++y)
        for (int x = 0; x < kIconSize; ++x) {
            b.image.set(x, y, planes.image.at(x, y));
            b.mask.set(x, y, planes.mask.at(x, y));
        }
    return b;
}

Frame composeOver(const IconBitmap& bitmap, Colour background) {
    Frame out(bitmap.width(), bitmap.height(), background);
    for (int y = 0; y < out.height(); ++y)
        for (int x = 0; x < out.width(); ++x)
            out.set(x, y, composePixel(background, bitmap.mask.at(x, y), bitmap.image.at(x, y)));
    return out;
}

} // namespace icon
