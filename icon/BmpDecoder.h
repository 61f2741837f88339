#pragma once

#include "icon/IconBitmap.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace icon {

// What the header of an icon's device-independent bitmap says, checked against the bytes that
// are there: when this is returned, the header, the colour table and every row of colour data
// lie inside the buffer. The AND mask that follows may be cut short.
struct DibLayout {
    int width = 0;
    int height = 0; // of the colour image: the header's height holds colour and mask rows
    bool topDown = false;
    int bitCount = 0;
    std::uint32_t compression = 0;
    std::size_t headerSize = 0;
    std::size_t paletteOffset = 0;
    std::size_t paletteEntries = 0;
    std::size_t paletteEntryBytes = 4;    // 3 for the old 12-byte header
    std::array<std::uint32_t, 4> masks{}; // red, green, blue, alpha (16 and 32 bits)
    std::size_t pixelOffset = 0;
    std::size_t rowBytes = 0;     // colour rows, padded to 4 bytes
    std::size_t maskRowBytes = 0; // AND mask rows, padded to 4 bytes
};

inline constexpr std::uint32_t kBiRgb = 0;
inline constexpr std::uint32_t kBiBitfields = 3;
inline constexpr std::uint32_t kBiAlphaBitfields = 6;

// Reads and checks the header of the bitmap `dib` (header, colour table, colour data, AND mask).
// A width or height of 0 in the header is replaced by the fallback (the directory's value).
// Nothing when the header is unusable, outside the limits, or the colour data is incomplete.
std::optional<DibLayout> readDibLayout(std::span<const std::uint8_t> dib, int fallbackWidth,
                                       int fallbackHeight);

// Decodes the bitmap of an icon image: colours at 1, 4, 8, 16, 24 or 32 bits and the 1-bit AND
// mask. For a 32-bit image whose alpha bytes are not all zero, alpha decides (below 128 is
// transparent) and the AND mask is ignored; otherwise the AND mask decides, and mask bytes missing
// at the end of the data count as opaque. Under the AND mask, transparent pixels keep the XOR
// image's colour (a coloured one inverts the background); under alpha they come out black.
// With an output size, the image comes out at that size, its pixels dropped or repeated (the
// same as resample(), without decoding what would be dropped).
std::optional<IconBitmap> decodeIconDib(std::span<const std::uint8_t> dib, int fallbackWidth,
                                        int fallbackHeight, int outputWidth = 0,
                                        int outputHeight = 0);

} // namespace icon
