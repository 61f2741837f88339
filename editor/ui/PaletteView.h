#pragma once

#include "editor/Palette.h"

#include <QWidget>

namespace editor::ui {

// The palette `PicPal`: 16×16 cells of 13 pixels, each framed by a sunken edge. A release of
// the left or right button over it is handed to the window.
class PaletteView : public QWidget {
    Q_OBJECT
public:
    explicit PaletteView(const Palette& palette, QWidget* parent = nullptr);

signals:
    // Button 1 (left) or 2 (right), and the position in the palette's pixels.
    void released(int button, double x, double y);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    const Palette& m_palette;
};

} // namespace editor::ui
