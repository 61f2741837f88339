#include "effects/Gradient.h"
#include "effects/GradientPreview.h"

#include <gtest/gtest.h>

using effects::Gradient;
using effects::GradientPreview;
using icon::Frame;

TEST(GradientPreview, ChannelBarsLeaveTheLastDrawingInPlace) {
    GradientPreview preview;
    const Frame first = preview.picture();
    EXPECT_EQ(first, Gradient::render(icon::kBlack, icon::kWhite, 0));

    preview.setBar(0, 255); // start red
    preview.setBar(5, 0);   // end blue
    EXPECT_EQ(preview.startColour(), icon::rgb(255, 0, 0));
    EXPECT_EQ(preview.endColour(), icon::rgb(255, 255, 0));
    EXPECT_EQ(preview.picture(), first);

    preview.redraw();
    EXPECT_EQ(preview.picture(), Gradient::render(icon::rgb(255, 0, 0), icon::rgb(255, 255, 0), 0));

    preview.setBar(1, 300);
    EXPECT_EQ(preview.bar(1), 255);
    preview.setDirection(3); // the direction redraws at once, with every bar as it is
    EXPECT_EQ(preview.angle(), 135);
    EXPECT_EQ(preview.picture(),
              Gradient::render(icon::rgb(255, 255, 0), icon::rgb(255, 255, 0), 135));
    preview.setDirection(12);
    EXPECT_EQ(preview.angle(), 360);
}
