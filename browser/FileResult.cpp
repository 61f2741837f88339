#include "browser/FileResult.h"

#include <cerrno>

namespace browser {

QString errorText(int error) {
    switch (error) {
    case 0:
        return QStringLiteral("Opération réussie.");
    case kSameFile:
        return QStringLiteral("Un fichier ne peut pas être copié sur lui-même.");
    case kNotRegular:
        return QStringLiteral("Ce n'est pas un fichier ordinaire.");
    case ENOENT:
        return QStringLiteral("Fichier ou dossier introuvable.");
    case EACCES:
    case EPERM:
        return QStringLiteral("Permission refusée.");
    case EEXIST:
    case ENOTEMPTY:
        return QStringLiteral("Le fichier existe déjà.");
    case EROFS:
        return QStringLiteral("Le disque est en lecture seule.");
    case ENOSPC:
        return QStringLiteral("Le disque est plein.");
    case EDQUOT:
        return QStringLiteral("Le quota du disque est dépassé.");
    case EXDEV:
        return QStringLiteral("Le fichier se trouve sur un autre disque.");
    case EISDIR:
        return QStringLiteral("C'est un dossier.");
    case ENOTDIR:
        return QStringLiteral("Un élément du chemin n'est pas un dossier.");
    case ENAMETOOLONG:
        return QStringLiteral("Le nom du fichier est trop long.");
    case ELOOP:
        return QStringLiteral("Trop de liens symboliques dans le chemin.");
    case EIO:
        return QStringLiteral("Erreur de lecture ou d'écriture sur le disque.");
    case EBUSY:
    case ETXTBSY:
        return QStringLiteral("Le fichier est en cours d'utilisation.");
    case EMFILE:
    case ENFILE:
        return QStringLiteral("Trop de fichiers ouverts.");
    case ENOMEM:
        return QStringLiteral("Mémoire insuffisante.");
    case EINVAL:
        return QStringLiteral("Nom ou opération non valide.");
    case EFBIG:
        return QStringLiteral("Le fichier est trop gros.");
    default:
        return QStringLiteral("Erreur du système n° %1.").arg(error);
    }
}

} // namespace browser
