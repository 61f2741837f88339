#include "resources/icons/IconLibrary.h"

#include "icon/IcoWriter.h"

#include <algorithm>

namespace iconlib {

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

std::vector<std::uint8_t> iconFile(const IconArt& art) {
    std::vector<int> sizes = art.sizes;
    std::sort(sizes.begin(), sizes.end());
    std::vector<icon::IconBitmap> images;
    for (int size : sizes)
        images.push_back(paint(art, size));
    return icon::encodeIcoFile(images);
}

std::vector<icon::LibraryIcon> libraryIcons() {
    std::vector<icon::LibraryIcon> icons;
    for (const IconArt& art : libraryArt())
        icons.push_back({art.name, iconFile(art)});
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
