#pragma once

#include "platform/GradientButton.h"

#include <QPoint>

namespace platform {

// The title button `CmdDeplaceFen` of every window: it shows the window's title and moves the
// window while a mouse button is held on it. The window system moves it when it can; when it
// refuses (a bare X server, some window managers) the button moves the window itself.
class TitleButton : public GradientButton {
    Q_OBJECT
public:
    explicit TitleButton(const QString& title, QWidget* parent = nullptr);

    // The help text every title button shows.
    static QString helpText();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool m_moving = false;
    QPoint m_pressedAt;   // global position of the press
    QPoint m_windowStart; // window position at the press
};

} // namespace platform
