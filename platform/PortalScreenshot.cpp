#include "platform/PortalScreenshot.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QTimer>
#include <QUrl>

namespace platform {

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kObject = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Screenshot");
const QString kRequest = QStringLiteral("org.freedesktop.portal.Request");

DesktopPicture failed(const QString& why) {
    return {QImage(), noDesktopPictureText() + QLatin1Char('\n') + why};
}

} // namespace

PortalScreenshot::PortalScreenshot(QDBusConnection bus, int waitMilliseconds)
    : m_bus(std::move(bus))
    , m_wait(waitMilliseconds) {}

bool PortalScreenshot::isAvailable() const {
    if (!m_bus.isConnected() || m_bus.interface() == nullptr)
        return false;
    const auto answer = m_bus.interface()->isServiceRegistered(kService);
    if (answer.isValid() && answer.value())
        return true;
    // A portal started on demand is activatable without being registered yet.
    const auto activatable = m_bus.interface()->activatableServiceNames();
    return activatable.isValid() && activatable.value().contains(kService);
}

QString PortalScreenshot::requestPath(const QString& token) const {
    // The portal names the request after the caller's unique name, without the colon and with
    // its dots as underscores, so that the answer can be listened for before asking.
    QString sender = m_bus.baseService().mid(1);
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    return kObject + QStringLiteral("/request/") + sender + QLatin1Char('/') + token;
}

DesktopPicture PortalScreenshot::grab() {
    if (!m_bus.isConnected())
        return failed(QStringLiteral("Le bus de session est absent."));
    static int serial = 0;
    const QString token =
        QStringLiteral("orvanne%1_%2").arg(QCoreApplication::applicationPid()).arg(++serial);
    const QString expected = requestPath(token);
    m_answered = false;
    m_results.clear();
    m_bus.connect(QString(), expected, kRequest, QStringLiteral("Response"), this,
                  SLOT(response(uint, QVariantMap)));

    QDBusMessage call =
        QDBusMessage::createMethodCall(kService, kObject, kInterface, QStringLiteral("Screenshot"));
    call << QString()
         << QVariantMap{{QStringLiteral("handle_token"), token},
                        {QStringLiteral("interactive"), false}};
    const QDBusMessage reply = m_bus.call(call, QDBus::Block, m_wait);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty()) {
        m_bus.disconnect(QString(), expected, kRequest, QStringLiteral("Response"), this,
                         SLOT(response(uint, QVariantMap)));
        return failed(QStringLiteral("Le portail de capture du bureau ne répond pas."));
    }
    // Older portals chose the request's path themselves.
    const QString path = reply.arguments().constFirst().value<QDBusObjectPath>().path();
    if (!path.isEmpty() && path != expected)
        m_bus.connect(QString(), path, kRequest, QStringLiteral("Response"), this,
                      SLOT(response(uint, QVariantMap)));

    if (!m_answered) {
        // The window events keep running while the portal (or the user it asks) answers.
        QEventLoop loop;
        QTimer timer;
        timer.setSingleShot(true);
        timer.start(m_wait);
        while (!m_answered && timer.isActive())
            loop.processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents);
    }
    for (const QString& listened : {expected, path})
        m_bus.disconnect(QString(), listened, kRequest, QStringLiteral("Response"), this,
                         SLOT(response(uint, QVariantMap)));

    if (!m_answered)
        return failed(QStringLiteral("Le portail de capture du bureau n'a pas répondu à temps."));
    if (m_code != 0)
        return failed(QStringLiteral("La capture du bureau a été refusée ou annulée."));
    return readPicture(m_results.value(QStringLiteral("uri")).toString());
}

void PortalScreenshot::response(uint code, const QVariantMap& results) {
    m_code = code;
    m_results = results;
    m_answered = true;
}

DesktopPicture PortalScreenshot::readPicture(const QString& uri) {
    const QUrl url(uri);
    if (!url.isLocalFile())
        return failed(QStringLiteral("Le portail n'a pas donné de fichier d'image."));
    const QFileInfo file(url.toLocalFile());
    if (!file.isFile() || file.size() > kMaximumFileBytes)
        return failed(QStringLiteral("Le fichier d'image du portail est illisible."));
    QImageReader reader(file.filePath());
    reader.setAllocationLimit(1024);
    const QImage picture = reader.read();
    if (picture.isNull())
        return failed(QStringLiteral("Le fichier d'image du portail est illisible."));
    return {picture.convertToFormat(QImage::Format_RGB32), QString()};
}

} // namespace platform
