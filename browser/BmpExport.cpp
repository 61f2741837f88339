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
        thumbnail->bitmap.isEmpty())
        return icon::Frame(size, size, background);
    const icon::IconBitmap& bitmap = thumbnail->bitmap;
    if (bitmap.width() == size && bitmap.height() == size)
        return icon::composeOver(bitmap, background);
    return icon::composeOver(icon::resample(bitmap, size, size), background);
}

} // namespace browser
