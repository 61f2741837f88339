#include "icon/SafeSave.h"

#include "icon/FileBytes.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <optional>
#include <vector>

namespace icon {

namespace {

SaveResult failure(SaveError error, const QString& text, const QString& path) {
    return {error, text.arg(QDir::toNativeSeparators(path))};
}

} // namespace

SaveResult saveFileSafely(const QString& path, std::span<const std::uint8_t> content,
                          bool keepTail) {
    const QFileInfo target(path);
    const QFileInfo folder(target.absolutePath());
    if (!folder.isDir())
        return failure(SaveError::FolderMissing,
                       QStringLiteral("le dossier de « %1 » n'existe pas."), path);
    if (target.exists() && (!target.isFile() || !target.isWritable()))
        return failure(SaveError::NotWritable,
                       QStringLiteral("le fichier « %1 » est protégé en écriture."), path);

    std::vector<std::uint8_t> tail;
    if (keepTail && target.exists()) {
        const std::optional<std::vector<std::uint8_t>> old = readFileBytes(path);
        if (!old)
            return failure(SaveError::NotWritable,
                           QStringLiteral("impossible de lire le fichier « %1 »."), path);
        if (old->size() > content.size())
            tail.assign(old->begin() + static_cast<std::ptrdiff_t>(content.size()), old->end());
    }

    // QSaveFile writes beside the target and renames over it only once everything is written;
    // it keeps the permissions of the file it replaces.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return failure(SaveError::NotWritable,
                       QStringLiteral("impossible d'écrire dans le dossier de « %1 »."), path);
    const auto write = [&file](std::span<const std::uint8_t> bytes) {
        return bytes.empty() ||
               file.write(reinterpret_cast<const char*>(bytes.data()),
                          static_cast<qint64>(bytes.size())) == static_cast<qint64>(bytes.size());
    };
    if (!write(content) || !write(tail)) {
        file.cancelWriting();
        file.commit();
        return failure(SaveError::WriteFailed,
                       QStringLiteral("l'écriture de « %1 » a échoué ; le fichier n'a pas changé."),
                       path);
    }
    if (!file.commit())
        return failure(SaveError::WriteFailed,
                       QStringLiteral("l'écriture de « %1 » a échoué ; le fichier n'a pas changé."),
                       path);
    return {};
}

} // namespace icon
