#pragma once

#include "icon/Colour.h"
#include "icon/Frame.h"
#include "icon/IconPlanes.h"

namespace icon {

// An icon image of any size, as decoded from a file: a colour frame and a mask frame of the
// same size (mask white where transparent, black where opaque; under white the colour is the
// file's XOR colour, black for most icons, anything for one that inverts its background).
struct IconBitmap {
    Frame image;
    Frame mask;

    int width() const { return image.width(); }
    int height() const { return image.height(); }
    bool isEmpty() const { return image.isEmpty(); }
    bool operator==(const IconBitmap&) const = default;
};

// Brings a bitmap to width×height by dropping or repeating pixels, never blending:
// destination pixel (x, y) takes source pixel (x·w/width, y·h/height).
IconBitmap resample(const IconBitmap& source, int width, int height);

// A 32×32 bitmap as the editor's planes (any other size is resampled first).
IconPlanes toPlanes(const IconBitmap& bitmap);
IconBitmap fromPlanes(const IconPlanes& planes);

// The bitmap shown over a plain background: (background AND mask) XOR colour per pixel.
Frame composeOver(const IconBitmap& bitmap, Colour background);

} // namespace icon
