#include "icon/IcoReader.h"

#include "tests/icon/IcoFiles.h"

#include <gtest/gtest.h>

using namespace icon;
using namespace icontest;

namespace {

// A little palette of clearly different colours.
const std::vector<Colour> kPalette{0x000000, 0x0000FF, 0x00FF00, 0xFF0000,
                                   0x00FFFF, 0xFF00FF, 0xFFFF00, 0xFFFFFF};

Colour expectedColour(int bits, int x, int y) {
    switch (bits) {
    case 1:
        return (x + y) % 2 ? kWhite : kBlack;
    case 16: // 5-5-5: full red at x even, full blue at x odd, green scaled from 5 bits
        return rgb(x % 2 ? 0 : 255, (y * 255) / 31, x % 2 ? 255 : 0);
    default:
        return kPalette[static_cast<std::size_t>(x + y) % kPalette.size()];
    }
}

std::uint32_t pixelFor(int bits, int x, int y) {
    const Colour c = expectedColour(bits, x, y);
    switch (bits) {
    case 1:
    case 4:
    case 8:
        return static_cast<std::uint32_t>(x + y) % (bits == 1 ? 2 : kPalette.size());
    case 16:
        return (x % 2 ? 0u : 0x7C00u) | (static_cast<std::uint32_t>(y) << 5) | (x % 2 ? 0x1Fu : 0u);
    case 24:
        return c;
    default: // 32 bits, alpha 0: 0xAARRGGBB
        return static_cast<std::uint32_t>(redOf(c) << 16 | greenOf(c) << 8 | blueOf(c));
    }
}

BitmapPlan patterned(int bits, int width, int height) {
    BitmapPlan s;
    s.width = width;
    s.height = height;
    s.bits = bits;
    if (bits <= 8) {
        // 1 and 4 bits carry their full table under a count of 0; 8 bits a short one, counted.
        s.palette = bits == 1 ? std::vector<Colour>{kBlack, kWhite} : kPalette;
        if (bits == 4)
            s.palette.resize(16, 0x123456);
        s.coloursUsed = bits == 8 ? static_cast<std::uint32_t>(kPalette.size()) : 0;
    }
    s.pixel = [bits](int x, int y) {
        return pixelFor(bits, x, y);
    };
    s.transparent = [](int x, int y) {
        return x == 0 || (x == 2 && y == 1);
    };
    return s;
}

void expectPattern(const IconBitmap& b, int bits, const BitmapPlan& s) {
    ASSERT_EQ(b.width(), s.width);
    ASSERT_EQ(b.height(), s.height);
    for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width; ++x) {
            const bool transparent = s.transparent(x, y);
            EXPECT_EQ(b.mask.at(x, y), transparent ? kWhite : kBlack) << x << "," << y;
            // The AND mask decides here (no alpha), so the colour is the XOR image's under
            // transparent pixels too.
            EXPECT_EQ(b.image.at(x, y), expectedColour(bits, x, y))
                << bits << " bits at " << x << "," << y;
        }
}

IconBitmap decodeOnly(const std::vector<std::uint8_t>& file) {
    const std::optional<IcoDirectory> directory = readIcoDirectory(file);
    EXPECT_TRUE(directory && directory->images.size() == 1);
    if (!directory || directory->images.empty())
        return {};
    return decodeImage(file, directory->images[0]).value_or(IconBitmap{});
}

} // namespace

TEST(IcoReader, EveryBitDepthDecodesColoursAndMask) {
    // Odd widths make every row need padding; 33 crosses a mask byte and a 32-bit mask word.
    for (int bits : {1, 4, 8, 16, 24, 32})
        for (auto [width, height] : {std::pair{5, 3}, std::pair{33, 2}, std::pair{1, 1}}) {
            SCOPED_TRACE(std::to_string(bits) + " bits, " + std::to_string(width) + " wide");
            const BitmapPlan s = patterned(bits, width, height);
            expectPattern(decodeOnly(icoFile(s)), bits, s);
            BitmapPlan topDown = s;
            topDown.topDown = true;
            expectPattern(decodeOnly(icoFile(topDown)), bits, topDown);
        }
}

