#include "browser/ui/MovePictures.h"

#include <QPainter>
#include <QPolygonF>

namespace browser::ui {

namespace {

QPixmap blank(int width, int height) {
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

void arrow(QPainter& painter, qreal top, bool up) {
    const qreal tip = up ? top : top + 8;
    const qreal base = up ? top + 8 : top;
    painter.drawPolygon(QPolygonF({QPointF(8, tip), QPointF(1, base), QPointF(15, base)}));
}

} // namespace

QPixmap movePicture(MovePicture which) {
    QPixmap pixmap = blank(16, 20);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0, 64, 64), 1));
    painter.setBrush(QColor(0, 96, 96));
    switch (which) {
    case MovePicture::First:
        painter.drawRect(QRectF(1, 2, 14, 2.5));
        arrow(painter, 6, true);
        break;
    case MovePicture::Previous:
        arrow(painter, 2, true);
        arrow(painter, 10, true);
        break;
    case MovePicture::Next:
        arrow(painter, 2, false);
        arrow(painter, 10, false);
        break;
    case MovePicture::Last:
        arrow(painter, 6, false);
        painter.drawRect(QRectF(1, 15.5, 14, 2.5));
        break;
    }
    return pixmap;
}

QPixmap windowPicture(WindowPicture which) {
    QPixmap pixmap = blank(12, 12);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0, 64, 64), 2));
    if (which == WindowPicture::Minimise) {
        painter.drawLine(QPointF(2, 10), QPointF(10, 10));
    } else {
        painter.drawLine(QPointF(2, 2), QPointF(10, 10));
        painter.drawLine(QPointF(10, 2), QPointF(2, 10));
    }
    return pixmap;
}

} // namespace browser::ui
