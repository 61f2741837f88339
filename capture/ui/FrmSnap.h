#pragma once

#include "capture/SnapFrame.h"
#include "icon/IconPlanes.h"

#include <QDialog>
#include <QImage>

#include <optional>

class QLabel;

namespace platform {
class Dialogs;
}

namespace capture::ui {

// The editor's own capture over a frozen picture of the desktop: a square frame follows the
// mouse, the wheel (or + and -) makes it take more of the screen, the arrows nudge it (Shift
// by 10 pixels); a left click or Enter takes what it frames as the icon, Escape or the right
// button gives up.
class FrmSnap : public QDialog {
    Q_OBJECT
public:
    // Shows the overlay modally; the icon made of the framed pixels, or nothing when the user
    // gave up.
    static std::optional<icon::IconPlanes> run(const QImage& desktop, platform::Dialogs& dialogs);

    explicit FrmSnap(const QImage& desktop, QWidget* parent = nullptr);

    const SnapFrame& frame() const { return m_frame; }
    icon::IconPlanes planes() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPoint toPicture(const QPointF& point) const;
    QRect toWindow(const QRect& rect) const;
    void changed();

    QImage m_desktop;
    SnapFrame m_frame;
    double m_ratio = 1.0; // picture pixels per window pixel
    QLabel* m_size = nullptr;
};

} // namespace capture::ui
