#pragma once

#include "browser/RenameRules.h"

#include <QDialog>

class QLabel;
class QLineEdit;

namespace platform {
class GradientButton;
}

namespace browser::ui {

// The rename window: the old name, the new name to type, OK and Cancel. OK renames the file at
// once and closes the window; a name already taken says so and puts the old name back.
class FenRen : public QDialog {
    Q_OBJECT
public:
    FenRen(const RenameParts& parts, QWidget* parent = nullptr);

    // Where the file went once the window was accepted.
    const std::filesystem::path& renamedTo() const { return m_renamedTo; }

private:
    void textChanged(const QString& text);
    void confirm();

    RenameParts m_parts;
    std::filesystem::path m_renamedTo;
    QLabel* m_oldName = nullptr;
    QLineEdit* m_newName = nullptr;
    platform::GradientButton* m_ok = nullptr;
};

} // namespace browser::ui
