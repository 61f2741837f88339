// Paints the program's own icons and packs them into its icon library.
//   make_icon_library LIBRARY.icl [SHEET.png]
// The optional sheet shows every icon at 48, 32 and 16 pixels, to look them over.

#include "icon/Frame.h"
#include "icon/NeWriter.h"
#include "resources/icons/IconLibrary.h"

#include <QImage>

#include <cstdio>
#include <fstream>

namespace {

bool writeSheet(const char* path) {
    const std::vector<iconlib::IconArt> art = iconlib::libraryArt();
    const int perRow = 8;
    const int cellW = 120;
    const int cellH = 64;
    const int rows = (static_cast<int>(art.size()) + perRow - 1) / perRow;
    icon::Frame sheet(perRow * cellW, rows * cellH, icon::rgb(236, 236, 232));
    for (std::size_t i = 0; i < art.size(); ++i) {
        const int x0 = static_cast<int>(i % perRow) * cellW + 6;
        const int y0 = static_cast<int>(i / perRow) * cellH + 8;
        int x = x0;
        for (int size : {48, 32, 16}) {
            const bool drawn =
                std::find(art[i].sizes.begin(), art[i].sizes.end(), size) != art[i].sizes.end();
            if (drawn) {
                const icon::Frame shown =
                    icon::composeOver(iconlib::paint(art[i], size), icon::rgb(236, 236, 232));
                for (int y = 0; y < size; ++y)
                    for (int px = 0; px < size; ++px)
                        sheet.set(x + px, y0 + y, shown.at(px, y));
            }
            x += size + 6;
        }
    }
    return sheet.toImage().save(QString::fromUtf8(path));
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2 || argc > 3) {
        std::fprintf(stderr, "usage: make_icon_library LIBRARY.icl [SHEET.png]\n");
        return 2;
    }
    const auto library =
        icon::writeNeIconLibrary(iconlib::libraryIcons(), "ORVANNE", "Icônes d'Orvanne®");
    if (!library) {
        std::fprintf(stderr, "make_icon_library: the icons do not make a library\n");
        return 1;
    }
    std::ofstream out(argv[1], std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(library->data()),
              static_cast<std::streamsize>(library->size()));
    out.close();
    if (!out) {
        std::fprintf(stderr, "make_icon_library: cannot write %s\n", argv[1]);
        return 1;
    }
    if (argc == 3 && !writeSheet(argv[2])) {
        std::fprintf(stderr, "make_icon_library: cannot write %s\n", argv[2]);
        return 1;
    }
    return 0;
}
