#include "editor/ui/ToolPadView.h"

#include "editor/ui/Edges.h"
#include "editor/ui/ToolPictures.h"
#include "platform/WindowStyle.h"
#include "shell/AppState.h"

#include <QMouseEvent>
#include <QPainter>

namespace editor::ui {

ToolPadView::ToolPadView(IconEditor& engine, QWidget* parent)
    : QWidget(parent)
    , m_engine(engine) {
    setObjectName(QStringLiteral("PicTools"));
    setFixedSize(4 * editor::ToolPad::kPitchX, 3 * editor::ToolPad::kPitchY);
    setMouseTracking(true);
}

void ToolPadView::setFaceColour(icon::Colour colour) {
    m_face = colour;
    update();
}

std::optional<Tool> ToolPadView::toolUnder(const QPointF& point) {
    return editor::ToolPad::toolAt(static_cast<int>(point.x()), static_cast<int>(point.y()));
}

void ToolPadView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor face = platform::toQColor(m_face);
    for (int n = 1; n <= kToolCount; ++n) {
        const Tool tool = static_cast<Tool>(n);
        const QRect button(editor::ToolPad::buttonX(tool), editor::ToolPad::buttonY(tool),
                           editor::ToolPad::kFaceWidth, editor::ToolPad::kFaceHeight);
        const bool sunken = tool == m_engine.tool() || m_pressed == tool;
        painter.fillRect(button, sunken ? face.darker(115) : face);
        drawEdge(painter, button, sunken);
        // A sunken face shows its picture one pixel down and to the right, as a pressed
        // button does.
        const QPixmap picture = toolPicture(tool);
        const QPoint at = button.topLeft() +
                          QPoint((button.width() - picture.width()) / 2,
                                 (button.height() - picture.height()) / 2) +
                          (sunken ? QPoint(1, 1) : QPoint());
        painter.drawPixmap(at, picture);
    }
}

void ToolPadView::mousePressEvent(QMouseEvent* event) {
    m_pressed = toolUnder(event->position());
    update();
}

void ToolPadView::mouseMoveEvent(QMouseEvent* event) {
    const auto tool = toolUnder(event->position());
    // The tool's name, unless help bubbles are off.
    const bool bubbles = shell::appState().preferences.helpBubbles;
    setToolTip(tool && bubbles ? QString::fromStdString(toolName(*tool)) : QString());
}

void ToolPadView::mouseReleaseEvent(QMouseEvent* event) {
    const auto released = toolUnder(event->position());
    const auto pressed = m_pressed;
    m_pressed.reset();
    if (released && released == pressed && event->button() == Qt::LeftButton)
        emit engineEvents(m_engine.selectTool(*released));
    update();
}

} // namespace editor::ui
