#include "shell/Settings.h"
#include "shell/Preferences.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <gtest/gtest.h>

namespace {

using shell::ColourScheme;
using shell::Preferences;
using shell::SchemeColour;
using shell::Settings;
namespace keys = shell::keys;

class SettingsTest : public ::testing::Test {
protected:
    void SetUp() override { Settings().deleteAll(); }
    void TearDown() override { Settings().deleteAll(); }
    Settings settings;
};

TEST_F(SettingsTest, AFreshUserGetsEveryDefault) {
    const Preferences prefs = Preferences::load(settings);
    EXPECT_EQ(prefs.colours, ColourScheme::defaults());
    EXPECT_EQ(prefs.colours[SchemeColour::GradientStart], 0x808000u);
    EXPECT_EQ(prefs.colours[SchemeColour::Viewing], 0xD2D200u);
    EXPECT_FALSE(prefs.icons48);
    EXPECT_TRUE(prefs.helpBubbles);
    EXPECT_TRUE(prefs.tipsAtStart);
    EXPECT_TRUE(settings.readFlag(keys::kDepthWarning, QStringLiteral("Oui")));
    EXPECT_EQ(settings.read(keys::kLastIcon), QString());
    EXPECT_FALSE(QFileInfo::exists(settings.fileName())) << "reading writes nothing";
}

TEST_F(SettingsTest, TheStoreIsOneFileOfTheUsersConfigurationFolder) {
    settings.save(keys::kLastIcon, QStringLiteral("/tmp/x.ico"));
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    EXPECT_EQ(settings.fileName(), folder + QStringLiteral("/Orvanne®.ini"));
    EXPECT_TRUE(QFileInfo::exists(settings.fileName()));
}

TEST_F(SettingsTest, EveryKeyRoundTripsVerbatim) {
    const shell::SettingKey all[] = {keys::kGradientStart,
                                     keys::kGradientEnd,
                                     keys::kButtonText,
                                     keys::kButtonLightRead,
                                     keys::kButtonLightWritten,
                                     keys::kOtherText,
                                     keys::kWindowBackground,
                                     keys::kViewing,
                                     keys::kIcons48,
                                     keys::kHelpBubbles,
                                     keys::kTipsAtStart,
                                     keys::kDepthWarning,
                                     keys::kLastIcon};
    int n = 0;
    for (const auto& key : all)
        settings.save(key, QStringLiteral("valeur %1 é'«").arg(n++));
    n = 0;
    for (const auto& key : all)
        EXPECT_EQ(settings.read(key), QStringLiteral("valeur %1 é'«").arg(n++)) << key.key;

    // Any other reader of the file sees the same section and key names.
    QSettings raw(settings.fileName(), QSettings::IniFormat);
    EXPECT_EQ(raw.value(QStringLiteral("Conseils du jour/Conseil au démarrage")).toString(),
              QStringLiteral("valeur 10 é'«"));
    EXPECT_EQ(raw.value(QStringLiteral("Couleurs de l'interface/'Lumière' des boutons")).toString(),
              QStringLiteral("valeur 3 é'«"));
}

TEST_F(SettingsTest, FlagsAreOuiOrNonAndOnlyOuiMeansYes) {
    EXPECT_EQ(Settings::flagText(true), QStringLiteral("Oui"));
    EXPECT_EQ(Settings::flagText(false), QStringLiteral("Non"));
    const struct {
        const char* stored;
        bool yes;
    } cases[] = {{"Oui", true}, {"Non", false}, {"oui", false}, {"1", false},
                 {"", false},   {"OUI", false}, {"Oui ", false}};
    for (const auto& c : cases) {
        settings.save(keys::kHelpBubbles, QString::fromUtf8(c.stored));
        EXPECT_EQ(Preferences::load(settings).helpBubbles, c.yes) << c.stored;
    }
}

TEST_F(SettingsTest, TheGridFlagDefaultsToTheNumberOneWhichIsNotYes) {
    EXPECT_EQ(settings.read(keys::kIcons48, QStringLiteral("1")), QStringLiteral("1"));
    Preferences prefs = Preferences::load(settings);
    prefs.setIcons48(settings, true);
    EXPECT_EQ(settings.read(keys::kIcons48), QStringLiteral("Oui"));
    EXPECT_TRUE(Preferences::load(settings).icons48);
    prefs.setIcons48(settings, false);
    EXPECT_EQ(settings.read(keys::kIcons48), QStringLiteral("Non"));
}

TEST(ColourText, ReadsDecimalAndAmpersandHexAndFallsBackOnAnythingElse) {
    const icon::Colour fallback = 0x123456;
    const struct {
        const char* text;
        icon::Colour expected;
    } cases[] = {
        {"8421376", 0x808000},  {"&H808000", 0x808000},  {"&h808000", 0x808000},
        {"&HDEFF6C", 0xDEFF6C}, {"&HD2D200&", 0xD2D200}, {"0", 0x000000},
        {"16777215", 0xFFFFFF}, {" 255 ", 0x0000FF},     {"", fallback},
        {"bleu", fallback},     {"&H", fallback},        {"&HXYZ", fallback},
        {"12.5", fallback},     {"0x808000", fallback},  {"99999999999", fallback},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Settings::parseColour(QString::fromUtf8(c.text), fallback), c.expected) << c.text;
    EXPECT_EQ(Settings::colourText(0x808000), QStringLiteral("8421376"));
    EXPECT_EQ(Settings::colourText(0xDEFF6C), QStringLiteral("14614380"));
}

TEST_F(SettingsTest, AStoredColourThatIsNotANumberReadsAsTheDefault) {
    settings.save(keys::kWindowBackground, QStringLiteral("turquoise"));
    EXPECT_EQ(Preferences::load(settings).colours[SchemeColour::WindowBackground], 0x808000u);
}

TEST_F(SettingsTest, ChosenColoursComeBackExceptTheLightColour) {
    Preferences prefs = Preferences::load(settings);
    for (SchemeColour which : shell::kAllSchemeColours) {
        prefs.colours[which] = 0x010203u + static_cast<icon::Colour>(which);
        prefs.saveColour(settings, which);
    }
    const Preferences next = Preferences::load(settings);
    for (SchemeColour which : shell::kAllSchemeColours) {
        if (which == SchemeColour::ButtonLight)
            continue;
        EXPECT_EQ(next.colours[which], 0x010203u + static_cast<icon::Colour>(which));
    }
    // Written without the apostrophes, read with them: every start brings the default back.
    EXPECT_EQ(next.colours[SchemeColour::ButtonLight], 0xDEFF6Cu);
    EXPECT_EQ(settings.read(keys::kButtonLightWritten), QStringLiteral("66054"));
    EXPECT_EQ(settings.read(keys::kButtonLightRead), QString());
}

TEST_F(SettingsTest, ResetWritesTheSevenDefaultsAsDecimalText) {
    Preferences prefs = Preferences::load(settings);
    prefs.colours[SchemeColour::GradientStart] = 0xFF;
    prefs.resetColours(settings);
    EXPECT_EQ(prefs.colours, ColourScheme::defaults());
    EXPECT_EQ(settings.read(keys::kGradientStart), QStringLiteral("8421376"));
    EXPECT_EQ(settings.read(keys::kButtonLightWritten), QStringLiteral("14614380"));
    EXPECT_EQ(settings.read(keys::kViewing), QStringLiteral("13816320"));
    EXPECT_EQ(Preferences::load(settings).colours[SchemeColour::GradientStart], 0x808000u);
}

TEST_F(SettingsTest, DeletingRemovesTheFileAndTheNextStartIsAFreshUser) {
    Preferences prefs = Preferences::load(settings);
    prefs.setTipsAtStart(settings, false);
    prefs.setHelpBubbles(settings, false);
    ASSERT_TRUE(QFileInfo::exists(settings.fileName()));
    settings.deleteAll();
    EXPECT_FALSE(QFileInfo::exists(settings.fileName()));
    const Preferences fresh = Preferences::load(settings);
    EXPECT_TRUE(fresh.tipsAtStart);
    EXPECT_TRUE(fresh.helpBubbles);
    // Nothing to delete is not an error, and a later change writes a new entry.
    settings.deleteAll();
    prefs.setIcons48(settings, true);
    EXPECT_EQ(settings.read(keys::kIcons48), QStringLiteral("Oui"));
}

} // namespace
