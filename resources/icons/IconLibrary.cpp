#include "resources/icons/IconLibrary.h"

#include <algorithm>

namespace iconlib {

namespace {

void put16(std::vector<std::uint8_t>& out, std::uint32_t v) {
    out.push_back(static_cast<std::uint8_t>(v % 256));
    out.push_back(static_cast<std::uint8_t>(v / 256 % 256));
}

void put32(std::vector<std::uint8_t>& out, std::uint32_t v) {
    put16(out, v % 65536);
    put16(out, v / 65536);
}

// A bitmap as an icon image: header, colour rows and mask rows, bottom row first, each row
// padded to four bytes.
std::vector<std::uint8_t> imageData(const icon::IconBitmap& b) {
    const auto w = static_cast<std::uint32_t>(b.width());
    const auto h = static_cast<std::uint32_t>(b.height());
    const std::uint32_t colourRow = (w * 3 + 3) / 4 * 4;
    const std::uint32_t maskRow = (w + 31) / 32 * 4;
    std::vector<std::uint8_t> out;
    put32(out, 40);
    put32(out, w);
    put32(out, 2 * h);
    put16(out, 1);
    put16(out, 24);
    put32(out, 0);
    put32(out, (colourRow + maskRow) * h);
    for (int i = 0; i < 4; ++i)
        put32(out, 0);
    for (int y = b.height() - 1; y >= 0; --y) {
        const std::size_t start = out.size();
        for (int x = 0; x < b.width(); ++x) {
            const icon::Colour c =
                icon::isTransparentMask(b.mask.at(x, y)) ? icon::kBlack : b.image.at(x, y);
            out.push_back(static_cast<std::uint8_t>(icon::blueOf(c)));
            out.push_back(static_cast<std::uint8_t>(icon::greenOf(c)));
            out.push_back(static_cast<std::uint8_t>(icon::redOf(c)));
        }
        out.resize(start + colourRow, 0);
    }
    for (int y = b.height() - 1; y >= 0; --y) {
        std::vector<std::uint8_t> row(maskRow, 0);
        for (int x = 0; x < b.width(); ++x)
            if (icon::isTransparentMask(b.mask.at(x, y)))
                row[static_cast<std::size_t>(x / 8)] |= static_cast<std::uint8_t>(0x80 >> (x % 8));
        out.insert(out.end(), row.begin(), row.end());
    }
    return out;
}

} // namespace

std::vector<IconArt> libraryArt() {
    std::vector<IconArt> all;
    for (auto part : {objectArt, symbolArt, arrowArt, faceAndLetterArt}) {
        const std::vector<IconArt> icons = part();
        all.insert(all.end(), icons.begin(), icons.end());
    }
    return all;
}

icon::IconBitmap paint(const IconArt& art, int size) {
    Sketch sketch(size);
    art.draw(sketch);
    return sketch.finish();
}

std::vector<std::uint8_t> encodeIco(const std::vector<icon::IconBitmap>& images) {
    std::vector<std::vector<std::uint8_t>> data;
    for (const icon::IconBitmap& b : images)
        data.push_back(imageData(b));
    std::vector<std::uint8_t> out;
    put16(out, 0);
    put16(out, 1);
    put16(out, static_cast<std::uint32_t>(images.size()));
    std::uint32_t offset = 6 + 16 * static_cast<std::uint32_t>(images.size());
    for (std::size_t i = 0; i < images.size(); ++i) {
        out.push_back(static_cast<std::uint8_t>(images[i].width() % 256));
        out.push_back(static_cast<std::uint8_t>(images[i].height() % 256));
        put16(out, 0); // colour count, reserved
        put16(out, 1); // planes
        put16(out, 24);
        put32(out, static_cast<std::uint32_t>(data[i].size()));
        put32(out, offset);
        offset += static_cast<std::uint32_t>(data[i].size());
    }
    for (const std::vector<std::uint8_t>& d : data)
        out.insert(out.end(), d.begin(), d.end());
    return out;
}

std::vector<std::uint8_t> iconFile(const IconArt& art) {
    std::vector<int> sizes = art.sizes;
    std::sort(sizes.begin(), sizes.end());
    std::vector<icon::IconBitmap> images;
    for (int size : sizes)
        images.push_back(paint(art, size));
    return encodeIco(images);
}

std::vector<icon::LibraryIcon> libraryIcons() {
    std::vector<icon::LibraryIcon> icons;
    for (const IconArt& art : libraryArt())
        icons.push_back({QString::fromLatin1(art.name), iconFile(art)});
    return icons;
}

icon::Frame contactSheet() {
    const std::vector<IconArt> art = libraryArt();
    const int perRow = 8;
    const int cellW = 120;
    const int cellH = 64;
    const icon::Colour background = icon::rgb(236, 236, 232);
    const int rows = (static_cast<int>(art.size()) + perRow - 1) / perRow;
    icon::Frame sheet(perRow * cellW, rows * cellH, background);
    for (std::size_t i = 0; i < art.size(); ++i) {
        int x = static_cast<int>(i % perRow) * cellW + 6;
        const int y0 = static_cast<int>(i / perRow) * cellH + 8;
        for (int size : {48, 32, 16}) {
            if (std::find(art[i].sizes.begin(), art[i].sizes.end(), size) != art[i].sizes.end()) {
                const icon::Frame shown = icon::composeOver(paint(art[i], size), background);
                for (int y = 0; y < size; ++y)
                    for (int px = 0; px < size; ++px)
                        sheet.set(x + px, y0 + y, shown.at(px, y));
            }
            x += size + 6;
        }
    }
    return sheet;
}

} // namespace iconlib
