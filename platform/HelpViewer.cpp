#include "platform/HelpViewer.h"

#include "platform/Services.h"
#include "platform/ToolWindow.h"
#include "shell/DataFiles.h"

#include <QApplication>
#include <QFileInfo>
#include <QPalette>
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
        // The pages read as a document, dark on white, whatever the interface colours.
        QPalette paper = text->palette();
        paper.setColor(QPalette::Base, Qt::white);
        paper.setColor(QPalette::Text, Qt::black);
        text->setPalette(paper);
        viewer->resize(640, 520);
    }
    // Over a modal dialog the help must belong to the dialog, or the dialog would keep it
    // from taking the mouse and keys.
    if (QWidget* modal = QApplication::activeModalWidget();
        modal != nullptr && viewer->parentWidget() != modal)
        viewer->setParent(modal, viewer->windowFlags()); // keeps it frameless
    browserOf(viewer)->setSource(QUrl(page));
    viewer->bringUp();
    return true;
}

} // namespace platform
