#include "effects/Background.h"
#include "effects/Gradient.h"
#include "effects/Kaleidoscope.h"

#include <gtest/gtest.h>

#include <vector>

using effects::Gradient;
using effects::Kaleidoscope;
using icon::Frame;
using icon::rgb;

namespace {

// Plays back a list of values, over and over.
class ScriptedGenerator : public effects::UniformGenerator {
public:
    explicit ScriptedGenerator(std::vector<float> values)
        : m_values(std::move(values)) {}
    float next() override { return m_values[m_next++ % m_values.size()]; }

private:
    std::vector<float> m_values;
    std::size_t m_next = 0;
};

int countDifferent(const Frame& frame, icon::Colour background) {
    int count = 0;
    for (int y = 0; y < frame.height(); ++y)
        for (int x = 0; x < frame.width(); ++x)
            count += frame.at(x, y) != background;
    return count;
}

} // namespace

TEST(Kaleidoscope, SetsEightMirroredPoints) {
    // x = round(0.25·16) = 4, y = round(0.5·16) = 8, colour = round(0.5·16777215) = 8388608.
    ScriptedGenerator random({0.25f, 0.5f, 0.5f});
    const Frame f = Kaleidoscope::generate(1, icon::kBlack, random);
    const icon::Colour dot = 8388608;
    const int expected[8][2] = {{20, 8},  {12, 8}, {20, 24}, {12, 24},
                                {24, 12}, {8, 12}, {24, 20}, {8, 20}};
    for (const auto& p : expected)
        EXPECT_EQ(f.at(p[0], p[1]), dot) << p[0] << "," << p[1];
    EXPECT_EQ(countDifferent(f, icon::kBlack), 8);
}

TEST(Kaleidoscope, PointsOnThePositiveEdgesFallOutside) {
    // x = round(0.99·16) = 16: only the copies with −16 land, in column 0 and row 0.
    ScriptedGenerator random({0.99f, 0.5f, 0.1f});
    const Frame f = Kaleidoscope::generate(1, icon::kWhite, random);
    EXPECT_EQ(countDifferent(f, icon::kWhite), 4);
    for (const auto& p : {std::pair{0, 8}, {0, 24}, {24, 0}, {8, 0}})
        EXPECT_NE(f.at(p.first, p.second), icon::kWhite);
    int column = 0, row = 0;
    EXPECT_FALSE(Kaleidoscope::pixelOf(16, 0, column, row));
    EXPECT_FALSE(Kaleidoscope::pixelOf(0, -16, column, row));
    EXPECT_TRUE(Kaleidoscope::pixelOf(-16, 16, column, row));
    EXPECT_EQ(column, 0);
    EXPECT_EQ(row, 0);
}

TEST(Kaleidoscope, TheSameSeedGivesTheSamePattern) {
    effects::StdUniformGenerator a(1234), b(1234), c(99);
    const Frame first = Kaleidoscope::generate(10, icon::kBlack, a);
    EXPECT_EQ(first, Kaleidoscope::generate(10, icon::kBlack, b));
    EXPECT_NE(first, Kaleidoscope::generate(10, icon::kBlack, c));
    EXPECT_LE(countDifferent(first, icon::kBlack), 80);
    // Symmetric about column 16, row 16 and the diagonals through (16, 16).
    for (int y = 1; y < 32; ++y)
        for (int x = 1; x < 32; ++x) {
            ASSERT_EQ(first.at(x, y), first.at(32 - x, y));
            ASSERT_EQ(first.at(x, y), first.at(x, 32 - y));
            ASSERT_EQ(first.at(x, y), first.at(y, x));
        }
}

TEST(Gradient, StraightAnglesReachTheirExactValues) {
    const Frame f = Gradient::render(icon::kBlack, icon::kWhite, 0);
    const struct { int column, level; } cases[] = {{0, 0}, {1, 8}, {16, 128}, {31, 247}};
    for (const auto& c : cases)
        for (int y : {0, 31})
            EXPECT_EQ(f.at(c.column, y), rgb(c.level, c.level, c.level)) << c.column;
    EXPECT_EQ(Gradient::render(icon::kBlack, icon::kWhite, 360), f);
    // Start at the top, the right and the bottom edge.
    const Frame down = Gradient::render(icon::kBlack, icon::kWhite, 90);
    const Frame fromRight = Gradient::render(icon::kBlack, icon::kWhite, 180);
    const Frame up = Gradient::render(icon::kBlack, icon::kWhite, 270);
    for (int i = 0; i < 32; ++i) {
        EXPECT_EQ(down.at(7, i), f.at(i, 0));
        EXPECT_EQ(fromRight.at(31 - i, 7), f.at(i, 0));
        EXPECT_EQ(up.at(7, 31 - i), f.at(i, 0));
    }
}

TEST(Gradient, DiagonalsStartInTheirCorners) {
    const Frame d45 = Gradient::render(icon::kBlack, icon::kWhite, 45);
    EXPECT_EQ(d45.at(0, 0), rgb(4, 4, 4));
    EXPECT_EQ(d45.at(1, 0), rgb(4, 4, 4));
    EXPECT_EQ(d45.at(0, 1), rgb(4, 4, 4));
    EXPECT_EQ(d45.at(31, 31), rgb(247, 247, 247)); // round(62·255/64)
    EXPECT_EQ(d45.at(3, 5), Gradient::colourOf(8, icon::kBlack, icon::kWhite, 64));
    const struct {
        int angle, cornerX, cornerY;
    } cases[] = {{135, 31, 0}, {225, 31, 31}, {315, 0, 31}};
    for (const auto& c : cases) {
        const Frame f = Gradient::render(icon::kBlack, icon::kWhite, c.angle);
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x)
                ASSERT_EQ(f.at(x, y), d45.at(c.cornerX ? 31 - x : x, c.cornerY ? 31 - y : y))
                    << c.angle;
    }
}

TEST(Gradient, FallingChannelsAndEqualEnds) {
    EXPECT_EQ(Gradient::colourOf(16, rgb(255, 0, 100), rgb(0, 255, 100), 32), rgb(128, 128, 100));
    const icon::Colour same = rgb(12, 34, 56);
    for (int direction = 0; direction <= Gradient::kMaxDirection; ++direction)
        EXPECT_EQ(Gradient::render(same, same, Gradient::angleOf(direction)), Frame(32, 32, same));
    EXPECT_EQ(Gradient::label(7), "007");
    EXPECT_EQ(Gradient::label(255), "255");
}

TEST(Background, FillsOnlyTransparentPixelsAndMakesAllOpaque) {
    icon::IconPlanes icon;
    icon.paint(3, 4, rgb(1, 2, 3));
    const Frame picture = Gradient::render(icon::kBlack, icon::kWhite, 0);
    effects::applyBackground(icon, picture);
    EXPECT_EQ(icon.image.at(3, 4), rgb(1, 2, 3));
    EXPECT_EQ(icon.image.at(16, 4), rgb(128, 128, 128));
    EXPECT_EQ(icon.mask, icon::Plane(icon::kBlack));
}
