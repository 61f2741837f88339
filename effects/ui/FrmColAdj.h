#pragma once

#include "effects/ColourAdjuster.h"

#include <QDialog>

#include <array>

class QLabel;

namespace editor {
class IconEditor;
}
namespace platform {
class Dialogs;
}

namespace effects::ui {

class PreviewPicture;
class Spinner;

// "Ajuster les couleurs": four spinners shift the brightness and the red, green and blue levels
// of the whole icon step by step while the preview shows the result; "OK" gives it to the icon.
class FrmColAdj : public QDialog {
    Q_OBJECT
public:
    // What the editor calls: settles any selection, shows the dialog modally and, on "Ok",
    // gives the adjusted colours to the icon as one step of its history. Returns "Ok" or
    // "Cancelled". The canvas needs redrawing afterwards either way, since a floating
    // selection was stamped before the dialog opened.
    static QString run(editor::IconEditor& engine, platform::Dialogs& dialogs,
                       QWidget* parent = nullptr);

    explicit FrmColAdj(ColourAdjuster adjuster, QWidget* parent = nullptr);

    const ColourAdjuster& adjuster() const { return m_adjuster; }

private:
    void barChanged(ColourAdjuster::Bar bar, int value);
    void reset();

    ColourAdjuster m_adjuster;
    PreviewPicture* m_preview = nullptr;
    std::array<Spinner*, 4> m_bars{};
    std::array<QLabel*, 4> m_values{};
};

} // namespace effects::ui