TEST(IcoReader, BitFieldsGiveTheChannels) {
    struct Case {
        int bits;
        std::vector<std::uint32_t> masks;
        std::uint32_t pixel;
        Colour expected;
    };
    for (const Case& k : {
             Case{16, {0xF800, 0x07E0, 0x001F}, 0xF800, rgb(255, 0, 0)},
             Case{16, {0xF800, 0x07E0, 0x001F}, 0x07E0, rgb(0, 255, 0)},
             Case{16, {0xF800, 0x07E0, 0x001F}, 0x0010, rgb(0, 0, 16 * 255 / 31)},
             Case{32, {0x000000FF, 0x0000FF00, 0x00FF0000}, 0x00332211, rgb(0x11, 0x22, 0x33)},
             Case{32, {0xFFC00000, 0x003FF000, 0x00000FFC}, 0xFFC00000, rgb(255, 0, 0)},
         }) {
        BitmapPlan s;
        s.width = 2;
        s.height = 1;
        s.bits = k.bits;
        s.compression = 3;
        s.bitfields = k.masks;
        s.pixel = [&](int, int) {
            return k.pixel;
        };
        const IconBitmap b = decodeOnly(icoFile(s));
        ASSERT_EQ(b.width(), 2);
        EXPECT_EQ(b.image.at(0, 0), k.expected) << std::hex << k.pixel;
    }
}

TEST(IcoReader, AlphaDecidesUnlessEveryAlphaByteIsZero) {
    // Alpha 0, 127, 128, 255 along a row, and an AND mask that says the opposite.
    BitmapPlan s;
    s.width = 4;
    s.height = 1;
    s.bits = 32;
    const std::uint32_t alphas[] = {0, 127, 128, 255};
    s.pixel = [&](int x, int) {
        return alphas[x] << 24 | 0x102030u;
    };
    s.transparent = [](int x, int) {
        return x >= 2;
    };
    IconBitmap b = decodeOnly(icoFile(s));
    ASSERT_EQ(b.width(), 4);
    for (int x = 0; x < 4; ++x) {
        const bool transparent = x < 2;
        EXPECT_EQ(b.mask.at(x, 0), transparent ? kWhite : kBlack) << x;
        EXPECT_EQ(b.image.at(x, 0), transparent ? kBlack : rgb(0x10, 0x20, 0x30)) << x;
    }
    // Every alpha byte zero: the AND mask decides, and every pixel keeps the XOR image's
    // colour, transparent ones too (they invert the background).
    s.pixel = [](int, int) {
        return 0x102030u;
    };
    b = decodeOnly(icoFile(s));
    for (int x = 0; x < 4; ++x) {
        EXPECT_EQ(b.mask.at(x, 0), x >= 2 ? kWhite : kBlack) << x;
        EXPECT_EQ(b.image.at(x, 0), rgb(0x10, 0x20, 0x30)) << x;
    }
}

TEST(IcoReader, MissingMaskCountsAsOpaque) {
    // Half the mask cut off the end: its rows (the bottom ones, written first) keep their bits.
    std::vector<std::uint8_t> file = icoFile(patterned(24, 8, 8));
    file.resize(file.size() - 16);
    const IconBitmap half = decodeOnly(file);
    ASSERT_EQ(half.width(), 8);
    for (int y = 0; y < 8; ++y)
        EXPECT_EQ(half.mask.at(0, y), y >= 4 ? kWhite : kBlack) << y;
}

TEST(IcoReader, TheImageHeaderWinsOverTheDirectory) {
    // The directory says 16×16 at 8 bits; the bitmap is 4×2 at 24 bits.
    const std::vector<std::uint8_t> lying = icoFile({Entry{16, 16, 8, dib(patterned(24, 4, 2))}});
    std::optional<IcoDirectory> d = readIcoDirectory(lying);
    ASSERT_TRUE(d);
    EXPECT_EQ(d->images[0].width, 4);
    EXPECT_EQ(d->images[0].height, 2);
    EXPECT_EQ(d->images[0].bitDepth, 24);
    EXPECT_EQ(d->images[0].directoryWidth, 16);
    EXPECT_EQ(d->images[0].directoryBitCount, 8);

    // A header size of 0 falls back on the directory, where 0 means 256.
    BitmapPlan zero = patterned(8, 256, 3);
    zero.headerWidth = 0;
    const std::vector<std::uint8_t> file = icoFile({Entry{0, 3, 8, dib(zero)}});
    d = readIcoDirectory(file);
    ASSERT_TRUE(d);
    EXPECT_EQ(d->images[0].width, 256);
    EXPECT_EQ(d->images[0].height, 3);
    expectPattern(decodeImage(file, d->images[0]).value_or(IconBitmap{}), 8, zero);
}

