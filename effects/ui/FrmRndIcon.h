#pragma once

#include "effects/KaleidoscopePreview.h"

#include <QDialog>

class QLabel;

namespace editor {
class IconEditor;
}
namespace platform {
class Dialogs;
}

namespace effects {
class UniformGenerator;
}

namespace effects::ui {

class PreviewPicture;
class Spinner;

// "Fond 'kaléidoscope'": the user sets a density, picks a background colour with a double
// click on the preview, generates patterns until one pleases, and confirms; the pattern then
// fills the icon's transparent pixels.
class FrmRndIcon : public QDialog {
    Q_OBJECT
public:
    // What the editor calls, with the generator it seeded from the clock when it loaded. Shows
    // the dialog modally; on "Ok" settles any selection and lays the pattern the user saw
    // under the icon, as one step of its history. Returns "Ok" or "Cancelled".
    static QString run(editor::IconEditor& engine, platform::Dialogs& dialogs,
                       UniformGenerator& random, QWidget* parent = nullptr);

    // The preview's first background is the interface's viewing colour.
    FrmRndIcon(platform::Dialogs& dialogs, UniformGenerator& random, QWidget* parent = nullptr);

    const KaleidoscopePreview& preview() const { return m_preview; }

private:
    void densityChanged(int density);
    void generate();
    void chooseBackground();
    void showPreview();

    platform::Dialogs& m_dialogs;
    UniformGenerator& m_random;
    KaleidoscopePreview m_preview;
    PreviewPicture* m_picture = nullptr;
    QLabel* m_density = nullptr;
};

} // namespace effects::ui
