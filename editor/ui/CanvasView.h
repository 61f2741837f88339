#pragma once

#include "editor/IconEditor.h"

#include <QImage>
#include <QRegion>
#include <QWidget>

#include <optional>
#include <vector>

namespace editor::ui {

// The canvas `PicMain`: the icon ten times enlarged, 320×320 screen pixels. It paints what the
// engine holds (the planes with a floating selection over them, the figure being dragged, the
// dotted frame) and hands every mouse event to the engine.
class CanvasView : public QWidget {
    Q_OBJECT
public:
    // A transparent cell is a small chequer of two light greys, so that it never passes for
    // a white pixel; a colour left under a transparent pixel is drawn over it by XOR.
    static constexpr icon::Colour kChequerLight = 0xEEEEEE;
    static constexpr icon::Colour kChequerDark = 0xCCCCCC;

    explicit CanvasView(IconEditor& engine, QWidget* parent = nullptr);

    // Renders again the cells that changed since the last call and repaints only them (and the
    // figure being dragged and the frame, where they were and where they are).
    void refresh();
    const QImage& picture() const { return m_picture; }

signals:
    // What an engine call answered, for the window to act on (it repaints the canvas too).
    void engineEvents(editor::Events events);
    void pressed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    // Renders the cells that differ from what the picture shows; the area they cover.
    QRegion render();
    void renderCell(int cx, int cy, icon::Colour mask, icon::Colour colour);
    void updatePointer(double x, double y);

    IconEditor& m_engine;
    QImage m_picture;
    // What the picture and the last paint show, to repaint only what changes.
    icon::IconPlanes m_shown;
    bool m_rendered = false;
    std::vector<PaintedCell> m_band;
    std::optional<CanvasRect> m_frame;
};

} // namespace editor::ui
