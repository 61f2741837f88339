#include "browser/ui/IconGridView.h"

#include "browser/ui/CentrePicture.h"
#include "iconqt/FrameImage.h"
#include "platform/WindowStyle.h"

#include <QMouseEvent>
#include <QPainter>

namespace browser::ui {

QImage thumbnailImage(const Thumbnail& thumbnail, icon::Colour background, int logicalSide,
                      int side) {
    if (thumbnail.state != Thumbnail::State::Icon || thumbnail.picture.isEmpty())
        return {};
    const CellPicture& picture = thumbnail.picture;
    QImage image = iconqt::toImage(
        blendOver(side == 0 || side == picture.side ? picture : scaled(picture, side), background));
    image.setDevicePixelRatio(static_cast<double>(image.width()) / logicalSide);
    return image;
}

IconGridView::IconGridView(const IconGrid& grid, GridView view, QWidget* parent)
    : QWidget(parent)
    , m_grid(grid)
    , m_view(view) {
    const GridGeometry geometry = GridGeometry::of(view);
    setObjectName(view == GridView::Icons48 ? QStringLiteral("Fond48") : QStringLiteral("Fond"));
    setFixedSize(geometry.panelSide(), geometry.panelSide());
    m_centre = new CentrePicture(grid, view, this);
    const int margin = (geometry.pitch - geometry.cellSize) / 2;
    m_centre->move(geometry.cellX(geometry.centre) - margin,
                   geometry.cellY(geometry.centre) - margin);
}

void IconGridView::setBackground(icon::Colour colour) {
    m_background = colour;
    update();
}

QImage IconGridView::cellImage(int cell) const {
    if (m_grid.view() != m_view)
        return {};
    const Thumbnail* thumbnail = m_grid.cell(cell);
    return thumbnail ? thumbnailImage(*thumbnail, m_background, GridGeometry::of(m_view).cellSize)
                     : QImage();
}

void IconGridView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), platform::toQColor(m_background));
    painter.setPen(platform::toQColor(m_background).darker(130));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (m_grid.view() != m_view)
        return;
    const GridGeometry geometry = GridGeometry::of(m_view);
    for (int k = 0; k < geometry.cellCount(); ++k) {
        if (k == geometry.centre)
            continue;
        const QImage image = cellImage(k);
        if (!image.isNull())
            painter.drawImage(
                QRectF(geometry.cellX(k), geometry.cellY(k), geometry.cellSize, geometry.cellSize),
                image);
    }
}

void IconGridView::mousePressEvent(QMouseEvent* event) {
    const GridGeometry geometry = GridGeometry::of(m_view);
    const QPoint at = event->position().toPoint();
    if (event->button() == Qt::RightButton) {
        emit backgroundRightPressed();
        return;
    }
    m_pressedCell = event->button() == Qt::LeftButton ? geometry.cellAt(at.x(), at.y()) : -1;
}

void IconGridView::mouseReleaseEvent(QMouseEvent* event) {
    const GridGeometry geometry = GridGeometry::of(m_view);
    const QPoint at = event->position().toPoint();
    const int cell = geometry.cellAt(at.x(), at.y());
    // A click is a press and a release on the same cell, empty or not: an empty cell moves
    // the index as far as the list allows.
    if (event->button() == Qt::LeftButton && cell >= 0 && cell == m_pressedCell &&
        m_grid.view() == m_view && m_grid.count() > 0)
        emit cellClicked(cell);
    m_pressedCell = -1;
}

} // namespace browser::ui
