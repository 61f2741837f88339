#include "tests/support/ScriptedDialogs.h"

#include <QCoreApplication>
#include <QDialog>

#include <algorithm>

namespace platform {

namespace {

Answer defaultAnswer(const Message& message) {
    // The buttons of each set, in the order of MessageButtons, left to right.
    static const std::vector<Answer> sets[] = {{Answer::Ok},
                                               {Answer::Ok, Answer::Cancel},
                                               {Answer::Yes, Answer::No},
                                               {Answer::Yes, Answer::No, Answer::Cancel},
                                               {Answer::Retry, Answer::Cancel}};
    const std::vector<Answer>& set = sets[static_cast<int>(message.buttons)];
    const int index = std::clamp(message.defaultButton, 1, static_cast<int>(set.size()));
    return set[static_cast<std::size_t>(index - 1)];
}

} // namespace

void ScriptedDialogs::chooseFile(const QString& path, int filterIndex) {
    m_script.emplace_back(FileChoice{path, filterIndex});
}

void ScriptedDialogs::clear() {
    m_script.clear();
    m_asked.clear();
}

std::optional<ScriptedDialogs::Step> ScriptedDialogs::take(Asked asked) {
    m_asked.push_back(std::move(asked));
    if (m_script.empty())
        return std::nullopt;
    Step step = std::move(m_script.front());
    m_script.pop_front();
    return step;
}

namespace {
Asked askedOf(Asked::Kind kind, const QString& title = {}, const QString& text = {}) {
    Asked asked;
    asked.kind = kind;
    asked.title = title;
    asked.text = text;
    return asked;
}
} // namespace

Answer ScriptedDialogs::message(const Message& message) {
    Asked asked = askedOf(Asked::Kind::Message, message.title, message.text);
    asked.icon = message.icon;
    asked.buttons = message.buttons;
    asked.defaultButton = message.defaultButton;
    return answerOf<Answer>(take(asked)).value_or(defaultAnswer(message));
}

std::optional<FileChoice> ScriptedDialogs::file(Asked::Kind kind, const FileRequest& request) {
    Asked asked = askedOf(kind, request.title);
    asked.file = request;
    return answerOf<FileChoice>(take(asked));
}

std::optional<FileChoice> ScriptedDialogs::openFile(const FileRequest& request) {
    return file(Asked::Kind::OpenFile, request);
}

std::optional<FileChoice> ScriptedDialogs::saveFile(const FileRequest& request) {
    return file(Asked::Kind::SaveFile, request);
}

std::optional<QString> ScriptedDialogs::chooseFolder(const QString& title, const QString& start) {
    const auto folder = answerOf<FolderAnswer>(take(askedOf(Asked::Kind::Folder, title, start)));
    return folder ? std::optional<QString>(folder->path) : std::nullopt;
}

std::optional<icon::Colour> ScriptedDialogs::chooseColour(icon::Colour initial) {
    Asked asked = askedOf(Asked::Kind::Colour);
    asked.colour = initial;
    return answerOf<icon::Colour>(take(asked));
}

QString ScriptedDialogs::runModal(QDialog& window) {
    const auto script = answerOf<ModalScript>(take(askedOf(Asked::Kind::Modal, window.objectName())));
    window.setResult(QDialog::Rejected);
    window.show();
    QCoreApplication::processEvents();
    if (script)
        (*script)(window);
    if (window.isVisible())
        window.reject();
    QCoreApplication::processEvents();
    return window.result() == QDialog::Accepted ? QStringLiteral("Ok")
                                                : QStringLiteral("Cancelled");
}

} // namespace platform
