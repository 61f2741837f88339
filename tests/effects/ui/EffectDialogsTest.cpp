#include "editor/IconEditor.h"
#include "effects/Gradient.h"
#include "effects/Kaleidoscope.h"
#include "effects/ui/FrmColAdj.h"
#include "effects/ui/FrmRndIcon.h"
#include "effects/ui/FrmShades.h"
#include "effects/ui/PreviewPicture.h"
#include "iconqt/FrameImage.h"
#include "platform/Services.h"
#include "shell/AppState.h"
#include "tests/support/Screenshot.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/Widgets.h"

#include <QLabel>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

// Labels read back as text in failure messages.
void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

namespace {

using effects::ui::FrmColAdj;
using effects::ui::FrmRndIcon;
using effects::ui::FrmShades;
using icon::Colour;
using icon::rgb;
using platform::Asked;
using testsupport::child;
using testsupport::click;

const QString kOk = QStringLiteral("Ok");
const QString kCancelled = QStringLiteral("Cancelled");

// A click on a spinner's upper or lower arrow.
void spin(QWidget& window, const QString& name, bool up, int times = 1) {
    QWidget* bar = child(window, name);
    for (int i = 0; i < times; ++i)
        QTest::mouseClick(bar, Qt::LeftButton, {},
                          QPoint(bar->width() / 2, up ? 3 : bar->height() - 4));
}

QString text(QWidget& window, const QString& name) {
    return child<QLabel>(window, name)->text();
}

QImage preview(QWidget& window, const QString& name) {
    return child<effects::ui::PreviewPicture>(window, name)->picture();
}

Colour pixel(const QImage& image, int x, int y) {
    const QRgb c = image.pixel(x, y);
    return rgb(qRed(c), qGreen(c), qBlue(c));
}

class EffectDialogs : public ::testing::Test {
protected:
    void SetUp() override {
        // Pixel (0, 0) is near the top of red, (1, 0) is transparent over a coloured value.
        m_icon = icon::IconPlanes::blank();
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x)
                m_icon.paint(x, y, rgb(8 * x, 8 * y, 100));
        m_icon.paint(0, 0, rgb(253, 0, 100));
        m_icon.image.set(1, 0, rgb(1, 2, 3));
        m_icon.mask.set(1, 0, icon::kWhite);
        m_engine.loadIcon(m_icon);
        shell::appState().preferences.colours = shell::ColourScheme::defaults();
    }

    // The engine changed nothing and recorded nothing.
    void expectUntouched() {
        EXPECT_EQ(m_engine.planes(), m_icon);
        EXPECT_EQ(m_engine.history().undoCount(), 1u);
    }
    // The engine recorded exactly one step, and it holds the planes.
    void expectOneStep() {
        EXPECT_EQ(m_engine.history().undoCount(), 2u);
        EXPECT_EQ(m_engine.history().redoCount(), 0u);
        ASSERT_NE(m_engine.history().current(), nullptr);
        EXPECT_EQ(*m_engine.history().current(), m_engine.planes());
    }

    icon::IconPlanes m_icon;
    editor::IconEditor m_engine;
    platform::ScriptedDialogs m_dialogs;
    platform::ServicesOverride m_services{&m_dialogs};
};

TEST_F(EffectDialogs, EveryDialogTakesTheInterfaceColoursAndReturnAndEscape) {
    shell::appState().preferences.colours[shell::SchemeColour::WindowBackground] = 0x203040;
    effects::StdUniformGenerator random(1);
    FrmColAdj colours(m_engine.beginColourAdjustment());
    FrmRndIcon kaleidoscope(m_dialogs, random);
    FrmShades gradient;
    for (QDialog* dialog : std::initializer_list<QDialog*>{&colours, &kaleidoscope, &gradient}) {
        SCOPED_TRACE(dialog->objectName().toStdString());
        EXPECT_EQ(dialog->palette().color(QPalette::Window), QColor(0x40, 0x30, 0x20));
        dialog->show();
        QTest::keyClick(dialog, Qt::Key_Return);
        EXPECT_EQ(dialog->result(), QDialog::Accepted);
        dialog->show();
        QTest::keyClick(dialog, Qt::Key_Escape);
        EXPECT_EQ(dialog->result(), QDialog::Rejected);
    }
}

