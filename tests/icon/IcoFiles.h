#pragma once

#include "icon/Colour.h"
#include "icon/IconBitmap.h"

#include <QImage>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace icontest {

// A bitmap of an icon image, written the way icon files hold them, for building test files.
struct BitmapPlan {
    int width = 4;
    int height = 4;
    int bits = 24;
    bool topDown = false;
    std::vector<icon::Colour> palette;    // 1, 4 and 8 bits
    std::uint32_t coloursUsed = 0;        // the header's count; 0 = full table
    std::uint32_t compression = 0;        // 3 = bit fields, given in `bitfields`
    std::vector<std::uint32_t> bitfields; // written after the 40-byte header
    // Index (1, 4, 8 bits), 16-bit value, colour 0x00BBGGRR (24 bits) or 0xAARRGGBB (32 bits).
    std::function<std::uint32_t(int x, int y)> pixel = [](int, int) {
        return 0u;
    };
    std::function<bool(int x, int y)> transparent = [](int, int) {
        return false;
    };
    bool withMask = true;
    int headerWidth = -1; // to make the header lie; -1 writes the real values
    int headerHeight = -1;
};

std::vector<std::uint8_t> dib(const BitmapPlan& bitmap);

struct Entry {
    int width = 0; // as the directory says (256 is written 0)
    int height = 0;
    int bitCount = 0;
    std::vector<std::uint8_t> data;
};

// An ICO (type 1) or CUR (type 2) file holding the entries in order.
std::vector<std::uint8_t> icoFile(const std::vector<Entry>& entries, int type = 1);
// A one-image icon file of the bitmap, the directory telling the truth.
std::vector<std::uint8_t> icoFile(const BitmapPlan& bitmap);

// A PNG file of width×height with the colour and alpha given per pixel (0xAARRGGBB).
std::vector<std::uint8_t> png(int width, int height,
                              const std::function<std::uint32_t(int, int)>& argb);

// Mismatching pixels between a decoded image and a reference picture: transparency must agree
// (alpha below 128 is transparent) and opaque pixels must have the same colour, each channel
// within `tolerance`. `first` tells where the first one is.
int mismatches(const icon::IconBitmap& decoded, const QImage& reference, std::string& first,
               int tolerance = 0);

} // namespace icontest
