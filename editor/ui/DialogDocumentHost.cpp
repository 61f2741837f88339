#include "editor/ui/DialogDocumentHost.h"

#include "platform/Services.h"
#include "shell/Settings.h"

#include <QCursor>
#include <QGuiApplication>

namespace editor::ui {

namespace {

platform::FileRequest request(const DocumentHost::FileQuestion& question) {
    platform::FileRequest r;
    r.title = question.title;
    r.folder = question.folder;
    r.fileName = question.fileName;
    r.filter = question.filter;
    r.filterIndex = 1;
    return r;
}

} // namespace

DocumentHost::Reply DialogDocumentHost::askToSave(const QString& text) {
    platform::Message message;
    message.title = QStringLiteral("Orvanne®");
    message.text = text;
    message.icon = platform::MessageIcon::Question;
    message.buttons = platform::MessageButtons::YesNoCancel;
    switch (platform::dialogs().message(message)) {
    case platform::Answer::Yes:
        return Reply::Yes;
    case platform::Answer::No:
        return Reply::No;
    default:
        return Reply::Cancel;
    }
}

DocumentHost::Reply DialogDocumentHost::warnSeveralImages(const QString& text) {
    platform::Message message;
    message.title = QStringLiteral("Orvanne®");
    // The warning's lines end in carriage return and line feed; a message box breaks lines at
    // the line feed alone.
    message.text = QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    message.icon = platform::MessageIcon::Information;
    message.buttons = platform::MessageButtons::OkCancel;
    return platform::dialogs().message(message) == platform::Answer::Ok ? Reply::Ok : Reply::Cancel;
}

std::optional<QString> DialogDocumentHost::chooseOpenPath(const FileQuestion& question) {
    const auto choice = platform::dialogs().openFile(request(question));
    return choice ? std::optional<QString>(choice->path) : std::nullopt;
}

std::optional<QString> DialogDocumentHost::chooseSavePath(const FileQuestion& question) {
    const auto choice = platform::dialogs().saveFile(request(question));
    return choice ? std::optional<QString>(choice->path) : std::nullopt;
}

QString DialogDocumentHost::lastIcon() {
    return shell::Settings().read(shell::keys::kLastIcon);
}

void DialogDocumentHost::storeLastIcon(const QString& path) {
    shell::Settings().save(shell::keys::kLastIcon, path);
}

void DialogDocumentHost::setBusy(bool busy) {
    if (busy)
        QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    else
        QGuiApplication::restoreOverrideCursor();
}

} // namespace editor::ui
