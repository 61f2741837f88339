#include "editor/PasteSizing.h"

#include "effects/Rounding.h"
#include "iconqt/FrameImage.h"

namespace editor {

using icon::Frame;
using icon::IconBitmap;

bool pasteNeedsDialog(QSize picture) {
    return picture.width() > icon::kIconSize || picture.height() > icon::kIconSize;
}

std::string pasteSizeText(QSize picture) {
    return std::to_string(picture.width()) + " x " + std::to_string(picture.height()) + " pixels";
}

QSize ProportionalSize(double width, double height) {
    const double stepW = width / 10000, stepH = height / 10000;
    if (width < height) {
        do {
            width -= stepW;
            height -= stepH;
        } while (!(height <= icon::kIconSize));
    } else {
        do {
            width -= stepW;
            height -= stepH;
        } while (!(width <= icon::kIconSize));
    }
    if (height < 1)
        height = 1;
    if (width < 1)
        width = 1;
    return {effects::roundHalfEven(width), effects::roundHalfEven(height)};
}

QSize pasteSize(QSize picture, PasteFit fit) {
    if (!pasteNeedsDialog(picture))
        return picture;
    if (fit == PasteFit::Square)
        return {icon::kIconSize, icon::kIconSize};
    return ProportionalSize(picture.width(), picture.height());
}

IconBitmap pictureToBlock(const QImage& picture, QSize size, bool opaque) {
    const int w = size.width(), h = size.height();
    IconBitmap block{Frame(w, h, icon::kBlack), Frame(w, h, icon::kWhite)};
    if (picture.isNull() || w <= 0 || h <= 0)
        return block;
    const int sw = picture.width(), sh = picture.height();
    for (int y = 0; y < h; ++y) {
        // Only the rows that are kept are converted: a screen-sized picture is never copied
        // whole for the few pixels the icon takes from it.
        const int sy = static_cast<int>(static_cast<long long>(y) * sh / h);
        const QImage row = picture.copy(0, sy, sw, 1).convertToFormat(QImage::Format_ARGB32);
        const auto* line = reinterpret_cast<const QRgb*>(row.constScanLine(0));
        for (int x = 0; x < w; ++x) {
            const QRgb pixel = line[static_cast<long long>(x) * sw / w];
            const icon::Colour colour = icon::rgb(qRed(pixel), qGreen(pixel), qBlue(pixel));
            const bool hole = !opaque && (colour == kPasteBackground || qAlpha(pixel) < 128);
            if (!hole) {
                block.image.set(x, y, colour);
                block.mask.set(x, y, icon::kBlack);
            }
        }
    }
    return block;
}

QImage blockToPicture(const IconBitmap& block) {
    return iconqt::toImage(icon::composeOver(block, kPasteBackground));
}

} // namespace editor
