#include "platform/WindowKeys.h"

#include <QAbstractButton>
#include <QDialog>
#include <QKeyEvent>

namespace platform {

namespace {

// Sees the keys the window's controls left alone, on their way up to the window.
class KeyFilter : public QObject {
public:
    KeyFilter(QWidget& window, WindowKeys keys)
        : QObject(&window)
        , m_window(window)
        , m_keys(std::move(keys)) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != &m_window || event->type() != QEvent::KeyPress)
            return false;
        auto* key = static_cast<QKeyEvent*>(event);
        const Qt::KeyboardModifiers modifiers = key->modifiers() & ~Qt::KeypadModifier;
        if (modifiers != Qt::NoModifier)
            return false;
        switch (key->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return press(m_keys.ok);
        case Qt::Key_Escape:
            if (press(m_keys.cancel))
                return true;
            if (auto* dialog = qobject_cast<QDialog*>(&m_window)) {
                dialog->reject();
                return true;
            }
            return false;
        case Qt::Key_F1:
            if (!m_keys.help)
                return false;
            m_keys.help();
            return true;
        default:
            return false;
        }
    }

private:
    static bool press(QAbstractButton* button) {
        if (button == nullptr || !button->isEnabled())
            return false;
        button->click();
        return true;
    }

    QWidget& m_window;
    WindowKeys m_keys;
};

} // namespace

void setWindowKeys(QWidget& window, WindowKeys keys) {
    window.installEventFilter(new KeyFilter(window, std::move(keys)));
}

} // namespace platform
