#include "tests/support/ScriptedDialogs.h"

#include <QCoreApplication>
#include <QDialog>

#include <algorithm>

namespace platform {

namespace {

Answer defaultAnswer(const Message& message) {
    static const std::vector<Answer> ok{Answer::Ok}, okCancel{Answer::Ok, Answer::Cancel},
        yesNo{Answer::Yes, Answer::No}, yesNoCancel{Answer::Yes, Answer::No, Answer::Cancel},
        retryCancel{Answer::Retry, Answer::Cancel};
    const std::vector<Answer>* set = &ok;
    switch (message.buttons) {
    case MessageButtons::Ok:
        break;
    case MessageButtons::OkCancel:
        set = &okCancel;
        break;
    case MessageButtons::YesNo:
        set = &yesNo;
        break;
    case MessageButtons::YesNoCancel:
        set = &yesNoCancel;
        break;
    case MessageButtons::RetryCancel:
        set = &retryCancel;
        break;
    }
    const int index = std::clamp(message.defaultButton, 1, static_cast<int>(set->size()));
    return (*set)[static_cast<std::size_t>(index - 1)];
}

} // namespace

void ScriptedDialogs::chooseFile(const QString& path, int filterIndex) {
    m_script.emplace_back(FileChoice{path, filterIndex});
}

void ScriptedDialogs::clear() {
    m_script.clear();
    m_asked.clear();
}

std::optional<ScriptedDialogs::Step> ScriptedDialogs::take() {
    if (m_script.empty())
        return std::nullopt;
    Step step = std::move(m_script.front());
    m_script.pop_front();
    return step;
}

Answer ScriptedDialogs::message(const Message& message) {
    Asked asked;
    asked.kind = Asked::Kind::Message;
    asked.title = message.title;
    asked.text = message.text;
    asked.icon = message.icon;
    asked.buttons = message.buttons;
    asked.defaultButton = message.defaultButton;
    m_asked.push_back(asked);
    const auto step = take();
    if (step && std::holds_alternative<Answer>(*step))
        return std::get<Answer>(*step);
    return defaultAnswer(message);
}

std::optional<FileChoice> ScriptedDialogs::file(Asked::Kind kind, const FileRequest& request) {
    Asked asked;
    asked.kind = kind;
    asked.title = request.title;
    asked.file = request;
    m_asked.push_back(asked);
    const auto step = take();
    if (step && std::holds_alternative<FileChoice>(*step))
        return std::get<FileChoice>(*step);
    return std::nullopt;
}

std::optional<FileChoice> ScriptedDialogs::openFile(const FileRequest& request) {
    return file(Asked::Kind::OpenFile, request);
}

std::optional<FileChoice> ScriptedDialogs::saveFile(const FileRequest& request) {
    return file(Asked::Kind::SaveFile, request);
}

std::optional<QString> ScriptedDialogs::chooseFolder(const QString& title, const QString& start) {
    Asked asked;
    asked.kind = Asked::Kind::Folder;
    asked.title = title;
    asked.text = start;
    m_asked.push_back(asked);
    const auto step = take();
    if (step && std::holds_alternative<FolderAnswer>(*step))
        return std::get<FolderAnswer>(*step).path;
    return std::nullopt;
}

std::optional<icon::Colour> ScriptedDialogs::chooseColour(icon::Colour initial) {
    Asked asked;
    asked.kind = Asked::Kind::Colour;
    asked.colour = initial;
    m_asked.push_back(asked);
    const auto step = take();
    if (step && std::holds_alternative<icon::Colour>(*step))
        return std::get<icon::Colour>(*step);
    return std::nullopt;
}

QString ScriptedDialogs::runModal(QDialog& window) {
    Asked asked;
    asked.kind = Asked::Kind::Modal;
    asked.title = window.objectName();
    m_asked.push_back(asked);
    window.setResult(QDialog::Rejected);
    window.show();
    QCoreApplication::processEvents();
    const auto step = take();
    if (step && std::holds_alternative<ModalScript>(*step))
        std::get<ModalScript> (*step)(window);
    if (window.isVisible())
        window.reject();
    QCoreApplication::processEvents();
    return window.result() == QDialog::Accepted ? QStringLiteral("Ok")
                                                : QStringLiteral("Cancelled");
}

} // namespace platform
