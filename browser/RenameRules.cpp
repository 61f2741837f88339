#include "browser/RenameRules.h"

#include <QFile>

namespace browser {

QString RenameParts::oldNameText() const {
    return QFile::decodeName(QByteArray::fromStdString(oldName));
}

RenameParts renameParts(const std::filesystem::path& centred) {
    const std::string& path = centred.native();
    const std::size_t slash = path.find('/');
    if (slash == std::string::npos)
        return {{}, path};
    return {path.substr(0, slash + 1), path.substr(slash + 1)};
}

QString withIcoExtension(const QString& name) {
    return name.endsWith(QLatin1String(".ico")) ? name : name + QStringLiteral(".ico");
}

std::filesystem::path renameTarget(const RenameParts& parts, const QString& newName) {
    const std::size_t oldSlash = parts.oldName.rfind('/');
    if (oldSlash != std::string::npos) {
        const std::string oldFolders = parts.oldName.substr(0, oldSlash + 1);
        const QString shownFolders = QFile::decodeName(QByteArray::fromStdString(oldFolders));
        const QString rest = newName.mid(shownFolders.size());
        if (newName.startsWith(shownFolders) && !rest.contains(QLatin1Char('/')))
            return parts.folder + oldFolders + QFile::encodeName(rest).toStdString();
    }
    return parts.folder + QFile::encodeName(newName).toStdString();
}

} // namespace browser
