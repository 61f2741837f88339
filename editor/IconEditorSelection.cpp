// The selection, the clipboard and the paste of the icon editor's engine.
#include "editor/IconEditor.h"

#include "editor/Coordinates.h"

namespace editor {

using icon::Frame;
using icon::IconBitmap;
using icon::IconPlanes;

std::optional<CanvasRect> IconEditor::selectionFrame() const {
    if (m_selection == SelectionState::None && !m_framing)
        return std::nullopt;
    CanvasRect frame = m_rect;
    if (frame.left > frame.right)
        SwapInt(frame.left, frame.right);
    if (frame.top > frame.bottom)
        SwapInt(frame.top, frame.bottom);
    return frame;
}

bool IconEditor::isOverSelection(int x, int y) const {
    return x >= m_rect.left && x < m_rect.right && y >= m_rect.top && y < m_rect.bottom;
}

bool IconEditor::showsMoveShape(double x, double y) const {
    return m_tool == Tool::Selection && m_selection != SelectionState::None &&
           isOverSelection(toCanvasCoordinate(x), toCanvasCoordinate(y));
}

void IconEditor::liftSelection() {
    // A selection on the canvas always lies within it, so every cell of it is an icon pixel.
    const int left = m_rect.left / kCellSize, top = m_rect.top / kCellSize;
    const int w = m_rect.width() / kCellSize, h = m_rect.height() / kCellSize;
    m_buffers = {Frame(w, h, icon::kBlack), Frame(w, h, icon::kWhite)};
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            if (icon::Plane::contains(left + x, top + y)) {
                m_buffers.image.set(x, y, m_planes.image.at(left + x, top + y));
                m_buffers.mask.set(x, y, m_planes.mask.at(left + x, top + y));
            }
}

void IconEditor::writeBackSelection() {
    // In place, pixel for pixel, transparent ones included.
    const int left = m_rect.left / kCellSize, top = m_rect.top / kCellSize;
    for (int y = 0; y < m_buffers.height(); ++y)
        for (int x = 0; x < m_buffers.width(); ++x)
            if (icon::Plane::contains(left + x, top + y)) {
                m_planes.image.set(left + x, top + y, m_buffers.image.at(x, y));
                m_planes.mask.set(left + x, top + y, m_buffers.mask.at(x, y));
            }
}

void IconEditor::stamp(IconPlanes& planes, const IconBitmap& block, const CanvasRect& rect) {
    // The floating picture is laid over the icon as it is shown: its transparent pixels let
    // the icon through, and whatever lies beyond the canvas is lost.
    const int left = rect.left / kCellSize, top = rect.top / kCellSize;
    for (int y = 0; y < block.height(); ++y)
        for (int x = 0; x < block.width(); ++x)
            if (icon::Plane::contains(left + x, top + y) &&
                !icon::isTransparentMask(block.mask.at(x, y)))
                planes.paint(left + x, top + y, block.image.at(x, y));
}

void IconEditor::moveSelectionTo(int x, int y) {
    m_rect = {x - m_offsets[0], y - m_offsets[1], x + m_offsets[2], y + m_offsets[3]};
}

Events IconEditor::DropSelection() {
    if (m_selection == SelectionState::None)
        return kNoEvent;
    const bool floating = m_selection == SelectionState::Floating;
    m_selection = SelectionState::None;
    m_moving = false;
    if (!floating)
        return kRedraw;
    // Stamping changes the icon, so it is one step of the history: an undo takes the
    // picture away again.
    stamp(m_planes, m_buffers, m_rect);
    return commit();
}

Events IconEditor::SelectAll() {
    Events events = DropSelection();
    if (m_tool != Tool::Selection)
        events |= selectTool(Tool::Selection);
    m_rect = {0, 0, kCanvasSize, kCanvasSize};
    liftSelection();
    m_selection = SelectionState::Drawn;
    return events | kRedraw;
}

Events IconEditor::DeleteSelection() {
    if (m_selection == SelectionState::Drawn) {
        const int left = m_rect.left / kCellSize, top = m_rect.top / kCellSize;
        for (int y = top; y < m_rect.bottom / kCellSize; ++y)
            for (int x = left; x < m_rect.right / kCellSize; ++x)
                if (icon::Plane::contains(x, y))
                    m_planes.erase(x, y);
        liftSelection();
    } else if (m_selection == SelectionState::Floating) {
        // A picture that was never stamped leaves nothing behind.
        m_selection = SelectionState::None;
        m_moving = false;
    }
    // The command always records its step, a selection or not.
    return commit();
}

QImage IconEditor::CopySelection() {
    if (m_selection == SelectionState::None)
        return {};
    if (m_selection == SelectionState::Drawn)
        liftSelection();
    return blockToPicture(m_buffers);
}

IconEditor::CutResult IconEditor::Cut() {
    // Without a selection nothing is copied, but the command still records its step, as
    // deleting the selection does.
    CutResult result;
    result.picture = CopySelection();
    result.events = DeleteSelection();
    return result;
}

Events IconEditor::PasteClipboard(const QImage& picture, bool opaque, PasteFit fit) {
    if (picture.isNull())
        return kNoEvent;
    const QSize size = pasteSize(picture.size(), fit);
    const Events events = DropSelection();
    m_buffers = pictureToBlock(picture, size, opaque);
    // The picture lands at the top-left corner of the canvas.
    m_rect = {0, 0, size.width() * kCellSize, size.height() * kCellSize};
    m_selection = SelectionState::Floating;
    m_moving = false;
    return events | kRedraw;
}

} // namespace editor
