#include "shell/DataFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace shell {

QStringList DataFiles::folders() {
    QStringList list;
    const QString forced = qEnvironmentVariable("ORVANNE_DATA_DIR");
    if (!forced.isEmpty())
        list << forced;
    const QString programFolder = QCoreApplication::applicationDirPath();
    if (!programFolder.isEmpty()) {
        list << programFolder;
        list << QDir::cleanPath(programFolder + QStringLiteral("/../share/orvanne"));
    }
#ifdef ORVANNE_INSTALL_DATADIR
    list << QStringLiteral(ORVANNE_INSTALL_DATADIR);
#endif
    list.removeDuplicates();
    return list;
}

QString DataFiles::find(const QString& name) {
    for (const QString& folder : folders()) {
        const QString path = QDir(folder).filePath(name);
        if (QFileInfo::exists(path))
            return path;
    }
    return {};
}

QString DataFiles::expected(const QString& name) {
    const QStringList list = folders();
    return list.isEmpty() ? name : QDir(list.first()).filePath(name);
}

} // namespace shell
