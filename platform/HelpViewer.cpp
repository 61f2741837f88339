#include "platform/HelpViewer.h"

#include "platform/Services.h"
#include "shell/DataFiles.h"

#include <QApplication>
#include <QFileInfo>
#include <QTextBrowser>

namespace platform {

QPointer<QTextBrowser>& HelpViewer::window() {
    static QPointer<QTextBrowser> viewer;
    return viewer;
}

QString HelpViewer::helpFolder() {
    const QString index = shell::DataFiles::find(QStringLiteral("help/index.html"));
    return index.isEmpty() ? QString() : QFileInfo(index).absolutePath();
}

bool HelpViewer::showPage(const QString& page) {
    const QString folder = helpFolder();
    if (folder.isEmpty())
        return false;
    QPointer<QTextBrowser>& viewer = window();
    if (viewer.isNull()) {
        viewer = new QTextBrowser;
        viewer->setAttribute(Qt::WA_DeleteOnClose);
        viewer->setObjectName(QStringLiteral("AideOrvanne"));
        viewer->setWindowTitle(QStringLiteral("Aide de Orvanne®"));
        viewer->setSearchPaths({folder});
        viewer->setOpenExternalLinks(false);
        viewer->setOpenLinks(false);
        QObject::connect(viewer, &QTextBrowser::anchorClicked, viewer, [](const QUrl& url) {
            if (url.isRelative() || url.isLocalFile())
                window()->setSource(url);
            else
                launcher().openDocument(url);
        });
        viewer->resize(640, 520);
    }
    // Over a modal dialog the help must belong to the dialog, or the dialog would keep it
    // from taking the mouse and keys.
    if (QWidget* modal = QApplication::activeModalWidget();
        modal != nullptr && viewer->parentWidget() != modal)
        viewer->setParent(modal, Qt::Window);
    viewer->setSource(QUrl(page));
    viewer->show();
    viewer->raise();
    viewer->activateWindow();
    return true;
}

} // namespace platform
