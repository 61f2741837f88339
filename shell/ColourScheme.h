#pragma once

#include "icon/Colour.h"

#include <array>
#include <cstddef>

namespace shell {

// The seven colours every window of the program is painted with.
enum class SchemeColour {
    GradientStart,    // start of the gradient of every push button
    GradientEnd,      // end of that gradient
    ButtonText,       // captions of the title buttons and counters
    ButtonLight,      // highlight of a button under the mouse
    OtherText,        // labels, lists and the pop-up panel's buttons
    WindowBackground, // background of the windows
    Viewing,          // viewing areas, drive and folder lists
};

inline constexpr std::size_t kSchemeColourCount = 7;

// The viewing areas' own colour, before the user chooses another.
inline constexpr icon::Colour kDefaultViewing = 0xD2D200;

struct ColourScheme {
    std::array<icon::Colour, kSchemeColourCount> colours = defaults().colours;

    icon::Colour operator[](SchemeColour which) const {
        return colours[static_cast<std::size_t>(which)];
    }
    icon::Colour& operator[](SchemeColour which) {
        return colours[static_cast<std::size_t>(which)];
    }
    bool operator==(const ColourScheme&) const = default;

    static constexpr ColourScheme defaults() {
        ColourScheme scheme{
            {0x808000, 0xE0E0E0, 0x808000, 0xDEFF6C, 0xFFFFFF, 0x808000, kDefaultViewing}};
        return scheme;
    }
};

// In the order the pop-up panel lists them.
inline constexpr std::array<SchemeColour, kSchemeColourCount> kAllSchemeColours{
    SchemeColour::GradientStart, SchemeColour::GradientEnd, SchemeColour::ButtonText,
    SchemeColour::ButtonLight,   SchemeColour::OtherText,   SchemeColour::WindowBackground,
    SchemeColour::Viewing};

} // namespace shell
