#include "platform/GradientButton.h"
#include "platform/HelpBubbles.h"
#include "platform/TitleButton.h"
#include "platform/WindowKeys.h"
#include "platform/WindowStyle.h"
#include "shell/AppState.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace {

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

TEST(GradientButton, LightsUpUnderTheMouse) {
    QWidget window;
    window.resize(120, 44);
    auto* button = new platform::GradientButton(QStringLiteral("Aide"), &window);
    button->setGeometry(10, 10, 100, 24);
    button->setColours(0x0000FF, 0xFF0000, 0xFFFFFF, 0x00FF00);
    window.show();
    QEnterEvent enterEvent(QPointF(5, 5), QPointF(5, 5), QPointF(15, 15));
    QApplication::sendEvent(button, &enterEvent);
    EXPECT_TRUE(button->isLit());
    EXPECT_EQ(button->grab().toImage().pixelColor(1, 12), QColor(0, 255, 0)) << "the light frame";
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(button, &leave);
    EXPECT_FALSE(button->isLit());
}

TEST(GradientButton, TheCaptionLiesOnTheEndItReadsBestOnPressedOrNot) {
    // Colours are 0x00BBGGRR: on the default scheme teal text reads on the grey end, white text
    // on the teal start.
    const struct {
        icon::Colour text;
        QColor band;
    } cases[] = {{0x808000, QColor(224, 224, 224)}, {0xFFFFFF, QColor(0, 128, 128)}};
    for (const auto& c : cases) {
        platform::GradientButton button(QStringLiteral("Enregistrer"));
        button.resize(120, 40);
        button.setColours(0x808000, 0xE0E0E0, c.text, 0x00FF00);
        const QRect caption = button.captionRect();
        ASSERT_FALSE(caption.isEmpty());
        for (bool pressed : {false, true}) {
            button.setDown(pressed);
            const QImage picture = button.grab().toImage();
            for (int y = caption.top(); y <= caption.bottom(); ++y)
                EXPECT_EQ(picture.pixelColor(3, y), c.band) << "row " << y << " " << pressed;
        }
    }
}

TEST(GradientButton, TabReachesTheButtonsWhichShowItAndTakeReturn) {
    QWidget window;
    window.resize(240, 60);
    auto* title = new platform::TitleButton(QStringLiteral("Titre"), &window);
    title->setGeometry(0, 0, 240, 20);
    auto* first = new platform::GradientButton(QStringLiteral("Un"), &window);
    first->setGeometry(10, 30, 100, 24);
    auto* second = new platform::GradientButton(QStringLiteral("Deux"), &window);
    second->setGeometry(120, 30, 100, 24);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const QImage unfocused = second->grab().toImage();

    window.setFocus();
    QTest::keyClick(&window, Qt::Key_Tab);
    EXPECT_TRUE(first->hasFocus()) << "the title button is passed by";
    QTest::keyClick(first, Qt::Key_Tab);
    ASSERT_TRUE(second->hasFocus());
    EXPECT_NE(second->grab().toImage(), unfocused) << "the focus shows";

    QSignalSpy clicked(second, &QAbstractButton::clicked);
    QTest::keyClick(second, Qt::Key_Return);
    QTest::keyClick(second, Qt::Key_Space);
    EXPECT_EQ(clicked.count(), 2);

    QTest::mouseClick(first, Qt::LeftButton);
    EXPECT_TRUE(second->hasFocus()) << "a click leaves the focus where it was";
}

TEST(WindowKeys, ReturnEscapeAndF1ReachTheirCommandsWhereverTheFocusIs) {
    QDialog dialog;
    auto* field = new QLineEdit(&dialog);
    auto* ok = new platform::GradientButton(QStringLiteral("OK"), &dialog);
    auto* cancel = new platform::GradientButton(QStringLiteral("Annuler"), &dialog);
    int helps = 0;
    platform::setWindowKeys(dialog, {ok, cancel, [&helps] {
                                         ++helps;
                                     }});
    QSignalSpy okClicked(ok, &QAbstractButton::clicked);
    QSignalSpy cancelClicked(cancel, &QAbstractButton::clicked);
    dialog.show();
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Return);
    QTest::keyClick(field, Qt::Key_Enter, Qt::KeypadModifier);
    QTest::keyClick(field, Qt::Key_Escape);
    QTest::keyClick(field, Qt::Key_F1);
    QTest::keyClick(field, Qt::Key_Return, Qt::ControlModifier); // not OK
    EXPECT_EQ(okClicked.count(), 2);
    EXPECT_EQ(cancelClicked.count(), 1);
    EXPECT_EQ(helps, 1);
    EXPECT_TRUE(dialog.isVisible()) << "the buttons decide, not the keys";

    cancel->setEnabled(false);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(okClicked.count(), 3);
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(cancelClicked.count(), 1);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_FALSE(dialog.isVisible()) << "without a Cancel button Escape cancels the dialog";
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
