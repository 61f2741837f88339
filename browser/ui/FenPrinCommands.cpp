// The main window's commands on the centred icon (copy, rename, delete, picture to the
// clipboard) and the outside tools (paint program, clipboard viewer, help).
#include "browser/ui/FenPrin.h"

#include "browser/FileCommandTexts.h"
#include "browser/FileOperations.h"
#include "browser/NameRules.h"
#include "browser/Trash.h"
#include "browser/ui/CentrePicture.h"
#include "browser/ui/FenRen.h"
#include "browser/ui/IconGridView.h"
#include "icon/FileBytes.h"
#include "iconqt/Paths.h"
#include "platform/ClipboardViewer.h"
#include "platform/GradientButton.h"
#include "platform/HelpViewer.h"
#include "platform/Services.h"

#include <QClipboard>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>

namespace browser::ui {

namespace {

QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

std::filesystem::path bytesOf(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

} // namespace

void FenPrin::connectFileCommands() {
    auto button = [this](const char* name) {
        return findChild<platform::GradientButton*>(QString::fromLatin1(name));
    };
    connect(button("CmdCOPIER"), &QAbstractButton::clicked, this, &FenPrin::copyCentred);
    connect(button("CmdCOPIER"), &platform::GradientButton::rightPressed, this,
            &FenPrin::showExplorer);
    connect(button("CmdRename"), &QAbstractButton::clicked, this, &FenPrin::renameCentred);
    connect(button("CmdSuppr"), &QAbstractButton::clicked, this, &FenPrin::trashCentred);
    connect(button("CmdCopImg"), &QAbstractButton::clicked, this, &FenPrin::copyPicture);
    connect(button("CmdPaint"), &QAbstractButton::clicked, this, &FenPrin::startPaint);
    connect(button("CmdPressPap"), &QAbstractButton::clicked, this, &FenPrin::showClipboard);
    connect(button("CmdAide"), &QAbstractButton::clicked, this, [this] { showHelp(false); });
    connect(button("CmdAide"), &platform::GradientButton::rightPressed, this,
            [this] { showHelp(true); });
    for (const char* name :
         {"CmdCOPIER", "CmdRename", "CmdSuppr", "CmdCopImg", "CmdPaint", "CmdPressPap", "CmdAide"})
        setCommandReady(QString::fromLatin1(name));
}

void FenPrin::copyCentred() {
    hidePopUp();
    const IconEntry* centred = m_grid.centred();
    if (centred == nullptr)
        return;
    const std::filesystem::path source = centred->file;
    for (;;) {
        platform::FileRequest request;
        request.title = text(kCopyTitle);
        request.folder = m_copyFolder;
        request.fileName = proposedName(iconqt::textFromPath(source));
        request.filter = text(kIconsFilter);
        const auto chosen = platform::dialogs().saveFile(request);
        if (!chosen)
            return;
        const FileResult result = copyFile(source, bytesOf(chosen->path));
        if (result.ok()) {
            m_copyFolder = folderBeforeName(chosen->path);
            reactualiser();
            return;
        }
        platform::Message message;
        if (isRefusal(result.error)) {
            // The user may choose another folder or name: OK shows the dialog again.
            message.title = text(kRefusedTitle);
            message.text = text(kRefusedText);
            message.icon = platform::MessageIcon::Information;
            message.buttons = platform::MessageButtons::OkCancel;
            if (platform::dialogs().message(message) == platform::Answer::Ok)
                continue;
            return;
        }
        message.title = text(kProgramTitle);
        message.text = errorText(result.error);
        platform::dialogs().message(message);
        return;
    }
}

void FenPrin::showExplorer() {
    hidePopUp();
    // The open dialog only serves to look at the folder with the desktop's own dialog.
    platform::FileRequest request;
    request.title = text(kExplorerTitle);
    request.folder = m_folder;
    request.filter = text(kExplorerFilter);
    request.filterIndex = 1;
    platform::dialogs().openFile(request);
}

void FenPrin::renameCentred() {
    hidePopUp();
    const IconEntry* centred = m_grid.centred();
    if (centred == nullptr)
        return;
    FenRen window(renameParts(centred->file), this);
    platform::dialogs().runModal(window);
    reactualiser();
}

void FenPrin::trashCentred() {
    hidePopUp();
    const IconEntry* centred = m_grid.centred();
    if (centred == nullptr)
        return;
    // The desktop's trash keeps the file for the user to take back: nothing is asked here.
    const TrashResult result = moveToTrash(centred->file);
    if (result.kind != TrashResult::Kind::Trashed) {
        platform::Message message;
        message.title = text(kErrorTitle);
        message.text = trashFailureText(iconqt::textFromPath(centred->file.filename()), result);
        message.icon = platform::MessageIcon::Exclamation;
        platform::dialogs().message(message);
    }
    reactualiser();
}

void FenPrin::copyPicture() {
    hidePopUp();
    IconGridView* view = m_grid.view() == GridView::Icons48 ? m_fond48 : m_fond;
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setImage(view->centre().picture());
    platform::sound().playClick();
}

void FenPrin::startPaint() {
    hidePopUp();
    for (const char* program : kPaintPrograms) {
        if (platform::launcher().startProgram(QString::fromLatin1(program), {}))
            return;
    }
    platform::Message message;
    message.title = text(kProgramTitle);
    message.text = text(kNoPaintText);
    message.icon = platform::MessageIcon::Exclamation;
    platform::dialogs().message(message);
}

void FenPrin::showClipboard() {
    hidePopUp();
    platform::ClipboardViewer::showViewer();
}

void FenPrin::showHelp(bool browserPage) {
    hidePopUp();
    // The right button opens the page of the browser itself.
    platform::HelpViewer::showPage(browserPage ? QStringLiteral("visualiseur.html")
                                               : QStringLiteral("index.html"));
}

} // namespace browser::ui