TEST_F(EffectDialogs, ColourAdjustmentBarsResetOkAndCancelReachTheAdjuster) {
    m_engine.SelectAll();
    Colour shown = 0;
    m_dialogs.onModal([&](QDialog& dialog) {
        // The selection is settled before the dialog shows.
        EXPECT_EQ(m_engine.selectionState(), editor::SelectionState::None);
        spin(dialog, QStringLiteral("VsbBrightness"), true, 2);
        EXPECT_EQ(text(dialog, QStringLiteral("LblBrightness")), QStringLiteral("10"));
        auto* green = child<QAbstractSlider>(dialog, QStringLiteral("VsbGreen"));
        green->setFocus();
        QTest::keyClick(green, Qt::Key_End);
        EXPECT_EQ(text(dialog, QStringLiteral("LblGreen")), QStringLiteral("255"));
        shown = pixel(preview(dialog, QStringLiteral("PicShade")), 2, 3);
        testsupport::saveScreenshot(dialog, QStringLiteral("FrmColAdj"));
        click(dialog, QStringLiteral("CmdOK"));
    });
    EXPECT_EQ(FrmColAdj::run(m_engine, m_dialogs), kOk);
    EXPECT_NE(shown, m_icon.image.at(2, 3));
    EXPECT_EQ(m_engine.planes().image.at(2, 3), shown) << "OK applies what the preview shows";
    EXPECT_EQ(m_engine.planes().image.at(1, 0), rgb(1, 2, 3)) << "transparent pixels kept";
    expectOneStep();

    m_engine.loadIcon(m_icon);
    m_dialogs.onModal([this](QDialog& dialog) {
        spin(dialog, QStringLiteral("VsbRed"), true);
        click(dialog, QStringLiteral("CmdReset"));
        for (const char* name : {"VsbBrightness", "VsbRed", "VsbGreen", "VsbBlue"})
            EXPECT_EQ(child<QAbstractSlider>(dialog, QString::fromLatin1(name))->value(), 0);
        EXPECT_EQ(pixel(preview(dialog, QStringLiteral("PicShade")), 2, 3), m_icon.image.at(2, 3));
        click(dialog, QStringLiteral("CmdAnnul"));
    });
    EXPECT_EQ(FrmColAdj::run(m_engine, m_dialogs), kCancelled);
    expectUntouched();
}

TEST_F(EffectDialogs, KaleidoscopeControlsReachThePreviewAndOkLaysItUnderTheIcon) {
    const Colour viewing = 0x336699;
    shell::appState().preferences.colours[shell::SchemeColour::Viewing] = viewing;
    effects::StdUniformGenerator random(42);
    effects::StdUniformGenerator replay(42);
    icon::Frame expected;
    m_dialogs.onModal([&](QDialog& dialog) {
        EXPECT_EQ(text(dialog, QStringLiteral("LblDensity")), QStringLiteral("250"));
        EXPECT_EQ(preview(dialog, QStringLiteral("PicRnd")),
                  iconqt::toImage(icon::Frame(32, 32, viewing)));
        spin(dialog, QStringLiteral("UDdensity"), false, 23);
        EXPECT_EQ(text(dialog, QStringLiteral("LblDensity")), QStringLiteral("20"));

        // A double click asks for the back colour, starting from the one shown.
        m_dialogs.chooseColourValue(icon::kBlack);
        click(dialog, QStringLiteral("CmdGenerate"));
        QTest::mouseDClick(child(dialog, QStringLiteral("PicRnd")), Qt::LeftButton);
        EXPECT_EQ(m_dialogs.last().kind, Asked::Kind::Colour);
        EXPECT_EQ(m_dialogs.last().colour, viewing);
        EXPECT_EQ(preview(dialog, QStringLiteral("PicRnd")), iconqt::toImage(icon::Frame(32, 32, 0)));

        click(dialog, QStringLiteral("CmdGenerate"));
        effects::Kaleidoscope::generate(20, 0, replay);
        expected = effects::Kaleidoscope::generate(20, 0, replay);
        EXPECT_EQ(preview(dialog, QStringLiteral("PicRnd")), iconqt::toImage(expected));
        testsupport::saveScreenshot(dialog, QStringLiteral("FrmRndIcon"));
        click(dialog, QStringLiteral("CmdOK"));
    });
    EXPECT_EQ(FrmRndIcon::run(m_engine, m_dialogs, random), kOk);
    EXPECT_EQ(m_engine.planes().image.at(1, 0), expected.at(1, 0));
    EXPECT_EQ(m_engine.planes().image.at(0, 0), m_icon.image.at(0, 0));
    EXPECT_EQ(m_engine.planes().mask, icon::Plane(icon::kBlack));
    expectOneStep();
}