TEST(IcoReader, ChoosesExactSizeDeepestThenNearest) {
    const auto dir = [](std::vector<std::tuple<int, int, bool>> images) {
        IcoDirectory d;
        for (auto [side, depth, usable] : images) {
            IcoImageInfo info;
            info.width = info.height = side;
            info.bitDepth = depth;
            info.usable = usable;
            d.images.push_back(info);
        }
        return d;
    };
    struct Case {
        IcoDirectory directory;
        int size;
        int expected;
    };
    for (const Case& k : {
             Case{dir({{16, 32, true}, {32, 4, true}, {32, 8, true}, {48, 32, true}}), 32, 2},
             Case{dir({{32, 8, true}, {32, 8, true}}), 32, 0},  // first of equals
             Case{dir({{16, 32, true}, {48, 4, true}}), 32, 1}, // tie: the larger
             Case{dir({{16, 8, true}, {24, 4, true}, {64, 32, true}}), 32, 1},
             Case{dir({{32, 32, false}, {16, 4, true}}), 32, 1}, // unusable skipped
             Case{dir({{48, 8, true}, {32, 32, true}, {48, 32, true}}), 48, 2},
             Case{dir({{32, 4, false}}), 32, -1},
             Case{dir({}), 32, -1},
         })
        EXPECT_EQ(chooseImage(k.directory, k.size), k.expected);
}

TEST(IcoReader, OtherSizesAreStretchedByDroppingOrRepeatingPixels) {
    // Every pixel of the source a different colour, so each destination shows which it took.
    for (int side : {16, 48}) {
        BitmapPlan s;
        s.width = s.height = side;
        s.pixel = [](int x, int y) {
            return static_cast<std::uint32_t>(x + 256 * y);
        };
        const std::optional<IconPlanes> planes = decodeIconPlanes(icoFile(s));
        ASSERT_TRUE(planes);
        for (int y = 0; y < kIconSize; ++y)
            for (int x = 0; x < kIconSize; ++x) {
                const int sx = x * side / kIconSize, sy = y * side / kIconSize;
                ASSERT_EQ(planes->image.at(x, y), rgb(sx, sy, 0)) << side << ": " << x << "," << y;
            }
    }
}

TEST(IcoReader, PngImagesDecodeWithAlphaAsTransparency) {
    const std::vector<std::uint8_t> image = png(3, 2, [](int x, int y) {
        return (x == 0 ? 0x00u : x == 1 ? 0x7Fu : 0x80u) << 24 | (y ? 0x112233u : 0x445566u);
    });
    const std::vector<std::uint8_t> file = icoFile({Entry{3, 2, 32, image}});
    const std::optional<IcoDirectory> d = readIcoDirectory(file);
    ASSERT_TRUE(d);
    EXPECT_EQ(d->images[0].format, ImageFormat::Png);
    const IconBitmap b = decodeOnly(file);
    ASSERT_EQ(b.width(), 3);
    EXPECT_EQ(b.mask.at(0, 0), kWhite);
    EXPECT_EQ(b.mask.at(1, 1), kWhite);
    EXPECT_EQ(b.image.at(1, 1), kBlack);
    EXPECT_EQ(b.mask.at(2, 0), kBlack);
    EXPECT_EQ(b.image.at(2, 0), rgb(0x44, 0x55, 0x66));
    EXPECT_EQ(b.image.at(2, 1), rgb(0x11, 0x22, 0x33));

    // A text chunk after the header is skipped; one whose length runs past the end of the
    // file makes the image unreadable, without libpng reserving memory for it.
    for (std::uint32_t length : {4u, 0x7FFFFFF0u}) {
        std::vector<std::uint8_t> withText = image;
        std::vector<std::uint8_t> chunk;
        for (int shift : {24, 16, 8, 0})
            chunk.push_back(static_cast<std::uint8_t>(length >> shift));
        for (char c : std::string("tEXtabcd\0\0\0\0", 12))
            chunk.push_back(static_cast<std::uint8_t>(c));
        withText.insert(withText.begin() + 33, chunk.begin(), chunk.end());
        const std::optional<IconPlanes> planes =
            decodeIconPlanes(icoFile({Entry{3, 2, 32, withText}}));
        EXPECT_EQ(planes.has_value(), length == 4u) << length;
    }
}

