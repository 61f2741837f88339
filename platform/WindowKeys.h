#pragma once

#include <QPointer>

#include <functional>

class QAbstractButton;
class QWidget;

namespace platform {

// The keys a window answers wherever its focus is, once its controls had their turn:
// Return presses its OK button, Escape its Cancel button (a dialog without one is cancelled),
// F1 opens its help.
struct WindowKeys {
    QPointer<QAbstractButton> ok;
    QPointer<QAbstractButton> cancel;
    std::function<void()> help;
};

void setWindowKeys(QWidget& window, WindowKeys keys);

} // namespace platform
