#include "shell/ui/ProgramPicture.h"

#include <QColor>
#include <QPainter>

namespace shell::ui {

QImage programPicture(int phase) {
    QImage image(32, 32, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    // Teal plate with a light edge.
    painter.fillRect(1, 1, 30, 30, QColor(0, 128, 128));
    painter.setPen(QColor(108, 255, 222));
    painter.drawRect(1, 1, 29, 29);
    for (int tile = 0; tile < 9; ++tile) {
        const int x = 4 + (tile % 3) * 9;
        const int y = 4 + (tile / 3) * 9;
        const int hue = (tile * 40 + phase * 12) % 360;
        const QColor colour = QColor::fromHsv(hue, tile == 4 ? 140 : 200, tile == 4 ? 255 : 230);
        painter.fillRect(x, y, 7, 7, colour);
        if (tile == 4) {
            painter.setPen(QColor(255, 255, 255));
            painter.drawRect(x - 1, y - 1, 8, 8);
        }
    }
    return image;
}

} // namespace shell::ui
