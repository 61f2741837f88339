#pragma once

#include "icon/Colour.h"

#include <QString>

#include <optional>

class QDialog;

namespace platform {

enum class MessageIcon { None, Information, Question, Exclamation, Critical };
enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel, RetryCancel };
enum class Answer { Ok, Cancel, Yes, No, Retry };

// A message box: its exact title and text (lines joined with line feeds), its icon, its buttons
// and which of them (1-based, in the order of the set) answers to Enter.
struct Message {
    QString title;
    QString text;
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::Ok;
    int defaultButton = 1;
};

// A file dialog. The filter is written the way the program has always written its filters,
// pairs of description and patterns separated by "|": "Icônes|*.ico|Tous fichiers|*.*".
struct FileRequest {
    QString title;
    QString folder;   // where the dialog opens
    QString fileName; // proposed name
    QString filter;
    int filterIndex = 1; // 1-based
};

struct FileChoice {
    QString path;
    int filterIndex = 1;
};

// Every question the program asks the user goes through here: message boxes, the common file,
// folder and colour dialogs, and the program's own modal windows. The program shows them; tests
// answer them from a script and read back what was asked.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    virtual Answer message(const Message& message) = 0;
    // Nothing when the user cancels.
    virtual std::optional<FileChoice> openFile(const FileRequest& request) = 0;
    virtual std::optional<FileChoice> saveFile(const FileRequest& request) = 0;
    virtual std::optional<QString> chooseFolder(const QString& title, const QString& start) = 0;
    virtual std::optional<icon::Colour> chooseColour(icon::Colour initial) = 0;
    // Shows one of the program's own windows modally; "Ok" when it was accepted, "Cancelled"
    // otherwise.
    virtual QString runModal(QDialog& window) = 0;
};

} // namespace platform
