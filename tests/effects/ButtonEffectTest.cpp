#include "effects/ButtonEffect.h"

#include <gtest/gtest.h>

using icon::rgb;

TEST(ButtonEffect, DarkensTheFourOuterRingsOnce) {
    icon::IconPlanes icon;
    icon.image.fill(icon::kWhite);
    icon.mask.fill(icon::kBlack);
    effects::buttonEffect(icon);
    const struct {
        int x, y, level;
    } cases[] = {{0, 0, 191},  {31, 31, 191}, {0, 17, 191},  {13, 31, 191}, {1, 1, 223},
                 {30, 5, 223}, {2, 2, 239},   {29, 29, 239}, {3, 3, 247},   {28, 15, 247},
                 {4, 4, 255},  {27, 27, 255}, {16, 16, 255}};
    for (const auto& c : cases)
        EXPECT_EQ(icon.image.at(c.x, c.y), rgb(c.level, c.level, c.level)) << c.x << "," << c.y;
}

TEST(ButtonEffect, FloorsAtZeroAndSparesTransparentPixels) {
    icon::IconPlanes icon;
    icon.paint(0, 0, rgb(40, 100, 200));
    icon.paint(3, 10, rgb(5, 8, 9));
    icon.image.set(1, 1, rgb(90, 90, 90)); // transparent, with a colour beneath
    effects::buttonEffect(icon);
    EXPECT_EQ(icon.image.at(0, 0), rgb(0, 36, 136));
    EXPECT_EQ(icon.image.at(3, 10), rgb(0, 0, 1));
    EXPECT_EQ(icon.image.at(1, 1), rgb(90, 90, 90));
    EXPECT_EQ(effects::darken(rgb(7, 8, 9), 8), rgb(0, 0, 1));
}
