#pragma once

#include "shell/Tips.h"

#include <QDialog>

#include <functional>

class QCheckBox;
class QLabel;

namespace shell::ui {

// The tips window: one tip of "Conseils.txt" at a time, the next on demand, and the check box
// that decides whether it opens at start-up.
class Conseils : public QDialog {
    Q_OBJECT
public:
    // `random` gives numbers in [0, 1) for the first tip, by default seeded from the clock;
    // `tipsFile` is the program's "Conseils.txt" unless another file is given.
    explicit Conseils(QWidget* parent = nullptr, std::function<double()> random = {},
                      const QString& tipsFile = {});

    const Tips& tips() const { return m_tips; }
    QString tipText() const;

private:
    void loadTips(const QString& path);
    void displayCurrentTip();
    void nextTip();
    void checkBoxClicked(bool ticked);

    Tips m_tips;
    QLabel* m_text = nullptr;
    QCheckBox* m_check = nullptr;
    std::function<double()> m_random;
};

} // namespace shell::ui
