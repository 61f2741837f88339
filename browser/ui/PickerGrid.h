#pragma once

#include "browser/PickerCells.h"
#include "icon/Colour.h"
#include "shell/ColourScheme.h"

#include <QWidget>

namespace browser::ui {

// The picker's grid picture `PicIcons`: as high as its rows, moved up inside the frame by the
// scroll bar. It paints the cells that are decoded and leaves the others to come; the selected
// icon wears a frame.
class PickerGrid : public QWidget {
    Q_OBJECT
public:
    explicit PickerGrid(QWidget* parent = nullptr);

    void setCells(const PickerCells* cells);
    void setSelected(int number);
    int selected() const { return m_selected; }
    void setBackground(icon::Colour colour);

signals:
    // A mouse button released over an icon (numbered from 1).
    void released(int number);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    const PickerCells* m_cells = nullptr;
    int m_selected = 0;
    icon::Colour m_background = shell::kDefaultViewing;
};

} // namespace browser::ui
