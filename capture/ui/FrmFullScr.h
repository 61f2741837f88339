#pragma once

#include "capture/CaptureZone.h"

#include <QDialog>
#include <QImage>

class QLabel;

namespace capture::ui {

class ZoneNodes;

// The full-screen overlay over a frozen picture of the desktop: the mouse draws the zone, the
// keys move its second corner (Shift by 10 pixels, Ctrl the whole zone), the handles `Node`
// reshape it, and `lblSize` tells its size. Enter accepts the zone, Escape gives up.
class FrmFullScr : public QDialog {
    Q_OBJECT
public:
    FrmFullScr(const QImage& desktop, CaptureZone& zone, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointF toPicture(const QPointF& point) const;
    void showZoneSize();

    QImage m_desktop;
    CaptureZone& m_zone;
    double m_ratio = 1.0; // picture pixels per window pixel
    bool m_dragging = false;
    QLabel* m_pic = nullptr;
    ZoneNodes* m_nodes = nullptr;
    QLabel* m_size = nullptr;
};

} // namespace capture::ui
