#include "capture/BitmapName.h"

#include <QFileInfo>

namespace capture {

std::optional<QString> bitmapSavePath(const QString& chosen) {
    const QFileInfo file(chosen);
    const QString name = file.fileName();
    if (name.isEmpty() || name.contains(QLatin1Char('*')) || name.contains(QLatin1Char('?')))
        return std::nullopt;
    if (file.suffix().isEmpty())
        return chosen + QStringLiteral(".BMP");
    return chosen;
}

} // namespace capture
