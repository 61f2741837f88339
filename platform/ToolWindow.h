#pragma once

#include <QWidget>

class QVBoxLayout;

namespace platform {

class GradientButton;
class TitleButton;

// A window of the program that stays open beside the others (the help, the clipboard viewer):
// no system title bar, its title button `CmdDeplaceFen` to move it, a close button
// `CmdFermer`, Escape to close, a grip to resize it, and the interface colours. It is deleted
// when closed.
class ToolWindow : public QWidget {
    Q_OBJECT
public:
    ToolWindow(const QString& title, const QString& objectName, QWidget* parent = nullptr);

    // Puts the window's own content under the title row; the window takes it.
    void setContent(QWidget* content);
    void setTitle(const QString& title);
    // Shows the window in front. The first time it comes beside the window the user is in
    // (never over it); afterwards where the user left it.
    void bringUp();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    TitleButton* m_title = nullptr;
    QVBoxLayout* m_layout = nullptr;
    bool m_placed = false;
};

} // namespace platform
