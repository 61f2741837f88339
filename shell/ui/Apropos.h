#pragma once

#include <QDialog>
#include <QStringList>
#include <QTimer>

namespace shell::ui {

// The About box: the program's lines drawn in `Image2` under a band of light that sweeps across
// them, the program's picture in `Image1` turning its colours, the program's page, and close.
class Apropos : public QDialog {
    Q_OBJECT
public:
    explicit Apropos(QWidget* parent = nullptr);

    // The lines drawn in the box; the first is drawn large.
    static QStringList lines();
    // The page `CmdSite` opens (a data file of the program).
    static QString pageName();
    int phase() const { return m_phase; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void tick();
    void paintText(QWidget& area);
    void openSite();

    QWidget* m_text = nullptr;
    QWidget* m_picture = nullptr;
    QTimer m_timer;
    int m_phase = 0;
};

} // namespace shell::ui
