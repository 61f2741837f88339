// A stand-in for the desktop portal's screenshot service, for tests on a private session bus.
//   fake_portal answer PICTURE   answers every request with the picture's URI
//   fake_portal refuse           answers that the user refused
//   fake_portal silent           takes requests and never answers
// It owns org.freedesktop.portal.Desktop on the bus of DBUS_SESSION_BUS_ADDRESS and prints
// "ready" once it does.
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QTimer>
#include <QUrl>
#include <QVariantMap>

#include <cstdio>

namespace {

class ScreenshotPortal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Screenshot")
public:
    ScreenshotPortal(QString mode, QString picture)
        : m_mode(std::move(mode))
        , m_picture(std::move(picture)) {}

public slots:
    QDBusObjectPath Screenshot(const QString&, const QVariantMap& options,
                               const QDBusMessage& message) {
        QString sender = message.service().mid(1);
        sender.replace(QLatin1Char('.'), QLatin1Char('_'));
        const QString path = QStringLiteral("/org/freedesktop/portal/desktop/request/") + sender +
                             QLatin1Char('/') +
                             options.value(QStringLiteral("handle_token")).toString();
        if (m_mode != QLatin1String("silent")) {
            // The answer comes after the reply, as a real portal's does.
            QTimer::singleShot(50, this, [this, path] {
                QDBusMessage response = QDBusMessage::createSignal(
                    path, QStringLiteral("org.freedesktop.portal.Request"),
                    QStringLiteral("Response"));
                const bool refused = m_mode == QLatin1String("refuse");
                QVariantMap results;
                if (!refused)
                    results.insert(QStringLiteral("uri"),
                                   QUrl::fromLocalFile(m_picture).toString());
                response << uint(refused ? 1 : 0) << results;
                QDBusConnection::sessionBus().send(response);
            });
        }
        return QDBusObjectPath(path);
    }

private:
    QString m_mode;
    QString m_picture;
};

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 2)
        return 2;
    ScreenshotPortal portal(args.value(1), args.value(2));
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &portal,
                            QDBusConnection::ExportAllSlots) ||
        !bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")))
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    return app.exec();
}

#include "FakePortal.moc"
