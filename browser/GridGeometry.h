#pragma once

namespace browser {

enum class GridView { Icons32, Icons48 };

// Where the cells of a grid view lie inside its background panel, in pixels. Cells are numbered
// row by row from 0 at the top left; the centred icon is always in the middle cell.
struct GridGeometry {
    int columns;  // and rows: the grid is square
    int cellSize; // side of a cell
    int pitch;    // from one cell to the next
    int first;    // left and top of cell 0
    int centre;   // number of the middle cell

    constexpr int cellCount() const { return columns * columns; }
    // A page keeps one row in view: one row less than the grid.
    constexpr int pageStep() const { return (columns - 1) * columns; }
    constexpr int lineStep() const { return columns; }
    constexpr int cellX(int k) const { return first + (k % columns) * pitch; }
    constexpr int cellY(int k) const { return first + (k / columns) * pitch; }
    // Side of the square both grids fill.
    constexpr int panelSide() const { return 2 * first + (columns - 1) * pitch + cellSize; }

    // The cell under a point of the panel, or -1 between cells and outside.
    constexpr int cellAt(int x, int y) const {
        const int dx = x - first;
        const int dy = y - first;
        if (dx < 0 || dy < 0)
            return -1;
        const int column = dx / pitch;
        const int row = dy / pitch;
        if (column >= columns || row >= columns || dx % pitch >= cellSize || dy % pitch >= cellSize)
            return -1;
        return row * columns + column;
    }

    static constexpr GridGeometry of(GridView view) {
        return view == GridView::Icons48 ? GridGeometry{5, 48, 52, 4, 12}
                                         : GridGeometry{7, 32, 36, 8, 24};
    }
};

} // namespace browser
