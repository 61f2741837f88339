#include "effects/ui/Spinner.h"

#include <QMouseEvent>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QWheelEvent>

namespace effects::ui {

namespace {
// Held down, a button waits this long before it repeats, then repeats at this pace (ms).
constexpr int kRepeatDelay = 400;
constexpr int kRepeatInterval = 60;
} // namespace

Spinner::Spinner(const QString& name, int minimum, int maximum, int step, QWidget* parent)
    : QAbstractSlider(parent) {
    setObjectName(name);
    setOrientation(Qt::Vertical);
    setRange(minimum, maximum);
    setSingleStep(step);
    setPageStep(step);
    setInvertedControls(false);
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(kWidth, kHeight);
}

QRect Spinner::arrowRect(bool upper) const {
    const int half = height() / 2;
    return upper ? QRect(0, 0, width(), half) : QRect(0, half, width(), height() - half);
}

void Spinner::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    for (const bool upper : {true, false}) {
        QStyleOptionButton button;
        button.initFrom(this);
        button.rect = arrowRect(upper);
        const bool atEnd = upper ? value() >= maximum() : value() <= minimum();
        if (m_pressed == (upper ? 1 : -1))
            button.state |= QStyle::State_Sunken;
        else
            button.state |= QStyle::State_Raised;
        if (atEnd || !isEnabled())
            button.state &= ~QStyle::State_Enabled;
        painter.drawPrimitive(QStyle::PE_PanelButtonBevel, button);
        button.rect = button.rect.adjusted(4, 3, -4, -3);
        painter.drawPrimitive(upper ? QStyle::PE_IndicatorArrowUp : QStyle::PE_IndicatorArrowDown,
                              button);
    }
}

void Spinner::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const bool upper = arrowRect(true).contains(event->position().toPoint());
    m_pressed = upper ? 1 : -1;
    const SliderAction action = upper ? SliderSingleStepAdd : SliderSingleStepSub;
    triggerAction(action);
    setRepeatAction(action, kRepeatDelay, kRepeatInterval);
    update();
    event->accept();
}

void Spinner::mouseReleaseEvent(QMouseEvent* event) {
    m_pressed = 0;
    setRepeatAction(SliderNoAction);
    update();
    event->accept();
}

void Spinner::wheelEvent(QWheelEvent* event) {
    // A notch is one step, whatever the desktop's scroll-lines setting says.
    const int delta = event->angleDelta().y();
    if (delta != 0)
        triggerAction(delta > 0 ? SliderSingleStepAdd : SliderSingleStepSub);
    event->accept();
}

} // namespace effects::ui