TEST(IcoReader, AnUndecodableFirstChoiceFallsBackOnTheNext) {
    std::vector<std::uint8_t> broken = png(32, 32, [](int, int) { return 0xFF0000FFu; });
    broken.resize(40); // the header survives, the pixels do not
    BitmapPlan small = patterned(24, 16, 16);
    const std::vector<std::uint8_t> file =
        icoFile({Entry{32, 32, 32, broken}, Entry{16, 16, 24, dib(small)}});
    const std::optional<IcoDirectory> d = readIcoDirectory(file);
    ASSERT_TRUE(d);
    EXPECT_EQ(chooseImage(*d, 32), 0);
    const std::optional<IconPlanes> planes = decodeIconPlanes(file);
    ASSERT_TRUE(planes);
    EXPECT_EQ(planes->image.at(2, 2), expectedColour(24, 1, 1));

    // A hundred entries pointing at the same broken image cost one try, not a hundred.
    std::vector<std::uint8_t> many = icoFile(std::vector<Entry>(100, Entry{32, 32, 32, {}}));
    const std::uint32_t brokenAt = static_cast<std::uint32_t>(many.size());
    many.insert(many.end(), broken.begin(), broken.end());
    for (std::size_t i = 0; i < 100; ++i)
        for (int b = 0; b < 4; ++b)
            many[6 + 16 * i + 12 + static_cast<std::size_t>(b)] =
                static_cast<std::uint8_t>(brokenAt >> (8 * b));
    // The last entry points at a good 16×16 image.
    const std::vector<std::uint8_t> good = dib(small);
    const std::uint32_t goodAt = static_cast<std::uint32_t>(many.size());
    many.insert(many.end(), good.begin(), good.end());
    for (int b = 0; b < 4; ++b)
        many[6 + 16 * 99 + 12 + static_cast<std::size_t>(b)] =
            static_cast<std::uint8_t>(goodAt >> (8 * b));
    EXPECT_TRUE(decodeIconPlanes(many));
}

TEST(IcoReader, RefusesWhatIsOutsideTheLimits) {
    const auto changed = [](int bits, auto change) {
        BitmapPlan s = patterned(bits, 4, 4);
        change(s);
        return icoFile({Entry{4, 4, s.bits, dib(s)}});
    };
    std::vector<std::vector<std::uint8_t>> refused{
        changed(1, [](BitmapPlan& s) { s.headerWidth = 257; }),
        changed(8, [](BitmapPlan& s) { s.coloursUsed = 257; }),
        changed(8, [](BitmapPlan& s) { s.compression = 1; }),
        changed(24, [](BitmapPlan& s) { s.bits = 2; }),
    };
    std::vector<std::uint8_t> cutColours = icoFile(patterned(24, 4, 4));
    cutColours.resize(6 + 16 + 40 + 4 * 12 - 1);
    refused.push_back(cutColours);
    refused.push_back(icoFile({Entry{0, 0, 32, png(1025, 1, [](int, int) { return 0u; })}}));
    // A bad reserved word or type, or 200 entries that cannot fit in the file.
    for (auto [offset, value] :
         {std::pair{0, 1}, std::pair{2, 3}, std::pair{2, 0}, std::pair{4, 200}}) {
        std::vector<std::uint8_t> header = icoFile(patterned(24, 4, 4));
        header[static_cast<std::size_t>(offset)] = static_cast<std::uint8_t>(value);
        refused.push_back(header);
    }
    refused.push_back({0, 0, 1, 0, 1});
    for (std::size_t i = 0; i < refused.size(); ++i)
        EXPECT_FALSE(decodeIconPlanes(refused[i])) << "case " << i;
    // Five bytes are no picture for any reader.
    EXPECT_FALSE(isLoadablePicture(refused.back()));
    // At the limits themselves: 256 wide and a 1024-pixel PNG are fine.
    EXPECT_TRUE(decodeIconPlanes(icoFile(patterned(1, 256, 1))));
    EXPECT_TRUE(decodeIconPlanes(
        icoFile({Entry{0, 0, 32, png(1024, 1, [](int, int) { return 0xFF000000u; })}})));
}

TEST(IcoReader, HeaderCountGivesMultiImage) {
    struct Case {
        std::vector<std::uint8_t> bytes;
        std::optional<int> count;
    };
    for (const Case& k :
         {Case{{0, 0, 1, 0, 1, 0}, 1}, Case{{0, 0, 1, 0, 3, 0, 9}, 3},
          Case{{0, 0, 1, 0, 0x01, 0x80}, -32767}, Case{{0, 0, 1, 0, 0xFF, 0x7F}, 32767},
          Case{{0, 0, 1, 0, 2}, std::nullopt}})
        EXPECT_EQ(readHeaderCount(k.bytes), k.count);
}
