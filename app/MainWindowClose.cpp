#include "app/MainWindowClose.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPointer>
#include <QWidget>

namespace app {

MainWindowClose::MainWindowClose(QWidget& main, std::function<bool()> closeEditor)
    : QObject(&main)
    , m_main(main)
    , m_closeEditor(std::move(closeEditor)) {
    main.installEventFilter(this);
}

bool MainWindowClose::eventFilter(QObject* watched, QEvent* event) {
    if (watched != &m_main || event->type() != QEvent::Close)
        return QObject::eventFilter(watched, event);
    if (m_closeEditor && !m_closeEditor()) {
        event->ignore();
        return true;
    }
    // The other windows go with the main one; a window closing may close another, so each is
    // looked at through a guard.
    QList<QPointer<QWidget>> others;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window != &m_main && window->isVisible())
            others << window;
    }
    for (const QPointer<QWidget>& window : others) {
        if (window)
            window->close();
    }
    QCoreApplication::quit();
    return QObject::eventFilter(watched, event);
}

} // namespace app
