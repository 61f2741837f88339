#include "capture/ui/ZoneNodes.h"

#include <QPainter>

namespace capture::ui {

ZoneNodes::ZoneNodes(QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("Node"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    hide();
}

void ZoneNodes::place(const QRect& nodes, const QRect& zone) {
    m_nodes = nodes;
    m_zone = zone;
    setGeometry(nodes.adjusted(-kHandle, -kHandle, kHandle, kHandle));
    update();
}

void ZoneNodes::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QPoint origin = geometry().topLeft();
    // The zone itself in black and white dashes, readable on any desktop.
    const QRect zone = m_zone.translated(-origin).adjusted(0, 0, 1, 1);
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(zone.adjusted(-1, -1, 0, 0));
    painter.setPen(QPen(Qt::black, 1, Qt::DashLine));
    painter.drawRect(zone.adjusted(-1, -1, 0, 0));
    const QRect nodes = m_nodes.translated(-origin);
    for (const QPoint corner :
         {nodes.topLeft(), nodes.topRight(), nodes.bottomRight(), nodes.bottomLeft()}) {
        const QRect handle(corner.x() - kHandle / 2, corner.y() - kHandle / 2, kHandle, kHandle);
        painter.fillRect(handle, Qt::white);
        painter.setPen(Qt::black);
        painter.drawRect(handle.adjusted(0, 0, -1, -1));
    }
}

} // namespace capture::ui
