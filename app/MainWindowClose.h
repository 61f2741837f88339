#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace app {

// Makes the program one application: closing the main window first closes the editor (which
// may ask to save; its "Annuler" keeps both windows open), then every other window of the
// program (help, clipboard viewer, pickers), and ends the run.
class MainWindowClose : public QObject {
    Q_OBJECT
public:
    // `closeEditor` closes the editor when it is open; false when the user kept it open.
    MainWindowClose(QWidget& main, std::function<bool()> closeEditor);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_main;
    std::function<bool()> m_closeEditor;
};

} // namespace app
