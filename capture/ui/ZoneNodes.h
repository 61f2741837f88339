#pragma once

#include <QWidget>

namespace capture::ui {

// The shape `Node` over the overlay: the zone's dashed frame and a handle at each of its
// corners, 5 pixels outside the zone. It lets the mouse through to the picture below.
class ZoneNodes : public QWidget {
    Q_OBJECT
public:
    static constexpr int kHandle = 7;

    explicit ZoneNodes(QWidget* parent);
    // The handles' corners in the parent's pixels; the widget covers them with room for the
    // handles.
    void place(const QRect& nodes, const QRect& zone);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect m_nodes;
    QRect m_zone;
};

} // namespace capture::ui
