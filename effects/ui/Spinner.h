#pragma once

#include <QAbstractSlider>

namespace effects::ui {

// The small up/down control of the effect dialogs: two arrow buttons, one above the other. The
// upper one, the Up key and the wheel turned away raise the value by one step; held down, a
// button repeats. Every change the dialog hears is therefore one step of the control.
class Spinner : public QAbstractSlider {
    Q_OBJECT
public:
    static constexpr int kWidth = 17;
    static constexpr int kHeight = 34;

    Spinner(const QString& name, int minimum, int maximum, int step, QWidget* parent = nullptr);

    // Which arrow is held down: 1 the upper, −1 the lower, 0 none.
    int pressedArrow() const { return m_pressed; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QRect arrowRect(bool upper) const;

    int m_pressed = 0;
};

} // namespace effects::ui
