#include "cli/Input.h"

#include "icon/FileBytes.h"

namespace cli {

QString quoted(const QString& path) {
    return QStringLiteral("« %1 »").arg(path);
}

std::shared_ptr<const icon::MappedFile> readInput(const QString& path, Console& console) {
    icon::ReadError error = icon::ReadError::None;
    std::shared_ptr<const icon::MappedFile> file =
        icon::MappedFile::open(icon::pathFromText(path), icon::kMaxFileBytes, &error);
    switch (error) {
    case icon::ReadError::None:
        break;
    case icon::ReadError::Missing:
        console.fail(kRefused, QStringLiteral("le fichier %1 n'existe pas.").arg(quoted(path)));
        break;
    case icon::ReadError::NotRegular:
        console.fail(kRefused,
                     QStringLiteral("%1 n'est pas un fichier ordinaire.").arg(quoted(path)));
        break;
    case icon::ReadError::TooLarge:
        console.fail(kRefused, QStringLiteral("%1 est trop gros (plus de %2 Mo).")
                                   .arg(quoted(path))
                                   .arg(icon::kMaxFileBytes / (1024 * 1024)));
        break;
    case icon::ReadError::Unreadable:
        console.fail(kRefused, QStringLiteral("impossible de lire %1.").arg(quoted(path)));
        break;
    }
    return file;
}

} // namespace cli
