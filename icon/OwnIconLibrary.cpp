#include "icon/OwnIconLibrary.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace icon {

QString ownIconLibraryName() {
    return QStringLiteral("Orvanne®.icl");
}

QString ownIconLibraryPath() {
    const QString beside =
        QDir(QCoreApplication::applicationDirPath()).filePath(ownIconLibraryName());
    if (QFileInfo::exists(beside))
        return beside;
    const QString installed =
        QDir(QString::fromUtf8(ORVANNE_DATADIR)).filePath(ownIconLibraryName());
    return QFileInfo::exists(installed) ? installed : beside;
}

} // namespace icon
