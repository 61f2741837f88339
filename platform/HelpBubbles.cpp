#include "platform/HelpBubbles.h"

#include "shell/AppState.h"

#include <QEvent>
#include <QObject>
#include <QWidget>

namespace platform {

namespace {

constexpr char kHelpProperty[] = "orvanneHelpText";

class BubbleFilter : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseMove || event->type() == QEvent::HoverMove ||
            event->type() == QEvent::Enter) {
            if (auto* control = qobject_cast<QWidget*>(watched)) {
                const bool on = shell::appState().preferences.helpBubbles;
                control->setToolTip(on ? helpTextOf(*control) : QString());
            }
        }
        return false;
    }
};

BubbleFilter& filter() {
    static BubbleFilter instance;
    return instance;
}

} // namespace

void setHelpText(QWidget& control, const QString& text) {
    const bool first = !control.property(kHelpProperty).isValid();
    control.setProperty(kHelpProperty, text);
    control.setMouseTracking(true);
    control.setToolTip({});
    if (first)
        control.installEventFilter(&filter());
}

QString helpTextOf(const QWidget& control) {
    return control.property(kHelpProperty).toString();
}

} // namespace platform
