#include "cli/Input.h"

#include "icon/FileBytes.h"

#include <QFileInfo>

namespace cli {

QString quoted(const QString& path) {
    return QStringLiteral("« %1 »").arg(path);
}

std::optional<std::vector<std::uint8_t>> readInput(const QString& path, Console& console) {
    const QFileInfo info(path);
    if (!info.exists()) {
        console.fail(kRefused, QStringLiteral("le fichier %1 n'existe pas.").arg(quoted(path)));
        return std::nullopt;
    }
    std::optional<std::vector<std::uint8_t>> bytes = icon::readFileBytes(path);
    if (!bytes)
        console.fail(kRefused, QStringLiteral("impossible de lire %1.").arg(quoted(path)));
    return bytes;
}

} // namespace cli
