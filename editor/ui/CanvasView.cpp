#include "editor/ui/CanvasView.h"

#include "editor/Coordinates.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <utility>

namespace editor::ui {

namespace {

// The engine's numbers for the mouse buttons: 1 left, 2 right, 0 for the others.
int engineButton(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return 1;
    case Qt::RightButton:
        return 2;
    default:
        return 0;
    }
}

int heldButton(Qt::MouseButtons buttons) {
    if (buttons & Qt::LeftButton)
        return 1;
    if (buttons & Qt::RightButton)
        return 2;
    return 0;
}

// Past this many rectangles one repaint of their bounds costs less than the list.
constexpr int kMostDirtyRects = 32;

// The pixels the dotted frame covers, with a pixel to spare on each side.
QRegion frameArea(const std::optional<CanvasRect>& frame) {
    if (!frame)
        return {};
    const QRect outer = QRect(QPoint(frame->left, frame->top), QPoint(frame->right, frame->bottom))
                            .normalized()
                            .adjusted(-1, -1, 1, 1);
    return QRegion(outer).subtracted(QRegion(outer.adjusted(3, 3, -3, -3)));
}

QRgb toRgb(icon::Colour c) {
    return qRgb(icon::redOf(c), icon::greenOf(c), icon::blueOf(c));
}

} // namespace

CanvasView::CanvasView(IconEditor& engine, QWidget* parent)
    : QWidget(parent)
    , m_engine(engine)
    , m_picture(kCanvasSize, kCanvasSize, QImage::Format_RGB32) {
    setObjectName(QStringLiteral("PicMain"));
    setFixedSize(kCanvasSize, kCanvasSize);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::CrossCursor);
    render();
}

void CanvasView::refresh() {
    QRegion dirty = render();
    // The figure being dragged and the dotted frame are drawn over the picture at paint time:
    // where they were must be repainted as well as where they are.
    const std::vector<PaintedCell>& band = m_engine.rubberBand();
    if (band != m_band) {
        for (const std::vector<PaintedCell>* cells : {&std::as_const(m_band), &band}) {
            for (const PaintedCell& cell : *cells)
                dirty += QRect(cell.x * kCellSize, cell.y * kCellSize, kCellSize, kCellSize);
        }
        m_band = band;
    }
    const std::optional<CanvasRect> frame = m_engine.selectionFrame();
    if (frame != m_frame) {
        for (const auto& shown : {m_frame, frame})
            dirty += frameArea(shown);
        m_frame = frame;
    }
    if (!dirty.isEmpty())
        update(dirty.rectCount() > kMostDirtyRects ? dirty.boundingRect() : dirty);
}

QRegion CanvasView::render() {
    const icon::IconPlanes shown = m_engine.displayedPlanes();
    QRegion dirty;
    int changed = 0;
    for (int cy = 0; cy < icon::kIconSize; ++cy) {
        // Changed cells of a row make one run, so a stroke or a new icon stays a few rectangles.
        int runStart = -1;
        for (int cx = 0; cx <= icon::kIconSize; ++cx) {
            const bool differs = cx < icon::kIconSize &&
                                 (!m_rendered || shown.mask.at(cx, cy) != m_shown.mask.at(cx, cy) ||
                                  shown.image.at(cx, cy) != m_shown.image.at(cx, cy));
            if (differs) {
                renderCell(cx, cy, shown.mask.at(cx, cy), shown.image.at(cx, cy));
                ++changed;
                if (runStart < 0)
                    runStart = cx;
            } else if (runStart >= 0) {
                dirty += QRect(runStart * kCellSize, cy * kCellSize, (cx - runStart) * kCellSize,
                               kCellSize);
                runStart = -1;
            }
        }
    }
    if (changed > 0)
        m_shown = shown;
    m_rendered = true;
    return dirty;
}

void CanvasView::renderCell(int cx, int cy, icon::Colour mask, icon::Colour colour) {
    // (background AND mask) XOR colour, over the chequer's two greys.
    const QRgb light = toRgb(icon::composePixel(kChequerLight, mask, colour));
    const QRgb dark = toRgb(icon::composePixel(kChequerDark, mask, colour));
    const int half = kCellSize / 2;
    for (int y = 0; y < kCellSize; ++y) {
        auto* line =
            reinterpret_cast<QRgb*>(m_picture.scanLine(cy * kCellSize + y)) + cx * kCellSize;
        for (int x = 0; x < kCellSize; ++x)
            line[x] = ((x < half) == (y < half)) ? light : dark;
    }
}

void CanvasView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setClipRegion(event->region());
    const QRect area = event->rect();
    painter.drawImage(area, m_picture, area);
    // The figure being dragged, cell by cell, as it will be drawn at the release.
    for (const PaintedCell& cell : m_engine.rubberBand())
        painter.fillRect(cell.x * kCellSize, cell.y * kCellSize, kCellSize, kCellSize,
                         QColor(toRgb(cell.colour)));
    if (const auto frame = m_engine.selectionFrame()) {
        const QRect rect(frame->left, frame->top, frame->width() - 1, frame->height() - 1);
        // A dotted frame that shows over any colour: black dashes over a white line.
        painter.setPen(QPen(Qt::white, 1));
        painter.drawRect(rect);
        painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
        painter.drawRect(rect);
    }
}

void CanvasView::updatePointer(double x, double y) {
    setCursor(m_engine.showsMoveShape(x, y) ? Qt::SizeAllCursor : Qt::CrossCursor);
}

void CanvasView::mousePressEvent(QMouseEvent* event) {
    emit pressed();
    const QPointF p = event->position();
    const Events events = m_engine.press(engineButton(event->button()), p.x(), p.y());
    emit engineEvents(events);
}

void CanvasView::mouseMoveEvent(QMouseEvent* event) {
    const QPointF p = event->position();
    const Events events = m_engine.move(heldButton(event->buttons()), p.x(), p.y());
    updatePointer(p.x(), p.y());
    emit engineEvents(events);
}

void CanvasView::mouseReleaseEvent(QMouseEvent* event) {
    const QPointF p = event->position();
    const Events events = m_engine.release(engineButton(event->button()), p.x(), p.y());
    updatePointer(p.x(), p.y());
    emit engineEvents(events);
}

} // namespace editor::ui
