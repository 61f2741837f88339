#include "browser/ui/CentrePicture.h"

#include "browser/ui/IconGridView.h"
#include "platform/HelpBubbles.h"
#include "platform/WindowStyle.h"

#include <QMouseEvent>
#include <QPainter>

namespace browser::ui {

CentrePicture::CentrePicture(const IconGrid& grid, GridView view, QWidget* parent)
    : QWidget(parent)
    , m_grid(grid)
    , m_view(view) {
    const GridGeometry geometry = GridGeometry::of(view);
    setObjectName(view == GridView::Icons48 ? QStringLiteral("Picture12")
                                            : QStringLiteral("Picture24"));
    setFixedSize(geometry.pitch, geometry.pitch);
    platform::setHelpText(*this, helpText());
}

QString CentrePicture::helpText() {
    return QStringLiteral("Clic droit (puis 'Fichier') : icône dans l'éditeur");
}

void CentrePicture::setBackground(icon::Colour colour) {
    m_background = colour;
    update();
}

QImage CentrePicture::picture(double scale) const {
    QImage image(QSize(qRound(width() * scale), qRound(height() * scale)), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(platform::toQColor(m_background));
    if (m_grid.view() != m_view)
        return image;
    const GridGeometry geometry = GridGeometry::of(m_view);
    if (const Thumbnail* thumbnail = m_grid.cell(geometry.centre)) {
        const int side = geometry.cellSize;
        const QImage icon = thumbnailImage(*thumbnail, m_background, side, qRound(side * scale));
        QPainter painter(&image);
        painter.drawImage(QRectF((width() - side) / 2, (height() - side) / 2, side, side), icon);
    }
    return image;
}

void CentrePicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawImage(QRectF(0, 0, width(), height()), picture(devicePixelRatioF()));
    // A sunken frame marks the icon the commands act on.
    painter.setPen(platform::toQColor(m_background).darker(170));
    painter.drawLine(0, 0, width() - 1, 0);
    painter.drawLine(0, 0, 0, height() - 1);
    painter.setPen(platform::toQColor(m_background).lighter(140));
    painter.drawLine(width() - 1, 1, width() - 1, height() - 1);
    painter.drawLine(1, height() - 1, width() - 1, height() - 1);
}

void CentrePicture::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton)
        emit rightPressed();
    event->accept();
}

void CentrePicture::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        emit doubleClicked();
    event->accept();
}

} // namespace browser::ui
