#pragma once

#include <QImage>
#include <QWidget>

class QLabel;
class QScrollBar;

namespace capture::ui {

// A picture at its actual size in a sunken viewing frame, with the scroll bars `HScroll` and
// `VScroll` that slide it when it is larger than the frame: a change of either bar puts the
// picture's left (or top) at minus the bar's value.
class ScrolledPicture : public QWidget {
    Q_OBJECT
public:
    ScrolledPicture(const QString& frameName, const QString& pictureName, QWidget* parent);

    void setPicture(const QImage& picture);
    const QImage& picture() const { return m_image; }
    void setViewingColour(const QColor& colour);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void layOut();

    QImage m_image;
    QWidget* m_view = nullptr;
    QLabel* m_picture = nullptr;
    QScrollBar* m_horizontal = nullptr;
    QScrollBar* m_vertical = nullptr;
};

} // namespace capture::ui
