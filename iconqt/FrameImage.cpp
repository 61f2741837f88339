#include "iconqt/FrameImage.h"

#include "icon/IcoReader.h"

#include <QByteArray>

namespace iconqt {

QImage toImage(const icon::Frame& frame) {
    QImage image(frame.width(), frame.height(), QImage::Format_RGB32);
    for (int y = 0; y < frame.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const icon::Colour* colours = frame.row(y);
        for (int x = 0; x < frame.width(); ++x) {
            const icon::Colour c = colours[x];
            line[x] = qRgb(icon::redOf(c), icon::greenOf(c), icon::blueOf(c));
        }
    }
    return image;
}

icon::Frame frameFromImage(const QImage& source) {
    const QImage image = source.convertToFormat(QImage::Format_RGB32);
    icon::Frame frame(image.width(), image.height());
    for (int y = 0; y < frame.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        icon::Colour* colours = frame.row(y);
        for (int x = 0; x < frame.width(); ++x)
            colours[x] = icon::rgb(qRed(line[x]), qGreen(line[x]), qBlue(line[x]));
    }
    return frame;
}

bool isLoadablePicture(std::span<const std::uint8_t> bytes) {
    if (icon::decodeIcon(bytes, icon::kIconSize))
        return true;
    const QByteArray data = QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                                    static_cast<qsizetype>(bytes.size()));
    return !QImage::fromData(data).isNull();
}

} // namespace iconqt
