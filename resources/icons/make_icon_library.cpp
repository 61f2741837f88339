// Paints the program's own icons and packs them into its icon library.
//   make_icon_library LIBRARY.icl [SHEET.png]
// The optional sheet shows every icon at 48, 32 and 16 pixels, to look them over.

#include "icon/NeWriter.h"
#include "iconqt/FrameImage.h"
#include "resources/icons/IconLibrary.h"

#include <QImage>

#include <cstdio>
#include <fstream>

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
    if (argc == 3 && !iconqt::toImage(iconlib::contactSheet()).save(QString::fromUtf8(argv[2]))) {
        std::fprintf(stderr, "make_icon_library: cannot write %s\n", argv[2]);
        return 1;
    }
    return 0;
}
