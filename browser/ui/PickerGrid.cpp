#include "browser/ui/PickerGrid.h"

#include "browser/PickerLayout.h"
#include "icon/Frame.h"
#include "iconqt/FrameImage.h"
#include "platform/WindowStyle.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

namespace browser::ui {

PickerGrid::PickerGrid(QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("PicIcons"));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PickerGrid::setCells(const PickerCells* cells) {
    m_cells = cells;
    update();
}

void PickerGrid::setSelected(int number) {
    m_selected = number;
    update();
}

void PickerGrid::setBackground(icon::Colour colour) {
    m_background = colour;
    update();
}

void PickerGrid::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), platform::toQColor(m_background));
    if (m_cells == nullptr)
        return;
    const int count = m_cells->count();
    const int firstRow = std::max(0, event->rect().top() / PickerLayout::kPitch);
    const int lastRow =
        std::min(PickerLayout::rows(count) - 1, event->rect().bottom() / PickerLayout::kPitch);
    for (int row = firstRow; row <= lastRow; ++row) {
        for (int column = 0; column < PickerLayout::kPerRow; ++column) {
            const int index = row * PickerLayout::kPerRow + column;
            if (index >= count)
                break;
            const icon::IconPlanes* planes = m_cells->cell(index + 1);
            if (planes == nullptr)
                continue;
            const auto origin = PickerLayout::iconOrigin(index);
            painter.drawImage(origin.x, origin.y,
                              iconqt::toImage(icon::compose(*planes, m_background, 1)));
        }
    }
    if (m_selected >= 1 && m_selected <= count) {
        // Black and white dashes stay visible over any background and any icon.
        const auto origin = PickerLayout::iconOrigin(m_selected - 1);
        const QRect mark(origin.x - 2, origin.y - 2, PickerLayout::kIconSize + 3,
                         PickerLayout::kIconSize + 3);
        painter.setPen(QPen(Qt::white, 1));
        painter.drawRect(mark);
        painter.setPen(QPen(Qt::black, 1, Qt::DashLine));
        painter.drawRect(mark);
    }
}

void PickerGrid::mouseReleaseEvent(QMouseEvent* event) {
    if (m_cells != nullptr) {
        const QPoint at = event->position().toPoint();
        if (const auto number = PickerLayout::iconAt({at.x(), at.y()}, m_cells->count()))
            emit released(*number);
    }
    event->accept();
}

} // namespace browser::ui
