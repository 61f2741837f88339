#pragma once

#include "icon/Colour.h"
#include "icon/Frame.h"
#include "icon/IconPlanes.h"

#include <array>
#include <string>

namespace effects {

// The tables behind the colour adjustment dialog. Three tables of one entry per icon pixel
// (p = 32·y + x): the reference colours, the working values (reference plus every step, without
// limit) and the display values (per channel the last working value that lay in 0..255).
// A pixel whose mask is not black carries the marker 1000 in every channel of every table and
// is never adjusted.
class ColourAdjuster {
public:
    enum class Bar { Brightness, Red, Green, Blue };
    static constexpr int kMarker = 1000;
    static constexpr int kStep = 5;
    static constexpr int kMinimum = -255;
    static constexpr int kMaximum = 255;

    struct Channels {
        int red = 0;
        int green = 0;
        int blue = 0;
        bool operator==(const Channels&) const = default;
    };

    // Fills the tables from the icon; the preview starts as the icon shown over `background`.
    explicit ColourAdjuster(const icon::IconPlanes& icon, icon::Colour background = icon::kWhite);

    // A change event of a bar to `value`: whatever the size of the change, exactly one step
    // of 5, up when the value rose and down when it fell, none when it did not move.
    void change(Bar bar, int value);
    // Back to the reference colours; every bar and its previous value return to 0.
    void reset();

    int value(Bar bar) const { return m_current[index(bar)]; }
    // The text of a bar's label: its value as a plain signed number.
    static std::string label(int value) { return std::to_string(value); }

    Channels reference(int p) const { return m_reference[p]; }
    Channels working(int p) const { return m_working[p]; }
    Channels display(int p) const { return m_display[p]; }
    const icon::Frame& preview() const { return m_preview; }

    // What "Ok" does: every pixel without the marker takes its display colour; the mask is
    // left alone.
    void applyTo(icon::IconPlanes& icon) const;

private:
    static constexpr int index(Bar bar) { return static_cast<int>(bar); }
    void paint(int p, const Channels& c);

    std::array<Channels, icon::Plane::kPixels> m_reference{};
    std::array<Channels, icon::Plane::kPixels> m_working{};
    std::array<Channels, icon::Plane::kPixels> m_display{};
    std::array<int, 4> m_current{};
    std::array<int, 4> m_previous{};
    icon::Frame m_preview;
};

} // namespace effects
