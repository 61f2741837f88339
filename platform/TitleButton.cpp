#include "platform/TitleButton.h"

#include "platform/HelpBubbles.h"

#include <QMouseEvent>
#include <QWindow>

namespace platform {

TitleButton::TitleButton(const QString& title, QWidget* parent)
    : GradientButton(title, parent) {
    setObjectName(QStringLiteral("CmdDeplaceFen"));
    setHelpText(*this, helpText());
    // A handle for the mouse, not a command: Tab passes it by.
    setFocusPolicy(Qt::NoFocus);
}

QString TitleButton::helpText() {
    return QStringLiteral("Déplacement de la fenêtre");
}

void TitleButton::mousePressEvent(QMouseEvent* event) {
    QWidget* window = this->window();
    m_moving = false;
    QWindow* handle = window->windowHandle();
    if (handle != nullptr && handle->startSystemMove())
        return;
    m_moving = true;
    m_pressedAt = event->globalPosition().toPoint();
    m_windowStart = window->pos();
    event->accept();
}

void TitleButton::mouseMoveEvent(QMouseEvent* event) {
    if (m_moving && event->buttons() != Qt::NoButton)
        window()->move(m_windowStart + event->globalPosition().toPoint() - m_pressedAt);
    event->accept();
}

void TitleButton::mouseReleaseEvent(QMouseEvent* event) {
    m_moving = false;
    event->accept();
}

} // namespace platform
