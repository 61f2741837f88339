#include "capture/SnapFrame.h"

#include <QString>

#include <algorithm>

namespace capture {

SnapFrame::SnapFrame(QSize desktop)
    : m_desktop(desktop)
    , m_centre(desktop.width() / 2, desktop.height() / 2) {
    keepInside();
}

int SnapFrame::maximumScale() const {
    const int fits = std::min(m_desktop.width(), m_desktop.height()) / icon::kIconSize;
    return std::clamp(fits, 1, kMaximumScale);
}

int SnapFrame::side() const {
    return icon::kIconSize * m_scale;
}

void SnapFrame::centreOn(QPoint point) {
    m_centre = point;
    keepInside();
}

void SnapFrame::moveBy(int dx, int dy) {
    m_centre += QPoint(dx, dy);
    keepInside();
}

bool SnapFrame::zoom(int steps) {
    const int scale = std::clamp(m_scale + steps, 1, maximumScale());
    if (scale == m_scale)
        return false;
    m_scale = scale;
    keepInside();
    return true;
}

void SnapFrame::keepInside() {
    // The centre is kept where a whole frame around it fits; a desktop smaller than the frame
    // puts the frame at its upper left corner.
    const int half = side() / 2;
    const int maxX = std::max(half, m_desktop.width() - (side() - half));
    const int maxY = std::max(half, m_desktop.height() - (side() - half));
    m_centre.setX(std::clamp(m_centre.x(), half, maxX));
    m_centre.setY(std::clamp(m_centre.y(), half, maxY));
}

QRect SnapFrame::rect() const {
    const int half = side() / 2;
    return QRect(m_centre.x() - half, m_centre.y() - half, side(), side());
}

QString SnapFrame::sizeText() const {
    return QString::number(side()) + QStringLiteral(" x ") + QString::number(side());
}

icon::IconPlanes SnapFrame::planesFrom(const QImage& desktop, const QRect& frame) {
    // Pixels beyond the picture stay black rather than failing the capture.
    QImage area = desktop.copy(frame).convertToFormat(QImage::Format_RGB32);
    if (area.size() != QSize(icon::kIconSize, icon::kIconSize))
        area = area.scaled(icon::kIconSize, icon::kIconSize, Qt::IgnoreAspectRatio,
                           Qt::SmoothTransformation);
    icon::IconPlanes planes;
    for (int y = 0; y < icon::kIconSize; ++y)
        for (int x = 0; x < icon::kIconSize; ++x) {
            const QRgb c = area.pixel(x, y);
            planes.paint(x, y, icon::rgb(qRed(c), qGreen(c), qBlue(c)));
        }
    return planes;
}

} // namespace capture
