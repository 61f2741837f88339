#pragma once

#include <QDialog>

class QCheckBox;

namespace shell::ui {

// The warning about a display in fewer than 16 million colours, with the switch it offers and
// "Ne plus poser la question". The icon editor shows it as it loads when `shouldWarn()`.
class Avertis : public QDialog {
    Q_OBJECT
public:
    explicit Avertis(QWidget* parent = nullptr);

    // The setting asks for the warning and the screen has fewer than 32 bits per pixel.
    static bool shouldWarn();
    static QString warningText();

private:
    void checkBoxClicked(bool ticked);
    void switchDisplay();

    QCheckBox* m_check = nullptr;
};

} // namespace shell::ui
