#include "capture/ui/FrmFullScr.h"

#include "capture/ui/DesktopOverlay.h"
#include "capture/ui/ZoneNodes.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>

#include <algorithm>
#include <optional>

namespace capture::ui {

namespace {

std::optional<ZoneKey> zoneKey(int key) {
    switch (key) {
    case Qt::Key_Right:
        return ZoneKey::Right;
    case Qt::Key_Left:
        return ZoneKey::Left;
    case Qt::Key_Down:
        return ZoneKey::Down;
    case Qt::Key_Up:
        return ZoneKey::Up;
    case Qt::Key_PageUp:
        return ZoneKey::PageUp;
    case Qt::Key_PageDown:
        return ZoneKey::PageDown;
    case Qt::Key_End:
        return ZoneKey::End;
    case Qt::Key_Home:
        return ZoneKey::Home;
    default:
        return std::nullopt;
    }
}

// How near a handle the mouse must go down to take it.
constexpr int kNodeReach = ZoneNodes::kHandle;

} // namespace

FrmFullScr::FrmFullScr(const QImage& desktop, CaptureZone& zone, QWidget* parent)
    : QDialog(parent)
    , m_desktop(desktop)
    , m_zone(zone) {
    setObjectName(QStringLiteral("FrmFullScr"));
    m_ratio = coverDesktop(*this, desktop.size());

    m_pic = new QLabel(this);
    m_pic->setObjectName(QStringLiteral("pic"));
    QPixmap frozen = QPixmap::fromImage(desktop);
    frozen.setDevicePixelRatio(m_ratio);
    m_pic->setPixmap(frozen);
    m_pic->setGeometry(rect());
    m_pic->installEventFilter(this);

    m_nodes = new ZoneNodes(this);
    m_size = new QLabel(CaptureZone::initialSizeText(), this);
    m_size->setObjectName(QStringLiteral("lblSize"));
    m_size->setAutoFillBackground(true);
    m_size->setMargin(2);
    // The label never stands between the mouse and the picture.
    m_size->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_size->move(8, 8);
    m_size->adjustSize();
}

QPointF FrmFullScr::toPicture(const QPointF& point) const {
    return point * m_ratio;
}

bool FrmFullScr::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_pic)
        return QDialog::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const QPointF at = toPicture(mouse->position());
        const int node = m_nodes->isVisible()
                             ? m_zone.nodeAt(at.toPoint(), static_cast<int>(kNodeReach * m_ratio))
                             : -1;
        if (node >= 0)
            m_zone.grabNode(node);
        else
            m_zone.press(at.x(), at.y());
        m_dragging = true;
        showZoneSize();
        return true;
    }
    case QEvent::MouseMove: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (m_dragging && mouse->buttons() != Qt::NoButton) {
            const QPointF at = toPicture(mouse->position());
            m_zone.drag(at.x(), at.y());
            showZoneSize();
        }
        return true;
    }
    case QEvent::MouseButtonRelease: {
        if (!m_dragging)
            return true;
        m_dragging = false;
        const QPointF at = toPicture(static_cast<QMouseEvent*>(event)->position());
        m_zone.release(at.x(), at.y());
        showZoneSize();
        return true;
    }
    default:
        return QDialog::eventFilter(watched, event);
    }
}

void FrmFullScr::keyPressEvent(QKeyEvent* event) {
    if (const auto key = zoneKey(event->key())) {
        const Qt::KeyboardModifiers mods = event->modifiers();
        m_zone.moveByKey(*key, mods & Qt::ShiftModifier, mods & Qt::ControlModifier);
        showZoneSize();
        return;
    }
    switch (event->key()) {
    case Qt::Key_Escape:
        m_zone.accepted = false;
        reject();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // The hourglass stays until the capture window has taken the zone.
        QApplication::setOverrideCursor(Qt::WaitCursor);
        QCoreApplication::processEvents();
        m_zone.accepted = true;
        accept();
        return;
    default:
        QDialog::keyPressEvent(event);
    }
}

void FrmFullScr::showZoneSize() {
    // The label tells the size the copy will take.
    m_size->setText(m_zone.sizeText());
    m_size->adjustSize();
    const auto corners = m_zone.nodeCorners();
    const QRect nodes(QPointF(corners[0] / m_ratio).toPoint(),
                      QPointF(corners[2] / m_ratio).toPoint());
    const QRect zone = QRect(QPointF(m_zone.cornerRect().topLeft() / m_ratio).toPoint(),
                             QPointF(m_zone.cornerRect().bottomRight() / m_ratio).toPoint());
    m_nodes->place(nodes, zone);
    m_nodes->show();
    m_nodes->raise();
    // The label sits below the zone, or above it near the bottom of the screen.
    m_size->move(sizeLabelPlace(nodes, ZoneNodes::kHandle, m_size->size(), size()));
    m_size->raise();
}

} // namespace capture::ui
