#pragma once

#include "effects/GradientPreview.h"

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

// "Fond en dégradé": a start and an end colour, three bars each, and a direction in steps of
// 45°; the preview is drawn on demand and, on "OK", fills the icon's transparent pixels.
class FrmShades : public QDialog {
    Q_OBJECT
public:
    // The two colour boxes painted on the dialog itself, corners included.
    static constexpr QRect kStartSwatch{QPoint(46, 46), QPoint(129, 82)};
    static constexpr QRect kEndSwatch{QPoint(150, 46), QPoint(233, 82)};

    // What the editor calls: shows the dialog modally; on "Ok" settles any selection and lays
    // the preview as it was last drawn under the icon, as one step of its history. Returns "Ok"
    // or "Cancelled".
    static QString run(editor::IconEditor& engine, platform::Dialogs& dialogs,
                       QWidget* parent = nullptr);

    explicit FrmShades(QWidget* parent = nullptr);

    const GradientPreview& preview() const { return m_preview; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void barChanged(int index, int value);
    void directionChanged(int direction);
    void redraw();

    GradientPreview m_preview;
    PreviewPicture* m_picture = nullptr;
    std::array<QLabel*, GradientPreview::kBars> m_values{};
    QLabel* m_degrees = nullptr;
};

} // namespace effects::ui
