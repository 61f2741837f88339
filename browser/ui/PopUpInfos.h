#pragma once

#include "platform/GradientPanel.h"
#include "shell/ColourScheme.h"

#include <array>

namespace platform {
class GradientButton;
}

namespace browser::ui {

// The main window's pop-up panel: the About box, the seven interface colours, the default
// colours, the help-bubble and tips toggles, the removal of all settings, and closing the panel.
// Its commands change the shared preferences and write them at once; the main window applies
// the colours when told.
class PopUpInfos : public platform::GradientPanel {
    Q_OBJECT
public:
    explicit PopUpInfos(QWidget* parent = nullptr);

    void applyColours(const shell::ColourScheme& colours);
    // Captions of the two toggles, from the shared flags.
    void refreshCaptions();

    platform::GradientButton& colourButton(shell::SchemeColour which);
    static QString colourCaption(shell::SchemeColour which);
    static QString colourButtonName(shell::SchemeColour which);

signals:
    void coloursChanged();
    void aboutRequested();

private:
    platform::GradientButton* addButton(const char* name, const QString& caption, int row);
    void chooseColour(shell::SchemeColour which);
    void resetColours();
    void toggleHelpBubbles();
    void toggleTips();
    void removeSettings();

    std::array<platform::GradientButton*, shell::kSchemeColourCount> m_colourButtons{};
    QWidget* m_label = nullptr;
};

} // namespace browser::ui
