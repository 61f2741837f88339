#include "editor/ui/PaletteView.h"

#include "editor/ui/Edges.h"
#include "platform/WindowStyle.h"

#include <QMouseEvent>
#include <QPainter>

namespace editor::ui {

PaletteView::PaletteView(const Palette& palette, QWidget* parent)
    : QWidget(parent)
    , m_palette(palette) {
    setObjectName(QStringLiteral("PicPal"));
    setFixedSize(Palette::kGridSize, Palette::kGridSize);
    setCursor(Qt::PointingHandCursor);
}

void PaletteView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (int k = 0; k < Palette::kCount; ++k) {
        const Palette::Cell cell = Palette::cellOrigin(k);
        const QRect box(cell.x, cell.y, Palette::kCellPitch, Palette::kCellPitch);
        painter.fillRect(box, platform::toQColor(m_palette.at(k)));
        drawEdge(painter, box, true);
    }
}

void PaletteView::mouseReleaseEvent(QMouseEvent* event) {
    const int button = event->button() == Qt::LeftButton    ? 1
                       : event->button() == Qt::RightButton ? 2
                                                            : 0;
    if (button != 0)
        emit released(button, event->position().x(), event->position().y());
}

} // namespace editor::ui
