#pragma once

#include "browser/IconGrid.h"

#include "icon/Colour.h"
#include "shell/ColourScheme.h"

#include <QWidget>

namespace browser::ui {

class CentrePicture;

// A grid's background panel (`Fond` for 32×32, `Fond48` for 48×48): it paints the cells of its
// view from the grid's rules and turns clicks into cell numbers. The centre cell is covered by
// the centre picture (`Picture24` or `Picture12`).
class IconGridView : public QWidget {
    Q_OBJECT
public:
    IconGridView(const IconGrid& grid, GridView view, QWidget* parent = nullptr);

    GridView view() const { return m_view; }
    CentrePicture& centre() { return *m_centre; }
    void setBackground(icon::Colour colour);
    icon::Colour background() const { return m_background; }
    // The picture of one cell as the panel shows it, in screen pixels.
    QImage cellImage(int cell) const;

signals:
    void cellClicked(int cell);
    void backgroundRightPressed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    const IconGrid& m_grid;
    GridView m_view;
    icon::Colour m_background = shell::kDefaultViewing;
    CentrePicture* m_centre = nullptr;
    int m_pressedCell = -1;
};

// A cell's picture blended over a background colour, `side` pixels square (its own size when
// 0), marked as drawn at `logicalSide` pixels of the window so that it lands 1:1 on the screen.
QImage thumbnailImage(const Thumbnail& thumbnail, icon::Colour background, int logicalSide,
                      int side = 0);

} // namespace browser::ui
