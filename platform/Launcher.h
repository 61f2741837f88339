#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

namespace platform {

// Starts other programs and opens documents with the desktop's own choice of program.
class Launcher {
public:
    virtual ~Launcher() = default;
    virtual bool openDocument(const QUrl& url) = 0;
    // Starts a program found on the PATH, without waiting for it. False when it cannot start.
    virtual bool startProgram(const QString& program, const QStringList& arguments) = 0;
};

class DesktopLauncher : public Launcher {
public:
    bool openDocument(const QUrl& url) override;
    bool startProgram(const QString& program, const QStringList& arguments) override;
};

} // namespace platform
