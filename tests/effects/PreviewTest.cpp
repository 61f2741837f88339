#include "effects/GradientPreview.h"
#include "effects/KaleidoscopePreview.h"

#include <gtest/gtest.h>

using effects::Gradient;
using effects::GradientPreview;
using effects::KaleidoscopePreview;
using icon::rgb;

namespace {

TEST(GradientPreview, BarsAreKeptInRangeAndOnlyADrawingOrADirectionRedraws) {
    GradientPreview preview;
    const icon::Frame blackToWhite = Gradient::render(icon::kBlack, icon::kWhite, 0);
    EXPECT_EQ(preview.picture(), blackToWhite) << "drawn once at opening";

    const struct {
        int index, value, kept;
    } bars[] = {{0, 200, 200}, {1, -3, 0}, {4, 300, 255}, {5, 7, 7}};
    for (const auto& b : bars) {
        preview.setBar(b.index, b.value);
        EXPECT_EQ(preview.bar(b.index), b.kept) << b.index;
    }
    preview.setBar(6, 100); // no such bar
    preview.setBar(-1, 100);
    EXPECT_EQ(preview.startColour(), rgb(200, 0, 0));
    EXPECT_EQ(preview.endColour(), rgb(255, 255, 7));
    EXPECT_EQ(preview.picture(), blackToWhite) << "a bar alone leaves the last drawing";

    preview.redraw();
    EXPECT_EQ(preview.picture(), Gradient::render(rgb(200, 0, 0), rgb(255, 255, 7), 0));

    const struct { int asked, kept, angle; } directions[] = {{3, 3, 135}, {-1, 0, 0}, {9, 8, 360}};
    for (const auto& d : directions) {
        preview.setBar(0, d.asked < 0 ? 10 : 20); // a bar moved since the last drawing
        preview.setDirection(d.asked);
        EXPECT_EQ(preview.direction(), d.kept);
        EXPECT_EQ(preview.angle(), d.angle);
        EXPECT_EQ(preview.picture(),
                  Gradient::render(preview.startColour(), preview.endColour(), d.angle))
            << "a direction redraws with the bars as they are";
    }
}

TEST(KaleidoscopePreview, DensityIsBoundedAndAnyBackColourClearsThePattern) {
    const icon::Colour back = 0x336699;
    KaleidoscopePreview preview(back);
    EXPECT_EQ(preview.density(), 250);
    EXPECT_EQ(preview.picture(), icon::Frame(32, 32, back));

    const struct {
        int asked, kept;
    } densities[] = {{9, 10}, {10, 10}, {20, 20}, {500, 500}, {501, 500}};
    for (const auto& d : densities) {
        preview.setDensity(d.asked);
        EXPECT_EQ(preview.density(), d.kept) << d.asked;
    }

    // A pattern is the generator's at the chosen density over the back colour.
    preview.setDensity(20);
    effects::StdUniformGenerator random(7), replay(7);
    preview.generate(random);
    EXPECT_EQ(preview.picture(), effects::Kaleidoscope::generate(20, back, replay));
    EXPECT_NE(preview.picture(), icon::Frame(32, 32, back));

    // Choosing the same colour again still throws the pattern away.
    for (icon::Colour colour : {back, icon::kBlack}) {
        preview.generate(random);
        preview.setBackground(colour);
        EXPECT_EQ(preview.background(), colour);
        EXPECT_EQ(preview.picture(), icon::Frame(32, 32, colour));
    }
}

} // namespace