TEST_F(EffectDialogs, AKaleidoscopeClosedWithoutAButtonIsCancelledAndStartsAfreshNextTime) {
    effects::StdUniformGenerator random(5);
    m_dialogs.onModal([](QDialog& dialog) {
        spin(dialog, QStringLiteral("UDdensity"), true, 3);
        click(dialog, QStringLiteral("CmdGenerate"));
    });
    EXPECT_EQ(FrmRndIcon::run(m_engine, m_dialogs, random), kCancelled);
    m_dialogs.onModal([](QDialog& dialog) {
        EXPECT_EQ(text(dialog, QStringLiteral("LblDensity")), QStringLiteral("250"));
    });
    EXPECT_EQ(FrmRndIcon::run(m_engine, m_dialogs, random), kCancelled);
    expectUntouched();
}

TEST_F(EffectDialogs, GradientControlsReachThePreviewAndOkAppliesWhatItShows) {
    m_icon.erase(5, 5);
    m_engine.loadIcon(m_icon);
    icon::Frame shown;
    m_dialogs.onModal([&](QDialog& dialog) {
        child<QScrollBar>(dialog, QStringLiteral("Hsb0"))->setValue(200);
        child<QScrollBar>(dialog, QStringLiteral("Hsb4"))->setValue(7);
        EXPECT_EQ(text(dialog, QStringLiteral("LblColorVal0")), QStringLiteral("200"));
        EXPECT_EQ(text(dialog, QStringLiteral("LblColorVal4")), QStringLiteral("007"));
        // The swatches follow the bars at once.
        const QImage window = dialog.grab().toImage();
        EXPECT_EQ(pixel(window, FrmShades::kStartSwatch.center().x(),
                        FrmShades::kStartSwatch.center().y()),
                  rgb(200, 0, 0));
        EXPECT_EQ(
            pixel(window, FrmShades::kEndSwatch.center().x(), FrmShades::kEndSwatch.center().y()),
            rgb(255, 7, 255));
        click(dialog, QStringLiteral("CmdGradient"));
        EXPECT_EQ(preview(dialog, QStringLiteral("PicSml")),
                  iconqt::toImage(effects::Gradient::render(rgb(200, 0, 0), rgb(255, 7, 255), 0)));
        spin(dialog, QStringLiteral("VsbDegrees"), true, 3);
        EXPECT_EQ(text(dialog, QStringLiteral("LblDegrees")), QStringLiteral("135"));
        shown = effects::Gradient::render(rgb(200, 0, 0), rgb(255, 7, 255), 135);
        EXPECT_EQ(preview(dialog, QStringLiteral("PicSml")), iconqt::toImage(shown));
        testsupport::saveScreenshot(dialog, QStringLiteral("FrmShades"));
        click(dialog, QStringLiteral("CmdOK"));
    });
    EXPECT_EQ(FrmShades::run(m_engine, m_dialogs), kOk);
    EXPECT_EQ(m_engine.planes().image.at(5, 5), shown.at(5, 5));
    EXPECT_EQ(m_engine.planes().image.at(6, 5), m_icon.image.at(6, 5));
    EXPECT_EQ(m_engine.planes().mask, icon::Plane(icon::kBlack));
    expectOneStep();

    m_engine.loadIcon(m_icon);
    m_dialogs.onModal([](QDialog& dialog) { click(dialog, QStringLiteral("CmdCancel")); });
    EXPECT_EQ(FrmShades::run(m_engine, m_dialogs), kCancelled);
    expectUntouched();
}

} // namespace
