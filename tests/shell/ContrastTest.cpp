#include "shell/Contrast.h"
#include "shell/ColourScheme.h"

#include <gtest/gtest.h>

namespace {

using shell::contrastRatio;
using shell::GradientEnd;

TEST(Contrast, RatiosOfKnownPairs) {
    // Reference values of the accessibility guidelines' formula. Colours are 0x00BBGGRR.
    struct Case {
        icon::Colour a, b;
        double ratio;
    };
    const Case cases[] = {
        {0x000000, 0xFFFFFF, 21.0},  // the most there is
        {0xFFFFFF, 0x000000, 21.0},  // symmetric
        {0x808080, 0x808080, 1.0},   // none
        {0x0000FF, 0xFFFFFF, 4.00},  // pure red on white
        {0x00FF00, 0x000000, 15.30}, // pure green on black: green weighs most
        {0xFF0000, 0x000000, 2.44},  // pure blue on black: blue weighs least
        {0x767676, 0xFFFFFF, 4.54},  // the lightest grey that passes on white
    };
    for (const Case& c : cases)
        EXPECT_NEAR(contrastRatio(c.a, c.b), c.ratio, 0.01) << std::hex << c.a << " " << c.b;
    // Red in the low byte: swapping red and blue changes the figure.
    EXPECT_NE(contrastRatio(0x0000FF, 0), contrastRatio(0xFF0000, 0));
}

TEST(Contrast, CaptionsGoWhereTheyReadBestOnTheDefaultScheme) {
    const shell::ColourScheme scheme = shell::ColourScheme::defaults();
    const icon::Colour start = scheme[shell::SchemeColour::GradientStart];
    const icon::Colour end = scheme[shell::SchemeColour::GradientEnd];
    const icon::Colour buttonText = scheme[shell::SchemeColour::ButtonText];
    const icon::Colour otherText = scheme[shell::SchemeColour::OtherText];

    // Teal captions go on the light grey end, white ones on the teal start (as the button's
    // own test sees them drawn), and both then read well.
    EXPECT_GE(contrastRatio(buttonText, end), shell::kLeastContrast);
    EXPECT_GE(contrastRatio(otherText, start), shell::kGoodContrast);
    // Where they would sit in a plain gradient, half of each caption would not read.
    EXPECT_LT(contrastRatio(buttonText, start), 1.1);
    EXPECT_LT(contrastRatio(otherText, end), 1.5);

    // A caption that reads alike on both ends stays on the end colour.
    EXPECT_EQ(shell::captionEnd(0x000000, 0x000000, 0xFFFFFF), GradientEnd::End);
    EXPECT_EQ(shell::captionEnd(0xFFFFFF, 0x000000, 0xFFFFFF), GradientEnd::End);
    EXPECT_EQ(shell::captionEnd(0x000000, 0xFFFFFF, 0xFFFFFF), GradientEnd::Start);
}

} // namespace
