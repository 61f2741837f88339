#include "editor/ui/CanvasView.h"

#include "editor/Coordinates.h"

#include <QMouseEvent>
#include <QPainter>

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
    render();
    update();
}

void CanvasView::render() {
    const icon::IconPlanes shown = m_engine.displayedPlanes();
    const int half = kCellSize / 2;
    for (int cy = 0; cy < icon::kIconSize; ++cy) {
        for (int cx = 0; cx < icon::kIconSize; ++cx) {
            const icon::Colour mask = shown.mask.at(cx, cy);
            const icon::Colour colour = shown.image.at(cx, cy);
            // (background AND mask) XOR colour, over the chequer's two greys.
            const QRgb light = toRgb(icon::composePixel(kChequerLight, mask, colour));
            const QRgb dark = toRgb(icon::composePixel(kChequerDark, mask, colour));
            for (int y = 0; y < kCellSize; ++y) {
                auto* line = reinterpret_cast<QRgb*>(m_picture.scanLine(cy * kCellSize + y)) +
                             cx * kCellSize;
                for (int x = 0; x < kCellSize; ++x)
                    line[x] = ((x < half) == (y < half)) ? light : dark;
            }
        }
    }
}

void CanvasView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawImage(0, 0, m_picture);
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
