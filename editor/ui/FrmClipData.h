#pragma once

#include "editor/PasteSizing.h"

#include <QDialog>
#include <QSize>

class QRadioButton;

namespace editor::ui {

// The paste dialog: the clipboard's picture is larger than the icon; how should it shrink?
class FrmClipData : public QDialog {
    Q_OBJECT
public:
    explicit FrmClipData(QSize picture, QWidget* parent = nullptr);

    // The option chosen.
    PasteFit fit() const;

private:
    QRadioButton* m_proportional = nullptr;
    QRadioButton* m_square = nullptr;
};

} // namespace editor::ui
