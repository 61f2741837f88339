#pragma once

#include "platform/DesktopGrab.h"

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

namespace platform {

// Asks the desktop portal for a screenshot (org.freedesktop.portal.Screenshot), the one way a
// Wayland desktop lets a program see the screen. The portal answers with a Response signal on
// a request object and leaves the picture in a file named by its URI.
class PortalScreenshot : public QObject, public DesktopGrabber {
    Q_OBJECT
public:
    // The portal may first ask the user's leave, so the wait is long.
    static constexpr int kDefaultWaitMilliseconds = 120000;
    static constexpr qint64 kMaximumFileBytes = 512LL * 1024 * 1024;

    explicit PortalScreenshot(QDBusConnection bus = QDBusConnection::sessionBus(),
                              int waitMilliseconds = kDefaultWaitMilliseconds);

    DesktopPicture grab() override;
    // Whether a portal answers on the bus at all.
    bool isAvailable() const;

private slots:
    void response(uint code, const QVariantMap& results);

private:
    QString requestPath(const QString& token) const;
    static DesktopPicture readPicture(const QString& uri);

    QDBusConnection m_bus;
    int m_wait;
    bool m_answered = false;
    uint m_code = 0;
    QVariantMap m_results;
};

} // namespace platform
