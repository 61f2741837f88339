#pragma once

#include "platform/Dialogs.h"

#include <QString>

#include <deque>
#include <functional>
#include <optional>
#include <variant>
#include <vector>

namespace platform {

// What a scripted dialog was asked.
struct Asked {
    enum class Kind { Message, OpenFile, SaveFile, Folder, Colour, Modal };
    Kind kind = Kind::Message;
    QString title; // the message's or file dialog's title, or the modal window's objectName
    QString text;
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::Ok;
    int defaultButton = 1;
    FileRequest file;
    icon::Colour colour = 0; // the colour the colour dialog started from
};

// Answers every question from a script and records what was asked, so that tests never wait on
// a real modal. Answers are taken in the order they were queued, whatever the kind of question;
// with nothing queued, a message gets its default button and any dialog is cancelled.
class ScriptedDialogs : public Dialogs {
public:
    // Runs with the shown window; it clicks what the user would and the window closes itself
    // (a window still open afterwards is closed as cancelled).
    using ModalScript = std::function<void(QDialog&)>;

    void answer(Answer answer) { m_script.emplace_back(answer); }
    void chooseFile(const QString& path, int filterIndex = 1);
    void chooseFolderPath(const QString& path) { m_script.emplace_back(FolderAnswer{path}); }
    void chooseColourValue(icon::Colour colour) { m_script.emplace_back(colour); }
    void cancel() { m_script.emplace_back(Cancelled{}); }
    void onModal(ModalScript script) { m_script.emplace_back(std::move(script)); }

    const std::vector<Asked>& asked() const { return m_asked; }
    const Asked& last() const { return m_asked.back(); }
    int remaining() const { return static_cast<int>(m_script.size()); }
    void clear();

    Answer message(const Message& message) override;
    std::optional<FileChoice> openFile(const FileRequest& request) override;
    std::optional<FileChoice> saveFile(const FileRequest& request) override;
    std::optional<QString> chooseFolder(const QString& title, const QString& start) override;
    std::optional<icon::Colour> chooseColour(icon::Colour initial) override;
    QString runModal(QDialog& window) override;

private:
    struct Cancelled {};
    struct FolderAnswer {
        QString path;
    };
    using Step =
        std::variant<Cancelled, Answer, FileChoice, FolderAnswer, icon::Colour, ModalScript>;

    // Records the question and takes the next answer of the script, if any.
    std::optional<Step> take(Asked asked);
    // The answer when it is of the kind asked for; any other is used up all the same.
    template <typename T>
    static std::optional<T> answerOf(const std::optional<Step>& step) {
        if (step && std::holds_alternative<T>(*step))
            return std::get<T>(*step);
        return std::nullopt;
    }
    std::optional<FileChoice> file(Asked::Kind kind, const FileRequest& request);

    std::deque<Step> m_script;
    std::vector<Asked> m_asked;
};

} // namespace platform
