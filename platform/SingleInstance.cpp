#include "platform/SingleInstance.h"

#include <QDir>
#include <QStandardPaths>

#include <unistd.h>

namespace platform {

namespace {

QString lockFolder() {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QDir::tempPath();
    QDir().mkpath(folder);
    return folder;
}

} // namespace

SingleInstance::SingleInstance(const QString& name)
    : m_path(QDir(lockFolder())
                 .filePath(name + QLatin1Char('-') + QString::number(::getuid()) +
                           QStringLiteral(".lock")))
    , m_lock(m_path) {
    m_lock.setStaleLockTime(0); // only a dead owner makes a lock stale, never its age
    m_held = m_lock.tryLock(0);
}

} // namespace platform
