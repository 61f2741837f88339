#include "platform/QtDialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

#include <vector>

namespace platform {

namespace {

std::vector<std::pair<QMessageBox::StandardButton, Answer>> buttonsOf(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::Ok:
        return {{QMessageBox::Ok, Answer::Ok}};
    case MessageButtons::OkCancel:
        return {{QMessageBox::Ok, Answer::Ok}, {QMessageBox::Cancel, Answer::Cancel}};
    case MessageButtons::YesNo:
        return {{QMessageBox::Yes, Answer::Yes}, {QMessageBox::No, Answer::No}};
    case MessageButtons::YesNoCancel:
        return {{QMessageBox::Yes, Answer::Yes},
                {QMessageBox::No, Answer::No},
                {QMessageBox::Cancel, Answer::Cancel}};
    case MessageButtons::RetryCancel:
        return {{QMessageBox::Retry, Answer::Retry}, {QMessageBox::Cancel, Answer::Cancel}};
    }
    return {{QMessageBox::Ok, Answer::Ok}};
}

QMessageBox::Icon qtIcon(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Critical:
        return QMessageBox::Critical;
    case MessageIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QFileDialog* makeFileDialog(const FileRequest& request) {
    auto* dialog = new QFileDialog(QApplication::activeWindow(), request.title, request.folder);
    const QStringList filters = QtDialogs::qtFilters(request.filter);
    dialog->setNameFilters(filters);
    if (request.filterIndex >= 1 && request.filterIndex <= filters.size())
        dialog->selectNameFilter(filters[request.filterIndex - 1]);
    if (!request.fileName.isEmpty() && !request.fileName.contains(QLatin1Char('*')))
        dialog->selectFile(request.fileName);
    return dialog;
}

std::optional<FileChoice> runFileDialog(QFileDialog* dialog) {
    std::optional<FileChoice> choice;
    if (dialog->exec() == QDialog::Accepted && !dialog->selectedFiles().isEmpty()) {
        const QStringList filters = dialog->nameFilters();
        choice = FileChoice{dialog->selectedFiles().first(),
                            static_cast<int>(filters.indexOf(dialog->selectedNameFilter())) + 1};
    }
    delete dialog;
    return choice;
}

} // namespace

Answer QtDialogs::message(const Message& message) {
    QMessageBox box(qtIcon(message.icon), message.title, message.text, QMessageBox::NoButton,
                    QApplication::activeWindow());
    const auto buttons = buttonsOf(message.buttons);
    for (const auto& [button, answer] : buttons)
        box.addButton(button);
    const int preferred = std::clamp(message.defaultButton, 1, static_cast<int>(buttons.size()));
    box.setDefaultButton(buttons[static_cast<std::size_t>(preferred - 1)].first);
    box.exec();
    const auto clicked = box.standardButton(box.clickedButton());
    for (const auto& [button, answer] : buttons) {
        if (button == clicked)
            return answer;
    }
    // Closed without a button: the answer of the last button, Cancel or No, as Escape gives.
    return buttons.back().second;
}

std::optional<FileChoice> QtDialogs::openFile(const FileRequest& request) {
    QFileDialog* dialog = makeFileDialog(request);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFile);
    return runFileDialog(dialog);
}

std::optional<FileChoice> QtDialogs::saveFile(const FileRequest& request) {
    QFileDialog* dialog = makeFileDialog(request);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    return runFileDialog(dialog);
}

std::optional<QString> QtDialogs::chooseFolder(const QString& title, const QString& start) {
    const QString folder =
        QFileDialog::getExistingDirectory(QApplication::activeWindow(), title, start);
    if (folder.isEmpty())
        return std::nullopt;
    return folder;
}

std::optional<icon::Colour> QtDialogs::chooseColour(icon::Colour initial) {
    const QColor start(icon::redOf(initial), icon::greenOf(initial), icon::blueOf(initial));
    const QColor chosen = QColorDialog::getColor(start, QApplication::activeWindow());
    if (!chosen.isValid())
        return std::nullopt;
    return icon::rgb(chosen.red(), chosen.green(), chosen.blue());
}

QString QtDialogs::runModal(QDialog& window) {
    return window.exec() == QDialog::Accepted ? QStringLiteral("Ok") : QStringLiteral("Cancelled");
}

QStringList QtDialogs::qtFilters(const QString& filter) {
    QStringList filters;
    const QStringList parts = filter.split(QLatin1Char('|'));
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        QString patterns = parts[i + 1];
        patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
        const QString shown = QStringLiteral(" (") + patterns + QLatin1Char(')');
        // A description that already names its patterns keeps them once.
        filters << (parts[i].endsWith(shown) ? parts[i] : parts[i] + shown);
    }
    if (filters.isEmpty())
        filters << QStringLiteral("* (*)");
    return filters;
}

} // namespace platform
