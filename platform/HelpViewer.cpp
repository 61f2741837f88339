#include "platform/HelpViewer.h"

#include "platform/Services.h"
#include "platform/ToolWindow.h"
#include "shell/DataFiles.h"

#include <QFileInfo>
#include <QPointer>
#include <QTextBrowser>

namespace platform {

namespace {

QPointer<ToolWindow>& helpWindow() {
    static QPointer<ToolWindow> window;
    return window;
}

QTextBrowser* browserOf(QWidget* window) {
    return window ? window->findChild<QTextBrowser*>(QStringLiteral("TxtAide")) : nullptr;
}

} // namespace

QString HelpViewer::helpFolder() {
    const QString index = shell::DataFiles::find(QStringLiteral("help/index.html"));
    return index.isEmpty() ? QString() : QFileInfo(index).absolutePath();
}

QWidget* HelpViewer::window() {
    return helpWindow().data();
}

QString HelpViewer::currentPage() {
    const QTextBrowser* text = browserOf(window());
    return text ? text->source().fileName() : QString();
}

bool HelpViewer::showPage(const QString& page) {
    const QString folder = helpFolder();
    if (folder.isEmpty())
        return false;
    QPointer<ToolWindow>& viewer = helpWindow();
    if (viewer.isNull()) {
        viewer = new ToolWindow(QStringLiteral("Aide de Orvanne®"), QStringLiteral("AideOrvanne"));
        auto* text = new QTextBrowser;
        text->setObjectName(QStringLiteral("TxtAide"));
        text->setSearchPaths({folder});
        text->setOpenExternalLinks(false);
        text->setOpenLinks(false);
        QObject::connect(text, &QTextBrowser::anchorClicked, text, [text](const QUrl& url) {
            if (url.isRelative() || url.isLocalFile())
                text->setSource(url);
            else
                launcher().openDocument(url);
        });
        viewer->setContent(text);
        viewer->resize(640, 520);
    }
    browserOf(viewer)->setSource(QUrl(page));
    viewer->show();
    viewer->raise();
    viewer->activateWindow();
    return true;
}

} // namespace platform
