#include "platform/GradientButton.h"
#include "platform/HelpBubbles.h"
#include "platform/TitleButton.h"
#include "platform/WindowStyle.h"
#include "shell/AppState.h"

#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace {

TEST(Twips, FifteenToAPixel) {
    const struct {
        int twips, pixels;
    } cases[] = {{7860, 524}, {5440, 363}, {3285, 219}, {15, 1}, {0, 0}};
    for (const auto& c : cases)
        EXPECT_EQ(platform::twips(c.twips), c.pixels) << c.twips;
}

TEST(GradientButton, ClicksWithTheLeftButtonAndReportsTheRightOne) {
    QWidget window;
    auto* button = new platform::GradientButton(QStringLiteral("Copier"), &window);
    button->setGeometry(10, 10, 100, 24);
    window.show();
    QSignalSpy clicked(button, &QAbstractButton::clicked);
    QSignalSpy right(button, &platform::GradientButton::rightPressed);
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::mousePress(button, Qt::RightButton);
    QTest::mouseRelease(button, Qt::RightButton);
    EXPECT_EQ(clicked.count(), 1);
    EXPECT_EQ(right.count(), 1);
    button->setEnabled(false);
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::mousePress(button, Qt::RightButton);
    EXPECT_EQ(clicked.count(), 1);
    EXPECT_EQ(right.count(), 1);
}

TEST(GradientButton, LightsUpUnderTheMouseAndPaintsItsColours) {
    QWidget window;
    window.resize(120, 44);
    auto* button = new platform::GradientButton(QStringLiteral("Aide"), &window);
    button->setGeometry(10, 10, 100, 24);
    button->setColours(0x0000FF, 0xFF0000, 0xFFFFFF, 0x00FF00);
    window.show();
    QEnterEvent enterEvent(QPointF(5, 5), QPointF(5, 5), QPointF(15, 15));
    QApplication::sendEvent(button, &enterEvent);
    EXPECT_TRUE(button->isLit());
    const QImage picture = button->grab().toImage();
    const QColor top = picture.pixelColor(50, 3);
    const QColor bottom = picture.pixelColor(50, 20);
    EXPECT_GT(top.red(), 200) << "the red start at the top";
    EXPECT_LT(top.blue(), 60);
    EXPECT_GT(bottom.blue(), bottom.red()) << "the blue end at the bottom";
    EXPECT_EQ(picture.pixelColor(1, 12), QColor(0, 255, 0)) << "the light frame";
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(button, &leave);
    EXPECT_FALSE(button->isLit());
}

TEST(TitleButton, MovesTheWindowWhenTheWindowSystemDoesNot) {
    QWidget window;
    platform::makeFrameless(window);
    window.resize(200, 80);
    auto* title = new platform::TitleButton(QStringLiteral("Orvanne®"), &window);
    title->setGeometry(0, 0, 200, 20);
    window.move(100, 100);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_EQ(title->objectName(), QStringLiteral("CmdDeplaceFen"));
    EXPECT_EQ(platform::helpTextOf(*title), QStringLiteral("Déplacement de la fenêtre"));

    const QPoint start = window.pos();
    const QPointF local(20, 10);
    QMouseEvent press(QEvent::MouseButtonPress, local, title->mapToGlobal(local), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(title, &press);
    const QPointF moved = title->mapToGlobal(local) + QPointF(30, 20);
    QMouseEvent drag(QEvent::MouseMove, local + QPointF(30, 20), moved, Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(title, &drag);
    QMouseEvent release(QEvent::MouseButtonRelease, local, moved, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QApplication::sendEvent(title, &release);
    EXPECT_EQ(window.pos(), start + QPoint(30, 20));
}

TEST(HelpBubbles, TheTooltipFollowsTheFlagAtTheNextMouseMove) {
    QWidget control;
    platform::setHelpText(control, QStringLiteral("Renommer l'icône"));
    EXPECT_EQ(control.toolTip(), QString());
    auto moveOver = [&] {
        QMouseEvent move(QEvent::MouseMove, QPointF(2, 2), QPointF(2, 2), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&control, &move);
    };
    shell::appState().preferences.helpBubbles = true;
    moveOver();
    EXPECT_EQ(control.toolTip(), QStringLiteral("Renommer l'icône"));
    shell::appState().preferences.helpBubbles = false;
    EXPECT_EQ(control.toolTip(), QStringLiteral("Renommer l'icône")) << "until the mouse moves";
    moveOver();
    EXPECT_EQ(control.toolTip(), QString());
    shell::appState().preferences.helpBubbles = true;
}

} // namespace
