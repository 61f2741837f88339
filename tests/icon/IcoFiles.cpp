#include "tests/icon/IcoFiles.h"

#include <QBuffer>
#include <QImage>

#include <cstdlib>

namespace icontest {

namespace {

void put16(std::vector<std::uint8_t>& out, std::uint32_t v) {
    out.push_back(static_cast<std::uint8_t>(v & 0xFF));
    out.push_back(static_cast<std::uint8_t>((v >> 8) & 0xFF));
}

void put32(std::vector<std::uint8_t>& out, std::uint32_t v) {
    put16(out, v & 0xFFFF);
    put16(out, v >> 16);
}

} // namespace

std::vector<std::uint8_t> dib(const BitmapPlan& s) {
    std::vector<std::uint8_t> out;
    put32(out, 40);
    put32(out, static_cast<std::uint32_t>(s.headerWidth >= 0 ? s.headerWidth : s.width));
    const int height = s.headerHeight >= 0 ? s.headerHeight : 2 * s.height;
    put32(out, static_cast<std::uint32_t>(s.topDown ? -height : height));
    put16(out, 1);
    put16(out, static_cast<std::uint32_t>(s.bits));
    put32(out, s.compression);
    put32(out, 0);
    put32(out, 0);
    put32(out, 0);
    put32(out, s.coloursUsed);
    put32(out, 0);
    for (std::uint32_t m : s.bitfields)
        put32(out, m);
    for (icon::Colour c : s.palette)
        put32(out, static_cast<std::uint32_t>(icon::blueOf(c) + 256 * icon::greenOf(c) +
                                              65536 * icon::redOf(c)));

    const std::size_t rowBytes = (static_cast<std::size_t>(s.width) * s.bits + 31) / 32 * 4;
    const std::size_t maskRowBytes = (static_cast<std::size_t>(s.width) + 31) / 32 * 4;
    for (int r = 0; r < s.height; ++r) {
        const int y = s.topDown ? r : s.height - 1 - r;
        std::vector<std::uint8_t> row(rowBytes, 0);
        for (int x = 0; x < s.width; ++x) {
            const std::uint32_t v = s.pixel(x, y);
            const std::size_t bit = static_cast<std::size_t>(x) * s.bits;
            switch (s.bits) {
            case 1:
            case 4:
            case 8:
                row[bit / 8] |= static_cast<std::uint8_t>(v << (8 - s.bits - bit % 8));
                break;
            default:
                for (int b = 0; b < s.bits / 8; ++b) {
                    std::uint32_t byte = (v >> (8 * b)) & 0xFF;
                    if (s.bits == 24) // 0x00BBGGRR is written blue, green, red
                        byte = (v >> (8 * (2 - b))) & 0xFF;
                    row[bit / 8 + static_cast<std::size_t>(b)] = static_cast<std::uint8_t>(byte);
                }
            }
        }
        out.insert(out.end(), row.begin(), row.end());
    }
    if (s.withMask)
        for (int r = 0; r < s.height; ++r) {
            const int y = s.topDown ? r : s.height - 1 - r;
            std::vector<std::uint8_t> row(maskRowBytes, 0);
            for (int x = 0; x < s.width; ++x)
                if (s.transparent(x, y))
                    row[static_cast<std::size_t>(x) / 8] |=
                        static_cast<std::uint8_t>(0x80 >> (x % 8));
            out.insert(out.end(), row.begin(), row.end());
        }
    return out;
}

std::vector<std::uint8_t> icoFile(const std::vector<Entry>& entries, int type) {
    std::vector<std::uint8_t> out;
    put16(out, 0);
    put16(out, static_cast<std::uint32_t>(type));
    put16(out, static_cast<std::uint32_t>(entries.size()));
    std::uint32_t offset = static_cast<std::uint32_t>(6 + 16 * entries.size());
    for (const Entry& e : entries) {
        out.push_back(static_cast<std::uint8_t>(e.width & 0xFF));
        out.push_back(static_cast<std::uint8_t>(e.height & 0xFF));
        out.push_back(0);
        out.push_back(0);
        put16(out, 1);
        put16(out, static_cast<std::uint32_t>(e.bitCount));
        put32(out, static_cast<std::uint32_t>(e.data.size()));
        put32(out, offset);
        offset += static_cast<std::uint32_t>(e.data.size());
    }
    for (const Entry& e : entries)
        out.insert(out.end(), e.data.begin(), e.data.end());
    return out;
}

std::vector<std::uint8_t> icoFile(const BitmapPlan& bitmap) {
    return icoFile({Entry{bitmap.width, bitmap.height, bitmap.bits, dib(bitmap)}});
}

std::vector<std::uint8_t> png(int width, int height,
                              const std::function<std::uint32_t(int, int)>& argb) {
    QImage image(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, argb(x, y));
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return {data.begin(), data.end()};
}

int mismatches(const icon::IconBitmap& decoded, const QImage& reference, std::string& first,
               int tolerance) {
    if (decoded.width() != reference.width() || decoded.height() != reference.height()) {
        first = "size differs";
        return decoded.width() * decoded.height() + 1;
    }
    const QImage ref = reference.convertToFormat(QImage::Format_ARGB32);
    int count = 0;
    for (int y = 0; y < ref.height(); ++y)
        for (int x = 0; x < ref.width(); ++x) {
            const QRgb p = ref.pixel(x, y);
            const bool refTransparent = qAlpha(p) < 128;
            const bool transparent = icon::isTransparentMask(decoded.mask.at(x, y));
            const icon::Colour c = decoded.image.at(x, y);
            const bool close = std::abs(icon::redOf(c) - qRed(p)) <= tolerance &&
                               std::abs(icon::greenOf(c) - qGreen(p)) <= tolerance &&
                               std::abs(icon::blueOf(c) - qBlue(p)) <= tolerance;
            const bool same = refTransparent == transparent && (transparent || close);
            if (!same && count++ == 0)
                first = "first at (" + std::to_string(x) + "," + std::to_string(y) + ")";
        }
    return count;
}

} // namespace icontest
