#pragma once

#include <QTimer>
#include <QWidget>

namespace shell::ui {

// The splash window shown while the program starts. It asks first whether to run a second
// instance, then shows "Un instant, SVP..." until its timer brings up the main window.
class Demarre2 : public QWidget {
    Q_OBJECT
public:
    explicit Demarre2(QWidget* parent = nullptr);

    // The question asked when the program already runs: true to go on.
    static bool askForSecondInstance();
    // Shows the splash and starts its timer.
    void start(int milliseconds = 0);

signals:
    void timeUp();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QTimer m_timer;
};

} // namespace shell::ui
