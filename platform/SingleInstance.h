#pragma once

#include <QLockFile>
#include <QString>

namespace platform {

// Tells whether the program already runs for this user. The first instance holds a lock file
// in the user's runtime folder for as long as it runs; a lock left by a crashed instance is
// recognised as stale and taken over.
class SingleInstance {
public:
    explicit SingleInstance(const QString& name = QStringLiteral("orvanne"));
    // True when another living instance holds the lock.
    bool anotherIsRunning() const { return !m_held; }
    QString lockPath() const { return m_path; }

private:
    QString m_path;
    QLockFile m_lock;
    bool m_held = false;
};

} // namespace platform
