#include "platform/Trash.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace platform {

bool moveToTrash(const QString& path) {
    // Qt finds the user's trash under the data folder; when that folder does not exist yet it
    // quietly makes a "trash" in the working directory instead. Make sure it exists first.
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    return QFile::moveToTrash(path);
}

} // namespace platform
