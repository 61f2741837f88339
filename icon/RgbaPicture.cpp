#include "icon/RgbaPicture.h"

#include "icon/BmpDecoder.h"
#include "icon/PngDecoder.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <tuple>

namespace icon {

namespace {

constexpr int kMaxSide = 1024;
constexpr std::size_t kMaxDecodeAttempts = 4;

std::uint32_t argb(int a, int r, int g, int b) {
    return (static_cast<std::uint32_t>(a) << 24) | (static_cast<std::uint32_t>(r) << 16) |
           (static_cast<std::uint32_t>(g) << 8) | static_cast<std::uint32_t>(b);
}

int channel(std::uint32_t pixel, int shift) {
    return static_cast<int>((pixel >> shift) & 0xFFu);
}

// One colour channel of a 32-bit pixel, described by its bit mask, brought to 0..255.
struct Channel {
    std::uint32_t mask;
    int shift;
    std::uint32_t max;
    explicit Channel(std::uint32_t m)
        : mask(m)
        , shift(m ? std::countr_zero(m) : 0)
        , max(m ? m >> shift : 0) {}
    int of(std::uint32_t pixel) const {
        if (max == 0)
            return 0;
        return static_cast<int>(static_cast<std::uint64_t>((pixel & mask) >> shift) * 255u / max);
    }
};

// A 32-bit bitmap whose alpha says what shows, read with its alpha. Nothing when it is not
// 32-bit or all its alpha is zero (the AND mask decides then).
std::optional<RgbaPicture> alphaDib(std::span<const std::uint8_t> dib, const IcoImageInfo& info) {
    const std::optional<DibLayout> l = readDibLayout(dib, info.directoryWidth, info.directoryHeight);
    if (!l || l->bitCount != 32 || l->masks[3] == 0 ||
        (l->compression != kBiRgb && l->compression != kBiBitfields &&
         l->compression != kBiAlphaBitfields))
        return std::nullopt;
    const Channel red(l->masks[0]), green(l->masks[1]), blue(l->masks[2]), alpha(l->masks[3]);
    RgbaPicture out{l->width, l->height, {}, {}, false};
    out.pixels.assign(static_cast<std::size_t>(out.width) * out.height, 0);
    bool anyAlpha = false;
    for (int y = 0; y < out.height; ++y) {
        // readDibLayout checked that every row of colour data lies inside the bytes.
        const std::size_t row =
            l->pixelOffset +
            static_cast<std::size_t>(l->topDown ? y : out.height - 1 - y) * l->rowBytes;
        for (int x = 0; x < out.width; ++x) {
            const std::size_t at = row + 4 * static_cast<std::size_t>(x);
            const std::uint32_t px = dib[at] | (std::uint32_t{dib[at + 1]} << 8) |
                                     (std::uint32_t{dib[at + 2]} << 16) |
                                     (std::uint32_t{dib[at + 3]} << 24);
            const int a = alpha.of(px);
            anyAlpha = anyAlpha || a != 0;
            out.pixels[static_cast<std::size_t>(y) * out.width + x] =
                argb(a, red.of(px), green.of(px), blue.of(px));
        }
    }
    if (!anyAlpha)
        return std::nullopt;
    return out;
}

std::optional<RgbaPicture> pngImage(std::span<const std::uint8_t> data) {
    const std::optional<PngPixels> png = decodePngRgba(data);
    if (!png)
        return std::nullopt;
    RgbaPicture out{png->width, png->height, {}, {}, false};
    out.pixels.resize(static_cast<std::size_t>(out.width) * out.height);
    for (std::size_t i = 0; i < out.pixels.size(); ++i) {
        const std::uint8_t* p = &png->rgba[4 * i];
        out.pixels[i] = argb(p[3], p[0], p[1], p[2]);
    }
    return out;
}

// Which source pixels a target pixel covers along one axis, and how much of each.
struct Span {
    int first = 0;
    std::vector<float> weights;
};

std::vector<Span> coverage(int source, int target) {
    std::vector<Span> spans(static_cast<std::size_t>(target));
    const double ratio = static_cast<double>(source) / target;
    for (int t = 0; t < target; ++t) {
        const double from = t * ratio;
        const double to = (t + 1) * ratio;
        Span& span = spans[static_cast<std::size_t>(t)];
        span.first = std::min(static_cast<int>(from), source - 1);
        for (int s = span.first; s < source && s < to; ++s) {
            const double w = std::min<double>(s + 1, to) - std::max<double>(s, from);
            span.weights.push_back(static_cast<float>(w / ratio));
        }
    }
    return spans;
}

std::uint32_t nearest(const std::vector<std::uint32_t>& pixels, int width, int height,
                      int targetWidth, int targetHeight, int x, int y) {
    const int sx = static_cast<int>(static_cast<long long>(x) * width / targetWidth);
    const int sy = static_cast<int>(static_cast<long long>(y) * height / targetHeight);
    return pixels[static_cast<std::size_t>(sy) * width + sx];
}

} // namespace

RgbaPicture rgbaFromBitmap(const IconBitmap& bitmap) {
    RgbaPicture out{bitmap.width(), bitmap.height(), {}, {}, false};
    const std::size_t count = static_cast<std::size_t>(out.width) * out.height;
    out.pixels.assign(count, 0);
    for (int y = 0; y < out.height; ++y) {
        for (int x = 0; x < out.width; ++x) {
            const std::size_t i = static_cast<std::size_t>(y) * out.width + x;
            const Colour colour = bitmap.image.at(x, y);
            const std::uint32_t rgb = argb(0, redOf(colour), greenOf(colour), blueOf(colour));
            if (!isTransparentMask(bitmap.mask.at(x, y))) {
                out.pixels[i] = 0xFF000000u | rgb;
            } else if (rgb != 0) {
                if (out.invert.empty())
                    out.invert.assign(count, 0);
                out.invert[i] = rgb;
            }
        }
    }
    return out;
}

std::optional<RgbaPicture> decodeRgbaImage(std::span<const std::uint8_t> bytes,
                                           const IcoImageInfo& info) {
    if (!info.usable || info.offset >= bytes.size())
        return std::nullopt;
    const std::span<const std::uint8_t> data = bytes.subspan(info.offset);
    std::optional<RgbaPicture> image = isPng(data) ? pngImage(data) : alphaDib(data, info);
    if (!image) {
        if (isPng(data))
            return std::nullopt;
        const std::optional<IconBitmap> bitmap = decodeImage(bytes, info);
        if (!bitmap || bitmap->isEmpty())
            return std::nullopt;
        image = rgbaFromBitmap(*bitmap);
    }
    if (image->isEmpty())
        return std::nullopt;
    return image;
}

std::vector<int> rankImagesForSide(const IcoDirectory& directory, int side) {
    std::vector<int> ranked;
    for (std::size_t i = 0; i < directory.images.size(); ++i)
        if (directory.images[i].usable)
            ranked.push_back(static_cast<int>(i));
    const auto key = [&](int i) {
        const IcoImageInfo& im = directory.images[static_cast<std::size_t>(i)];
        const int extent = std::max(im.width, im.height);
        const bool exact = im.width == side && im.height == side;
        const bool smaller = extent < side;
        // Larger ones from the nearest up, smaller ones from the nearest down.
        return std::make_tuple(!exact, smaller, std::abs(extent - side), -im.bitDepth, i);
    };
    std::sort(ranked.begin(), ranked.end(), [&](int a, int b) { return key(a) < key(b); });
    return ranked;
}

std::optional<RgbaPicture> decodeBestRgba(std::span<const std::uint8_t> bytes, int side) {
    if (side < 1 || side > kMaxSide)
        return std::nullopt;
    const std::optional<IcoDirectory> directory = readIcoDirectory(bytes);
    if (!directory)
        return std::nullopt;
    // A file may point many entries at one broken image: each is tried once, a few at most.
    std::vector<std::uint32_t> tried;
    for (int index : rankImagesForSide(*directory, side)) {
        const IcoImageInfo& info = directory->images[static_cast<std::size_t>(index)];
        if (std::find(tried.begin(), tried.end(), info.offset) != tried.end())
            continue;
        if (tried.size() == kMaxDecodeAttempts)
            break;
        tried.push_back(info.offset);
        if (std::optional<RgbaPicture> image = decodeRgbaImage(bytes, info))
            return image;
    }
    return std::nullopt;
}

RgbaPicture premultiplied(RgbaPicture picture) {
    if (picture.premultiplied)
        return picture;
    for (std::uint32_t& px : picture.pixels) {
        const int a = channel(px, 24);
        const auto mul = [a](int c) { return (c * a + 127) / 255; };
        px = argb(a, mul(channel(px, 16)), mul(channel(px, 8)), mul(channel(px, 0)));
    }
    picture.premultiplied = true;
    return picture;
}

RgbaPicture unpremultiplied(RgbaPicture picture) {
    if (!picture.premultiplied)
        return picture;
    for (std::uint32_t& px : picture.pixels) {
        const int a = channel(px, 24);
        if (a == 0 || a == 255)
            continue;
        const auto div = [a](int c) { return std::min(255, (c * 255 + a / 2) / a); };
        px = argb(a, div(channel(px, 16)), div(channel(px, 8)), div(channel(px, 0)));
    }
    picture.premultiplied = false;
    return picture;
}

RgbaPicture resized(const RgbaPicture& source, int width, int height) {
    if (source.isEmpty() || width < 1 || height < 1)
        return {};
    if (source.width == width && source.height == height)
        return premultiplied(source);
    RgbaPicture out{width, height, {}, {}, true};
    const std::size_t count = static_cast<std::size_t>(width) * height;
    out.pixels.resize(count);
    if (!source.invert.empty()) {
        // Averaging an inverting pixel with its neighbours means nothing: keep them whole.
        // Such pictures are opaque or clear, the same straight or premultiplied.
        out.invert.resize(count);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const std::size_t i = static_cast<std::size_t>(y) * width + x;
                out.pixels[i] =
                    nearest(source.pixels, source.width, source.height, width, height, x, y);
                out.invert[i] =
                    nearest(source.invert, source.width, source.height, width, height, x, y);
            }
        return out;
    }
    const RgbaPicture copy = source.premultiplied ? RgbaPicture{} : premultiplied(source);
    const RgbaPicture& src = source.premultiplied ? source : copy;
    // Across, then down, on the four premultiplied channels.
    const std::vector<Span> across = coverage(src.width, width);
    const std::vector<Span> down = coverage(src.height, height);
    std::vector<float> rows(static_cast<std::size_t>(width) * src.height * 4, 0.0f);
    for (int y = 0; y < src.height; ++y) {
        const std::uint32_t* line = src.pixels.data() + static_cast<std::size_t>(y) * src.width;
        for (int x = 0; x < width; ++x) {
            const Span& span = across[static_cast<std::size_t>(x)];
            float* sum = &rows[(static_cast<std::size_t>(y) * width + x) * 4];
            for (std::size_t k = 0; k < span.weights.size(); ++k) {
                const std::uint32_t px = line[span.first + static_cast<int>(k)];
                const float w = span.weights[k];
                for (int c = 0; c < 4; ++c)
                    sum[c] += w * static_cast<float>((px >> (8 * c)) & 0xFFu);
            }
        }
    }
    for (int y = 0; y < height; ++y) {
        const Span& span = down[static_cast<std::size_t>(y)];
        for (int x = 0; x < width; ++x) {
            float sum[4] = {0, 0, 0, 0};
            for (std::size_t k = 0; k < span.weights.size(); ++k) {
                const float* row =
                    &rows[(static_cast<std::size_t>(span.first + static_cast<int>(k)) * width + x) *
                          4];
                for (int c = 0; c < 4; ++c)
                    sum[c] += span.weights[k] * row[c];
            }
            std::uint32_t px = 0;
            for (int c = 0; c < 4; ++c)
                px |= static_cast<std::uint32_t>(std::clamp(std::lround(sum[c]), 0L, 255L))
                      << (8 * c);
            out.pixels[static_cast<std::size_t>(y) * width + x] = px;
        }
    }
    return out;
}

} // namespace icon
