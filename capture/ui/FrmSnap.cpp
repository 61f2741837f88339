#include "capture/ui/FrmSnap.h"

#include "capture/ui/DesktopOverlay.h"
#include "platform/Dialogs.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace capture::ui {

namespace {
constexpr int kShiftStep = 10;
// One notch of an ordinary mouse wheel.
constexpr int kWheelNotch = 120;
} // namespace

std::optional<icon::IconPlanes> FrmSnap::run(const QImage& desktop, platform::Dialogs& dialogs) {
    FrmSnap overlay(desktop);
    if (dialogs.runModal(overlay) != QLatin1String("Ok"))
        return std::nullopt;
    return overlay.planes();
}

FrmSnap::FrmSnap(const QImage& desktop, QWidget* parent)
    : QDialog(parent)
    , m_desktop(desktop)
    , m_frame(desktop.size()) {
    setObjectName(QStringLiteral("FrmSnap"));
    m_ratio = coverDesktop(*this, desktop.size());
    setMouseTracking(true);

    m_size = new QLabel(this);
    m_size->setObjectName(QStringLiteral("lblSize"));
    m_size->setAutoFillBackground(true);
    m_size->setMargin(2);
    m_size->setAttribute(Qt::WA_TransparentForMouseEvents);
    changed();
}

icon::IconPlanes FrmSnap::planes() const {
    return SnapFrame::planesFrom(m_desktop, m_frame.rect());
}

QPoint FrmSnap::toPicture(const QPointF& point) const {
    return (point * m_ratio).toPoint();
}

QRect FrmSnap::toWindow(const QRect& rect) const {
    return QRectF(QPointF(rect.topLeft()) / m_ratio, QSizeF(rect.size()) / m_ratio).toRect();
}

void FrmSnap::changed() {
    m_size->setText(m_frame.sizeText());
    m_size->adjustSize();
    const QRect shown = toWindow(m_frame.rect());
    m_size->move(sizeLabelPlace(shown, 4, m_size->size(), size()));
    update();
}

void FrmSnap::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawImage(rect(), m_desktop);
    // Around the frame the desktop is dimmed, so that what will be taken stands out.
    const QRect shown = toWindow(m_frame.rect());
    QRegion outside(rect());
    outside -= QRegion(shown);
    painter.setClipRegion(outside);
    painter.fillRect(rect(), QColor(0, 0, 0, 90));
    painter.setClipping(false);
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(shown.adjusted(-1, -1, 0, 0));
    painter.setPen(QPen(Qt::black, 1, Qt::DashLine));
    painter.drawRect(shown.adjusted(-1, -1, 0, 0));
}

void FrmSnap::mouseMoveEvent(QMouseEvent* event) {
    m_frame.centreOn(toPicture(event->position()));
    changed();
}

void FrmSnap::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        m_frame.centreOn(toPicture(event->position()));
        accept();
    } else if (event->button() == Qt::RightButton) {
        reject();
    }
}

void FrmSnap::wheelEvent(QWheelEvent* event) {
    const int notches = event->angleDelta().y() / kWheelNotch;
    if (notches != 0 && m_frame.zoom(notches))
        changed();
}

void FrmSnap::keyPressEvent(QKeyEvent* event) {
    const int step = (event->modifiers() & Qt::ShiftModifier) ? kShiftStep : 1;
    switch (event->key()) {
    case Qt::Key_Right:
        m_frame.moveBy(step, 0);
        break;
    case Qt::Key_Left:
        m_frame.moveBy(-step, 0);
        break;
    case Qt::Key_Down:
        m_frame.moveBy(0, step);
        break;
    case Qt::Key_Up:
        m_frame.moveBy(0, -step);
        break;
    case Qt::Key_Plus:
        m_frame.zoom(1);
        break;
    case Qt::Key_Minus:
        m_frame.zoom(-1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        accept();
        return;
    case Qt::Key_Escape:
        reject();
        return;
    default:
        QDialog::keyPressEvent(event);
        return;
    }
    changed();
}

} // namespace capture::ui
