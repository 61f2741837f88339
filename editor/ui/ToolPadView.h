#pragma once

#include "editor/IconEditor.h"

#include <QWidget>

#include <optional>

namespace editor::ui {

// The tool pad `PicTools`: twelve buttons in four columns and three rows; the current tool's
// button is sunken, and so is a button while it is pressed. The tip names the tool under the
// mouse.
class ToolPadView : public QWidget {
    Q_OBJECT
public:
    explicit ToolPadView(IconEditor& engine, QWidget* parent = nullptr);

    // The face colour of the raised buttons.
    void setFaceColour(icon::Colour colour);

signals:
    void engineEvents(editor::Events events);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    static std::optional<Tool> toolUnder(const QPointF& point);

    IconEditor& m_engine;
    std::optional<Tool> m_pressed;
    icon::Colour m_face = 0xE0E0E0;
};

} // namespace editor::ui
