#include "effects/ColourAdjuster.h"
#include "effects/ColourTransforms.h"
#include "effects/Rounding.h"

#include <gtest/gtest.h>

using effects::ColourAdjuster;
using icon::rgb;
using Bar = effects::ColourAdjuster::Bar;

TEST(Rounding, HalvesGoToTheEvenNeighbour) {
    const struct {
        double value;
        int expected;
    } cases[] = {{0.5, 0},   {1.5, 2},    {2.5, 2},    {3.5, 4},     {-0.5, 0},  {-1.5, -2},
                 {-2.5, -2}, {2.4999, 2}, {2.5001, 3}, {127.5, 128}, {-3.2, -3}, {246.5625, 247}};
    for (const auto& c : cases)
        EXPECT_EQ(effects::roundHalfEven(c.value), c.expected) << c.value;
}

TEST(ColourTransforms, GreyLevelsWeighTheChannels) {
    // The level is (222·r + 707·g + 71·b) / 1000, halves rounded to even: 2500 gives 2,
    // 3500 gives 4, 1500 gives 2.
    const struct {
        icon::Colour colour;
        int expected;
    } cases[] = {{rgb(255, 255, 255), 255}, {rgb(0, 0, 1), 0},  {rgb(2, 1, 19), 2},
                 {rgb(3, 2, 20), 4},        {rgb(1, 0, 18), 2}, {rgb(100, 0, 0), 22},
                 {rgb(0, 100, 0), 71}};
    for (const auto& c : cases)
        EXPECT_EQ(effects::greyOf(c.colour), rgb(c.expected, c.expected, c.expected))
            << std::hex << c.colour;
}

TEST(ColourTransforms, TouchOnlyOpaquePixels) {
    icon::IconBitmap block{icon::Frame(3, 1), icon::Frame(3, 1, icon::kBlack)};
    block.image.set(0, 0, rgb(10, 20, 30));
    block.image.set(1, 0, rgb(10, 20, 30));
    block.mask.set(1, 0, icon::kWhite);
    block.image.set(2, 0, rgb(200, 0, 50));
    block.mask.set(2, 0, 0xFEFEFE); // near white is opaque

    icon::IconBitmap negative = effects::negative(block);
    EXPECT_EQ(negative.image.at(0, 0), rgb(245, 235, 225));
    EXPECT_EQ(negative.image.at(1, 0), rgb(10, 20, 30));
    EXPECT_EQ(negative.image.at(2, 0), rgb(55, 255, 205));
    EXPECT_EQ(negative.mask, block.mask);
    EXPECT_EQ(effects::negative(negative), block);

    const icon::IconBitmap grey = effects::greyLevels(block);
    EXPECT_EQ(grey.image.at(1, 0), rgb(10, 20, 30));
    EXPECT_EQ(grey.image.at(0, 0), effects::greyOf(rgb(10, 20, 30)));
    EXPECT_EQ(grey.mask, block.mask);
}

namespace {

icon::IconPlanes oneColourIcon(icon::Colour colour) {
    icon::IconPlanes planes;
    planes.image.fill(colour);
    planes.mask.fill(icon::kBlack);
    return planes;
}

} // namespace

TEST(ColourAdjuster, EveryChangeIsOneStepOfFiveAndTheDisplayStaysInRange) {
    ColourAdjuster adjuster(oneColourIcon(rgb(250, 5, 0)));
    using C = ColourAdjuster::Channels;
    const struct {
        Bar bar;
        int value;
        C working, display;
    } steps[] = {
        {Bar::Red, 5, {255, 5, 0}, {255, 5, 0}},
        {Bar::Red, 255, {260, 5, 0}, {255, 5, 0}}, // a jump of 250 is still one step
        {Bar::Red, 255, {260, 5, 0}, {255, 5, 0}}, // no move, no step
        {Bar::Green, -50, {260, 0, 0}, {255, 0, 0}},
        {Bar::Brightness, 5, {265, 5, 5}, {255, 5, 5}}, // brightness moves the three channels
        {Bar::Blue, -5, {265, 5, 0}, {255, 5, 0}},
        {Bar::Blue, -10, {265, 5, -5}, {255, 5, 0}},
        {Bar::Red, 0, {260, 5, -5}, {255, 5, 0}},
        {Bar::Brightness, 0, {255, 0, -10}, {255, 0, 0}},
    };
    for (const auto& s : steps) {
        adjuster.change(s.bar, s.value);
        EXPECT_EQ(adjuster.working(0), s.working) << s.value;
        EXPECT_EQ(adjuster.display(0), s.display) << s.value;
        EXPECT_EQ(adjuster.value(s.bar), s.value);
    }
    EXPECT_EQ(adjuster.preview().at(31, 31), rgb(255, 0, 0));
    icon::IconPlanes icon = oneColourIcon(0);
    adjuster.applyTo(icon);
    EXPECT_EQ(icon.image.at(0, 0), rgb(255, 0, 0));
}

TEST(ColourAdjuster, PixelsWhoseMaskIsNotBlackAreMarkedAndLeftAlone) {
    icon::IconPlanes icon = oneColourIcon(rgb(40, 50, 60));
    icon.erase(0, 0);
    icon.mask.set(1, 0, 0xFEFEFE);
    icon.image.set(1, 0, rgb(9, 9, 9));
    ColourAdjuster adjuster(icon, rgb(0, 0, 255));
    const ColourAdjuster::Channels marker{1000, 1000, 1000};
    EXPECT_EQ(adjuster.reference(0), marker);
    EXPECT_EQ(adjuster.reference(1), marker);
    EXPECT_EQ(adjuster.reference(2), (ColourAdjuster::Channels{40, 50, 60}));
    // The preview starts from the icon as shown over its background.
    EXPECT_EQ(adjuster.preview().at(0, 0), rgb(0, 0, 255));
    adjuster.change(Bar::Red, 5);
    // The step reaches the marked working value too, but never its display value.
    EXPECT_EQ(adjuster.working(0).red, 1005);
    EXPECT_EQ(adjuster.display(0), marker);
    EXPECT_EQ(adjuster.preview().at(2, 0), rgb(45, 50, 60));
    icon::IconPlanes result = icon;
    adjuster.applyTo(result);
    EXPECT_EQ(result.image.at(1, 0), rgb(9, 9, 9));
    EXPECT_EQ(result.image.at(2, 0), rgb(45, 50, 60));
    EXPECT_EQ(result.mask, icon.mask);

    // A reset goes back to the reference, the marker saturating to white in the preview, and
    // the bars' previous values are 0 again: setting a bar to 0 makes no step, 5 makes one.
    adjuster.change(Bar::Brightness, 30);
    adjuster.reset();
    EXPECT_EQ(adjuster.value(Bar::Brightness), 0);
    EXPECT_EQ(adjuster.working(2), (ColourAdjuster::Channels{40, 50, 60}));
    EXPECT_EQ(adjuster.preview().at(0, 0), icon::kWhite);
    adjuster.change(Bar::Red, 0);
    EXPECT_EQ(adjuster.working(2).red, 40);
    adjuster.change(Bar::Red, 5);
    EXPECT_EQ(adjuster.working(2).red, 45);
}
