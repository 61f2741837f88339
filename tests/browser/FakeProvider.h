#pragma once

#include "browser/ThumbnailProvider.h"

#include <QDir>
#include <QFile>
#include <QString>

namespace browsertest {

// Shows every file as a plain square of a colour taken from its first byte, and counts the
// files it was asked to decode. Files whose first byte is 'X' cannot be shown.
class FakeProvider : public browser::ThumbnailProvider {
public:
    std::optional<browser::CellPicture> decode(std::span<const std::uint8_t> bytes,
                                               int side) const override {
        ++decoded;
        if (bytes.empty() || bytes[0] == 'X')
            return std::nullopt;
        browser::CellPicture picture;
        picture.side = side;
        picture.pixels.assign(static_cast<std::size_t>(side) * side,
                              0xFF000000u | (std::uint32_t{bytes[0]} << 16));
        return picture;
    }
    mutable int decoded = 0;
};

// Writes `count` icon files icon0001.ico ... into the folder, their first byte 1 to 255.
inline void makeIcons(const QString& folder, int count,
                      const QString& prefix = QStringLiteral("icon")) {
    QDir().mkpath(folder);
    for (int i = 1; i <= count; ++i) {
        QFile file(QDir(folder).filePath(
            QStringLiteral("%1%2.ico").arg(prefix).arg(i, 4, 10, QLatin1Char('0'))));
        file.open(QIODevice::WriteOnly);
        file.write(QByteArray(1, static_cast<char>(1 + i % 255)));
    }
}

} // namespace browsertest
