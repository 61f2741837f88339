#include "browser/BmpExport.h"

#include "icon/IconBitmap.h"

namespace browser {

QString BmpExport::title() {
    return QStringLiteral("Transformation fichier ICO en fichier BMP");
}

QString BmpExport::filter() {
    return QStringLiteral("Fichiers BMP|*.bmp");
}

icon::Frame BmpExport::picture(const Thumbnail* thumbnail, int size, icon::Colour background) {
    if (thumbnail == nullptr || thumbnail->state != Thumbnail::State::Icon ||
        thumbnail->picture.isEmpty())
        return icon::Frame(size, size, background);
    // The cell is decoded for the screen; the file gets the view's own size.
    const CellPicture& picture = thumbnail->picture;
    return blendOver(picture.side == size ? picture : scaled(picture, size), background);
}

} // namespace browser
