#include "platform/PortalScreenshot.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using platform::PortalScreenshot;

// A private session bus with the fake portal on it, both ended with the test.
class PortalBus : public ::testing::Test {
protected:
    void TearDown() override {
        QDBusConnection::disconnectFromBus(QStringLiteral("portal-test"));
        for (QProcess* process : {&m_portal, &m_daemon}) {
            process->kill();
            process->waitForFinished(3000);
        }
    }

    QDBusConnection startBus() {
        m_daemon.start(QStringLiteral(ORVANNE_DBUS_DAEMON),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--print-address=1")});
        EXPECT_TRUE(m_daemon.waitForReadyRead(10000));
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
        return QDBusConnection::connectToBus(m_address, QStringLiteral("portal-test"));
    }

    void startPortal(const QStringList& arguments) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_address);
        m_portal.setProcessEnvironment(environment);
        m_portal.start(QStringLiteral(ORVANNE_FAKE_PORTAL), arguments);
        ASSERT_TRUE(m_portal.waitForReadyRead(10000));
        ASSERT_EQ(m_portal.readLine().trimmed(), QByteArray("ready"));
    }

    QProcess m_daemon;
    QProcess m_portal;
    QString m_address;
};

TEST_F(PortalBus, ThePortalsPictureBecomesTheDesktop) {
    QTemporaryDir folder;
    QImage shot(120, 80, QImage::Format_RGB32);
    for (int y = 0; y < shot.height(); ++y)
        for (int x = 0; x < shot.width(); ++x)
            shot.setPixel(x, y, qRgb(x * 2, y * 3, 90));
    const QString file = folder.filePath(QStringLiteral("capture d'écran.png"));
    ASSERT_TRUE(shot.save(file));

    QDBusConnection bus = startBus();
    ASSERT_TRUE(bus.isConnected());
    PortalScreenshot portal(bus, 10000);
    EXPECT_FALSE(portal.isAvailable());
    startPortal({QStringLiteral("answer"), file});
    EXPECT_TRUE(portal.isAvailable());

    // Twice: each request listens for its own answer.
    for (int i = 0; i < 2; ++i) {
        const platform::DesktopPicture desktop = portal.grab();
        ASSERT_TRUE(desktop.ok()) << desktop.error.toStdString();
        EXPECT_EQ(desktop.picture.size(), shot.size());
        EXPECT_EQ(desktop.picture.pixel(37, 21), shot.pixel(37, 21));
    }
}

TEST_F(PortalBus, NoAnswerARefusalOrNoPortalGiveAMessage) {
    QDBusConnection bus = startBus();
    {
        PortalScreenshot noPortal(bus, 2000);
        const auto desktop = noPortal.grab();
        EXPECT_FALSE(desktop.ok());
        EXPECT_TRUE(desktop.error.startsWith(platform::noDesktopPictureText()));
    }
    startPortal({QStringLiteral("refuse")});
    PortalScreenshot refused(bus, 5000);
    const auto answer = refused.grab();
    EXPECT_FALSE(answer.ok());
    EXPECT_TRUE(answer.error.contains(QStringLiteral("refusée")));

    m_portal.kill();
    m_portal.waitForFinished(3000);
    startPortal({QStringLiteral("silent")});
    PortalScreenshot silent(bus, 500);
    const auto nothing = silent.grab();
    EXPECT_FALSE(nothing.ok());
    EXPECT_TRUE(nothing.error.contains(QStringLiteral("à temps")));
}

// The session decides: the screen is read directly under X, never under Wayland, where only
// the portal may see it (none answers here, without a session bus).
TEST(DesktopGrabber, UnderWaylandOnlyThePortalIsAsked) {
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    EXPECT_TRUE(platform::desktopGrabber().grab().ok());
    qputenv("XDG_SESSION_TYPE", "wayland");
    const platform::DesktopPicture desktop = platform::desktopGrabber().grab();
    qunsetenv("XDG_SESSION_TYPE");
    EXPECT_FALSE(desktop.ok());
    EXPECT_TRUE(desktop.error.startsWith(platform::noDesktopPictureText()));
}

} // namespace
