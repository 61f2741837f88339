#include "shell/WindowPlacement.h"

#include <gtest/gtest.h>

namespace {

TEST(WindowPlacement, TheSecondWindowGoesBesideTheMainOneNeverOverIt) {
    const QSize editor(558, 410);
    const struct {
        QRect screen;
        QRect main;
        QPoint expected;
    } cases[] = {
        // Room on the right.
        {{0, 0, 1920, 1080}, {100, 100, 524, 363}, {632, 100}},
        // Main window on the right of the screen: the left side.
        {{0, 0, 1920, 1080}, {1300, 100, 524, 363}, {734, 100}},
        // A narrow screen: below.
        {{0, 0, 1024, 900}, {250, 50, 524, 363}, {250, 421}},
        // No room anywhere: to the right as far as the screen allows.
        {{0, 0, 800, 600}, {138, 118, 524, 363}, {242, 118}},
        // Main window filling the screen's corner: moved off its exact place.
        {{0, 0, 558, 410}, {0, 0, 558, 410}, {32, 32}},
    };
    for (const auto& c : cases) {
        const QPoint place = shell::placeBeside(c.main, editor, c.screen);
        EXPECT_EQ(place, c.expected) << c.main.x() << "," << c.main.y();
        EXPECT_NE(place, c.main.topLeft());
    }
}

} // namespace
