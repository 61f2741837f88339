#include "editor/IconEditor.h"

#include "editor/Coordinates.h"
#include "editor/FloodFill.h"

namespace editor {

using icon::Colour;
using icon::IconPlanes;

IconEditor::IconEditor() {
    NewIcon();
}

Events IconEditor::commit() {
    m_history.ClearRedo();
    m_history.PushSnapshot(m_planes);
    m_modified = true;
    return kRedraw;
}

Events IconEditor::NewIcon() {
    m_planes = IconPlanes::blank();
    m_selection = SelectionState::None;
    m_framing = m_moving = false;
    m_buffers = {};
    m_rect = {};
    m_held = 0;
    m_rubberBand.clear();
    m_modified = false;
    m_tool = m_previousTool = Tool::Selection;
    ResetButtonColours();
    m_history.ClearHistory();
    m_history.PushSnapshot(m_planes);
    return kRedraw | kColoursChanged | kToolChanged;
}

Events IconEditor::loadIcon(const IconPlanes& planes) {
    const Events events = NewIcon();
    // The opened icon takes the place of the blank one as the base of the history.
    m_planes = planes;
    m_history.ClearHistory();
    m_history.PushSnapshot(m_planes);
    return events;
}

Events IconEditor::replacePlanes(const IconPlanes& planes) {
    m_planes = planes;
    return commit();
}

IconPlanes IconEditor::displayedPlanes() const {
    if (m_selection != SelectionState::Floating)
        return m_planes;
    IconPlanes shown = m_planes;
    stamp(shown, m_buffers, m_rect);
    return shown;
}

Events IconEditor::Undo(bool dropSelectionFirst) {
    Events events = dropSelectionFirst ? DropSelection() : kNoEvent;
    if (const auto snapshot = m_history.Undo()) {
        m_planes = *snapshot;
        m_modified = true;
        return events | kRedraw;
    }
    return events | kHistoryFailed;
}

Events IconEditor::Redo(bool dropSelectionFirst) {
    Events events = dropSelectionFirst ? DropSelection() : kNoEvent;
    if (const auto snapshot = m_history.Redo()) {
        m_planes = *snapshot;
        m_modified = true;
        return events | kRedraw;
    }
    return events | kHistoryFailed;
}

void IconEditor::setPosition(double x, double y) {
    m_x = toCanvasCoordinate(x);
    m_y = toCanvasCoordinate(y);
}

std::string IconEditor::positionText() const {
    return ShowPosition(m_x, m_y);
}

Events IconEditor::press(int button, double x, double y) {
    if ((button != 1 && button != 2) || m_held != 0)
        return kNoEvent;
    setPosition(x, y);
    m_held = button;
    m_drawColour = m_buttonColours[button - 1];
    switch (m_tool) {
    case Tool::Selection: {
        int px = m_x, py = m_y;
        SnapGridLine(px, py);
        ClampCanvas(px, py);
        if (m_selection != SelectionState::None && isOverSelection(m_x, m_y)) {
            // Grabbing a drawn selection lifts it: it floats from now on, its pixels still
            // in the icon beneath until it is stamped.
            if (m_selection == SelectionState::Drawn)
                liftSelection();
            m_selection = SelectionState::Floating;
            m_offsets = {px - m_rect.left, py - m_rect.top, m_rect.right - px, m_rect.bottom - py};
            m_moving = true;
            moveSelectionTo(px, py);
            return kRedraw;
        }
        const Events events = DropSelection();
        m_framing = true;
        m_rect = {px, py, px, py};
        return events | kRedraw;
    }
    case Tool::Pencil:
    case Tool::Eraser:
        m_history.ClearRedo();
        paintCellAt(m_x, m_y);
        return kRedraw;
    case Tool::Picker:
    case Tool::Fill:
        return kNoEvent;
    default: {
        m_history.ClearRedo();
        int px = m_x, py = m_y;
        SnapCellCentre(px, py);
        m_startX = px;
        m_startY = py;
        m_rubberBand.clear();
        return kNoEvent;
    }
    }
}

Events IconEditor::move(int button, double x, double y) {
    setPosition(x, y);
    if (m_held == 0 || button != m_held)
        return kPositionChanged;
    switch (m_tool) {
    case Tool::Selection: {
        int px = m_x, py = m_y;
        SnapGridLine(px, py);
        ClampCanvas(px, py);
        if (m_moving)
            moveSelectionTo(px, py);
        else if (m_framing) {
            m_rect.right = px;
            m_rect.bottom = py;
        }
        break;
    }
    case Tool::Pencil:
    case Tool::Eraser:
        paintCellAt(m_x, m_y);
        break;
    case Tool::Picker:
    case Tool::Fill:
        return kPositionChanged;
    default:
        updateRubberBand();
        break;
    }
    return kPositionChanged | kRedraw;
}

Events IconEditor::release(int button, double x, double y) {
    if (m_held == 0 || button != m_held)
        return kNoEvent;
    setPosition(x, y);
    m_held = 0;
    const int cx = m_x / kCellSize, cy = m_y / kCellSize;
    // The picker and the fill accept 320 itself: a release on the canvas's last line counts,
    // and reads nothing outside the icon.
    const bool onCanvas = m_x >= 0 && m_x < kCanvasSize + 1 && m_y >= 0 && m_y < kCanvasSize + 1;
    switch (m_tool) {
    case Tool::Selection: {
        int px = m_x, py = m_y;
        SnapGridLine(px, py);
        ClampCanvas(px, py);
        if (m_moving) {
            // The frame settles where the button was let go.
            moveSelectionTo(px, py);
            m_moving = false;
            return kRedraw;
        }
        if (!m_framing)
            return kNoEvent;
        m_framing = false;
        m_rect.right = px;
        m_rect.bottom = py;
        if (m_rect.left > m_rect.right)
            SwapInt(m_rect.left, m_rect.right);
        if (m_rect.top > m_rect.bottom)
            SwapInt(m_rect.top, m_rect.bottom);
        if (m_rect.width() != 0 && m_rect.height() != 0) {
            liftSelection();
            m_selection = SelectionState::Drawn;
        } else {
            m_rect = {};
        }
        // No history step for a selection: the icon has not changed.
        return kRedraw;
    }
    case Tool::Picker: {
        Events events = kToolChanged;
        if (onCanvas && icon::Plane::contains(cx, cy)) {
            if (m_planes.isTransparent(cx, cy)) {
                events |= kBeep;
            } else {
                m_buttonColours[button - 1] = m_planes.image.at(cx, cy);
                events |= kColoursChanged;
            }
        }
        // The picker is a one-shot tool.
        m_tool = m_previousTool;
        return events;
    }
    case Tool::Fill:
        if (!onCanvas)
            return kNoEvent;
        m_history.ClearRedo();
        FloodFillAt(m_planes, cx, cy, m_drawColour, m_previewBackground);
        return commit();
    case Tool::Pencil:
    case Tool::Eraser:
        // One snapshot per stroke, taken at the release, never per cell.
        return commit();
    default: {
        const Colour other = m_buttonColours[button == 1 ? 1 : 0];
        paintCells(m_planes, figureCells(m_tool, m_startX / kCellSize, m_startY / kCellSize, cx, cy,
                                         m_drawColour, other));
        m_rubberBand.clear();
        return commit();
    }
    }
}

void IconEditor::paintCellAt(int x, int y) {
    // Both coordinates must be above 0: a click on the canvas's first line paints nothing.
    if (x <= 0 || y <= 0)
        return;
    SnapCellOrigin(x, y);
    const int cx = x / kCellSize, cy = y / kCellSize;
    if (!icon::Plane::contains(cx, cy))
        return;
    if (m_tool == Tool::Pencil)
        m_planes.paint(cx, cy, m_drawColour);
    else
        m_planes.erase(cx, cy);
}

void IconEditor::updateRubberBand() {
    const Colour other = m_buttonColours[m_held == 1 ? 1 : 0];
    m_rubberBand = figureCells(m_tool, m_startX / kCellSize, m_startY / kCellSize, m_x / kCellSize,
                               m_y / kCellSize, m_drawColour, other);
}

Events IconEditor::selectTool(Tool tool) {
    // The pad always remembers the tool it leaves, even when the same one is chosen again: the
    // picker chosen twice then hands back to itself.
    m_previousTool = m_tool;
    m_tool = tool;
    return kToolChanged;
}

Events IconEditor::ResetButtonColours() {
    m_buttonColours = {icon::kBlack, icon::kWhite};
    return kColoursChanged;
}

Events IconEditor::paletteRelease(int button, double x, double y, std::optional<Colour> redefined) {
    const auto index = Palette::indexAt(x, y);
    if (!index || (button != 1 && button != 2))
        return kNoEvent;
    Events events = kColoursChanged;
    if (redefined) {
        m_palette.set(*index, *redefined & icon::kWhite);
        events |= kPaletteChanged;
    }
    m_buttonColours[button - 1] = m_palette.at(*index);
    return events;
}

} // namespace editor
