#include "platform/ApplyScheme.h"

#include "platform/GradientButton.h"
#include "platform/GradientPanel.h"
#include "platform/WindowStyle.h"
#include "shell/AppState.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

namespace platform {

void applyScheme(QWidget& window, const shell::ColourScheme& colours) {
    using shell::SchemeColour;
    setBackground(window, colours[SchemeColour::WindowBackground]);
    for (auto* button : window.findChildren<GradientButton*>()) {
        button->setColours(colours[SchemeColour::GradientStart], colours[SchemeColour::GradientEnd],
                           colours[SchemeColour::ButtonText], colours[SchemeColour::ButtonLight]);
    }
    for (auto* panel : window.findChildren<GradientPanel*>()) {
        panel->setColours(colours[SchemeColour::GradientStart], colours[SchemeColour::GradientEnd]);
        panel->setTextColour(colours[SchemeColour::OtherText]);
    }
    for (auto* label : window.findChildren<QLabel*>())
        setTextColour(*label, colours[SchemeColour::OtherText]);
    for (auto* box : window.findChildren<QCheckBox*>())
        setTextColour(*box, colours[SchemeColour::OtherText]);
    for (QWidget* field : window.findChildren<QLineEdit*>()) {
        setBackground(*field, colours[SchemeColour::Viewing]);
        setTextColour(*field, colours[SchemeColour::OtherText]);
    }
    for (QWidget* list : window.findChildren<QAbstractItemView*>()) {
        setBackground(*list, colours[SchemeColour::Viewing]);
        setTextColour(*list, colours[SchemeColour::OtherText]);
    }
}

void applyScheme(QWidget& window) {
    applyScheme(window, shell::appState().preferences.colours);
}

} // namespace platform
