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

TEST(Kaleidoscope, OneDrawSetsItsMirroredPointsInsideTheIcon) {
    // x = round(0.25·16) = 4, y = round(0.5·16) = 8: eight copies. x = round(0.99·16) = 16:
    // only the copies at −16 land, in column 0 and row 0.
    const struct {
        std::vector<float> draw;
        std::vector<std::pair<int, int>> points;
    } cases[] = {
        {{0.25f, 0.5f, 0.5f},
         {{20, 8}, {12, 8}, {20, 24}, {12, 24}, {24, 12}, {8, 12}, {24, 20}, {8, 20}}},
        {{0.99f, 0.5f, 0.1f}, {{0, 8}, {0, 24}, {24, 0}, {8, 0}}},
    };
    for (const auto& c : cases) {
        ScriptedGenerator random(c.draw);
        const Frame f = Kaleidoscope::generate(1, icon::kWhite, random);
        const icon::Colour dot = f.at(c.points[0].first, c.points[0].second);
        for (const auto& [x, y] : c.points)
            EXPECT_EQ(f.at(x, y), dot) << x << "," << y;
        EXPECT_EQ(countDifferent(f, icon::kWhite), static_cast<int>(c.points.size()));
    }
    ScriptedGenerator random({0.25f, 0.5f, 0.5f});
    EXPECT_EQ(Kaleidoscope::generate(1, icon::kBlack, random).at(20, 8), 8388608u);
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

TEST(Gradient, EveryAngleIsTheLeftEdgeOrTopLeftGradientTurned) {
    const Frame straight = Gradient::render(icon::kBlack, icon::kWhite, 0);
    const Frame diagonal = Gradient::render(icon::kBlack, icon::kWhite, 45);
    // Steps of 1/32 straight and 1/64 diagonally; the corner (0, 0) takes step 1 like its
    // neighbours.
    const struct {
        const Frame& frame;
        int x, y, level;
    } values[] = {{straight, 0, 0, 0},     {straight, 1, 31, 8}, {straight, 16, 0, 128},
                  {straight, 31, 31, 247}, {diagonal, 0, 0, 4},  {diagonal, 1, 0, 4},
                  {diagonal, 0, 1, 4},     {diagonal, 3, 5, 32}, {diagonal, 31, 31, 247}};
    for (const auto& v : values)
        EXPECT_EQ(v.frame.at(v.x, v.y), rgb(v.level, v.level, v.level)) << v.x << "," << v.y;
    // Pixel (x, y) at each other angle is a pixel of one of these two, swapped and mirrored.
    const struct {
        int angle;
        const Frame& source;
        bool swap, flipX, flipY;
    } turns[] = {{360, straight, false, false, false}, {90, straight, true, false, false},
                 {180, straight, false, true, false},  {270, straight, true, true, false},
                 {135, diagonal, false, true, false},  {225, diagonal, false, true, true},
                 {315, diagonal, false, false, true}};
    for (const auto& t : turns) {
        const Frame f = Gradient::render(icon::kBlack, icon::kWhite, t.angle);
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x) {
                const int sx = t.swap ? y : x, sy = t.swap ? x : y;
                ASSERT_EQ(f.at(x, y), t.source.at(t.flipX ? 31 - sx : sx, t.flipY ? 31 - sy : sy))
                    << t.angle << ": " << x << "," << y;
            }
    }
}

TEST(Gradient, FallingChannelsAndEqualEnds) {
    EXPECT_EQ(Gradient::colourOf(16, rgb(255, 0, 100), rgb(0, 255, 100), 32), rgb(128, 128, 100));
    const icon::Colour same = rgb(12, 34, 56);
    for (int direction = 0; direction <= Gradient::kMaxDirection; ++direction)
        EXPECT_EQ(Gradient::render(same, same, Gradient::angleOf(direction)), Frame(32, 32, same));
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
