#include "browser/CellPicture.h"

#include "icon/BmpDecoder.h"
#include "icon/IcoReader.h"
#include "icon/PngDecoder.h"

#include <QByteArray>
#include <QImage>

#include <algorithm>
#include <bit>
#include <cmath>
#include <tuple>

namespace browser {

namespace {

// A picture of any size on its way to a cell.
struct Rgba {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels; // premultiplied 0xAARRGGBB
    std::vector<std::uint32_t> invert; // empty, or 0x00RRGGBB per pixel
};

constexpr int kMaxSide = 1024;
constexpr std::size_t kMaxDecodeAttempts = 4;

std::uint32_t argb(int a, int r, int g, int b) {
    return (static_cast<std::uint32_t>(a) << 24) | (static_cast<std::uint32_t>(r) << 16) |
           (static_cast<std::uint32_t>(g) << 8) | static_cast<std::uint32_t>(b);
}

std::uint32_t premultiplied(int a, int r, int g, int b) {
    const auto mul = [a](int c) {
        return (c * a + 127) / 255;
    };
    return argb(a, mul(r), mul(g), mul(b));
}

Rgba fromIconBitmap(const icon::IconBitmap& bitmap) {
    Rgba out{bitmap.width(), bitmap.height(), {}, {}};
    const std::size_t count = static_cast<std::size_t>(out.width) * out.height;
    out.pixels.assign(count, 0);
    for (int y = 0; y < out.height; ++y) {
        for (int x = 0; x < out.width; ++x) {
            const std::size_t i = static_cast<std::size_t>(y) * out.width + x;
            const icon::Colour colour = bitmap.image.at(x, y);
            const std::uint32_t rgb =
                argb(0, icon::redOf(colour), icon::greenOf(colour), icon::blueOf(colour));
            if (!icon::isTransparentMask(bitmap.mask.at(x, y))) {
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
std::optional<Rgba> alphaDib(std::span<const std::uint8_t> dib, const icon::IcoImageInfo& info) {
    const std::optional<icon::DibLayout> l =
        icon::readDibLayout(dib, info.directoryWidth, info.directoryHeight);
    if (!l || l->bitCount != 32 || l->masks[3] == 0 ||
        (l->compression != icon::kBiRgb && l->compression != icon::kBiBitfields &&
         l->compression != icon::kBiAlphaBitfields))
        return std::nullopt;
    const Channel red(l->masks[0]), green(l->masks[1]), blue(l->masks[2]), alpha(l->masks[3]);
    Rgba out{l->width, l->height, {}, {}};
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
                premultiplied(a, red.of(px), green.of(px), blue.of(px));
        }
    }
    if (!anyAlpha)
        return std::nullopt;
    return out;
}

// The PNG with only the chunks that make its pixels, each checked to lie whole in the bytes:
// colour profiles, texts and private chunks would only be read (and complained about) by Qt's
// reader, and a damaged length there makes it reserve memory for data that is not in the file.
std::optional<QByteArray> pixelChunks(std::span<const std::uint8_t> data) {
    constexpr std::size_t kSignature = 8;
    const auto u32 = [&](std::size_t at) {
        return (std::uint32_t{data[at]} << 24) | (std::uint32_t{data[at + 1]} << 16) |
               (std::uint32_t{data[at + 2]} << 8) | std::uint32_t{data[at + 3]};
    };
    QByteArray out(reinterpret_cast<const char*>(data.data()), kSignature);
    std::size_t at = kSignature;
    while (data.size() >= 12 && at <= data.size() - 12) {
        const std::size_t length = u32(at);
        if (length > data.size() - 12 - at)
            return std::nullopt;
        const QByteArray type(reinterpret_cast<const char*>(data.data() + at + 4), 4);
        if (type == "IHDR" || type == "PLTE" || type == "tRNS" || type == "IDAT" || type == "IEND")
            out.append(reinterpret_cast<const char*>(data.data() + at),
                       static_cast<qsizetype>(12 + length));
        if (type == "IEND")
            return out;
        at += 12 + length;
    }
    return std::nullopt;
}

std::optional<Rgba> pngImage(std::span<const std::uint8_t> data) {
    const std::optional<icon::PngHeader> header = icon::readPngHeader(data);
    if (!header)
        return std::nullopt;
    const std::optional<QByteArray> bytes = pixelChunks(data);
    if (!bytes)
        return std::nullopt;
    QImage image;
    if (!image.loadFromData(*bytes, "PNG") || image.width() != header->width ||
        image.height() != header->height)
        return std::nullopt;
    image = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    Rgba out{image.width(), image.height(), {}, {}};
    out.pixels.resize(static_cast<std::size_t>(out.width) * out.height);
    for (int y = 0; y < out.height; ++y) {
        const auto* line = reinterpret_cast<const std::uint32_t*>(image.constScanLine(y));
        std::copy(line, line + out.width,
                  out.pixels.begin() + static_cast<std::ptrdiff_t>(y) * out.width);
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

std::uint32_t nearest(const std::vector<std::uint32_t>& pixels, int width, int height, int side,
                      int x, int y) {
    const int sx = static_cast<int>(static_cast<long long>(x) * width / side);
    const int sy = static_cast<int>(static_cast<long long>(y) * height / side);
    return pixels[static_cast<std::size_t>(sy) * width + sx];
}

CellPicture toSide(const Rgba& source, int side) {
    CellPicture out;
    out.side = side;
    const std::size_t count = static_cast<std::size_t>(side) * side;
    out.pixels.resize(count);
    if (source.width == side && source.height == side) {
        out.pixels = source.pixels;
        out.invert = source.invert;
        return out;
    }
    if (!source.invert.empty()) {
        // Averaging an inverting pixel with its neighbours means nothing: keep them whole.
        out.invert.resize(count);
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x) {
                const std::size_t i = static_cast<std::size_t>(y) * side + x;
                out.pixels[i] = nearest(source.pixels, source.width, source.height, side, x, y);
                out.invert[i] = nearest(source.invert, source.width, source.height, side, x, y);
            }
        return out;
    }
    // Across, then down, on the four premultiplied channels.
    const std::vector<Span> across = coverage(source.width, side);
    const std::vector<Span> down = coverage(source.height, side);
    std::vector<float> rows(static_cast<std::size_t>(side) * source.height * 4, 0.0f);
    for (int y = 0; y < source.height; ++y) {
        const std::uint32_t* line =
            source.pixels.data() + static_cast<std::size_t>(y) * source.width;
        for (int x = 0; x < side; ++x) {
            const Span& span = across[static_cast<std::size_t>(x)];
            float* sum = &rows[(static_cast<std::size_t>(y) * side + x) * 4];
            for (std::size_t k = 0; k < span.weights.size(); ++k) {
                const std::uint32_t px = line[span.first + static_cast<int>(k)];
                const float w = span.weights[k];
                for (int c = 0; c < 4; ++c)
                    sum[c] += w * static_cast<float>((px >> (8 * c)) & 0xFFu);
            }
        }
    }
    for (int y = 0; y < side; ++y) {
        const Span& span = down[static_cast<std::size_t>(y)];
        for (int x = 0; x < side; ++x) {
            float sum[4] = {0, 0, 0, 0};
            for (std::size_t k = 0; k < span.weights.size(); ++k) {
                const float* from =
                    &rows[(static_cast<std::size_t>(span.first + static_cast<int>(k)) * side + x) *
                          4];
                for (int c = 0; c < 4; ++c)
                    sum[c] += span.weights[k] * from[c];
            }
            std::uint32_t px = 0;
            for (int c = 0; c < 4; ++c)
                px |= static_cast<std::uint32_t>(std::clamp(std::lround(sum[c]), 0L, 255L))
                      << (8 * c);
            out.pixels[static_cast<std::size_t>(y) * side + x] = px;
        }
    }
    return out;
}

// The order the images are tried in for a cell of `side` pixels.
std::vector<int> cellRanking(const icon::IcoDirectory& directory, int side) {
    std::vector<int> ranked;
    for (std::size_t i = 0; i < directory.images.size(); ++i)
        if (directory.images[i].usable)
            ranked.push_back(static_cast<int>(i));
    const auto key = [&](int i) {
        const icon::IcoImageInfo& im = directory.images[static_cast<std::size_t>(i)];
        const int extent = std::max(im.width, im.height);
        const bool exact = im.width == side && im.height == side;
        const bool smaller = extent < side;
        // Larger ones from the nearest up, smaller ones from the nearest down.
        return std::make_tuple(!exact, smaller, std::abs(extent - side), -im.bitDepth, i);
    };
    std::sort(ranked.begin(), ranked.end(), [&](int a, int b) { return key(a) < key(b); });
    return ranked;
}

} // namespace

CellPicture fromBitmap(const icon::IconBitmap& bitmap) {
    const Rgba rgba = fromIconBitmap(bitmap);
    return toSide(rgba, std::max(rgba.width, rgba.height));
}

CellPicture scaled(const CellPicture& picture, int side) {
    if (picture.isEmpty() || side < 1)
        return {};
    return toSide(Rgba{picture.side, picture.side, picture.pixels, picture.invert}, side);
}

icon::Frame blendOver(const CellPicture& picture, icon::Colour background) {
    icon::Frame frame(picture.side, picture.side, background);
    const int bg[3] = {icon::blueOf(background), icon::greenOf(background),
                       icon::redOf(background)};
    for (int y = 0; y < picture.side; ++y) {
        for (int x = 0; x < picture.side; ++x) {
            const std::size_t i = static_cast<std::size_t>(y) * picture.side + x;
            const std::uint32_t px = picture.pixels[i];
            const int keep = 255 - static_cast<int>(px >> 24);
            int c[3];
            for (int k = 0; k < 3; ++k)
                c[k] = std::min(255, static_cast<int>((px >> (8 * k)) & 0xFFu) +
                                         (bg[k] * keep + 127) / 255);
            icon::Colour colour = icon::rgb(c[2], c[1], c[0]);
            if (!picture.invert.empty()) {
                const std::uint32_t inv = picture.invert[i];
                colour ^=
                    icon::rgb(static_cast<int>((inv >> 16) & 0xFFu),
                              static_cast<int>((inv >> 8) & 0xFFu), static_cast<int>(inv & 0xFFu));
            }
            frame.set(x, y, colour);
        }
    }
    return frame;
}

std::optional<CellPicture> decodeCellPicture(std::span<const std::uint8_t> bytes, int side) {
    if (side < 1 || side > kMaxSide)
        return std::nullopt;
    const std::optional<icon::IcoDirectory> directory = icon::readIcoDirectory(bytes);
    if (!directory)
        return std::nullopt;
    // A file may point many entries at one broken image: each is tried once, a few at most.
    std::vector<std::uint32_t> tried;
    for (int index : cellRanking(*directory, side)) {
        const icon::IcoImageInfo& info = directory->images[static_cast<std::size_t>(index)];
        if (std::find(tried.begin(), tried.end(), info.offset) != tried.end())
            continue;
        if (tried.size() == kMaxDecodeAttempts)
            break;
        tried.push_back(info.offset);
        if (info.offset >= bytes.size())
            continue;
        const std::span<const std::uint8_t> data = bytes.subspan(info.offset);
        std::optional<Rgba> image = icon::isPng(data) ? pngImage(data) : alphaDib(data, info);
        if (!image) {
            if (icon::isPng(data))
                continue;
            const std::optional<icon::IconBitmap> bitmap = icon::decodeImage(bytes, info);
            if (!bitmap || bitmap->isEmpty())
                continue;
            image = fromIconBitmap(*bitmap);
        }
        if (image->width < 1 || image->height < 1)
            continue;
        return toSide(*image, side);
    }
    return std::nullopt;
}

} // namespace browser
