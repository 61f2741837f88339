#include "icon/FileBytes.h"
#include "shell/IniText.h"
#include "shell/Settings.h"
#include "tests/support/FailingWrites.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

using shell::Settings;
namespace keys = shell::keys;

class SettingsStoreTest : public ::testing::Test {
protected:
    void SetUp() override {
        Settings().deleteAll();
        QDir().mkpath(QFileInfo(settings.fileName()).absolutePath());
        removeSetAside();
        Settings::takeNotice();
    }
    void TearDown() override {
        Settings().deleteAll();
        removeSetAside();
    }
    void writeRaw(const QByteArray& text) {
        QFile file(settings.fileName());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QStringList setAside() const {
        const QFileInfo store(settings.fileName());
        return QDir(store.absolutePath())
            .entryList({store.fileName() + QStringLiteral(".mis-de-côté-*")},
                       QDir::Files | QDir::System);
    }
    void removeSetAside() {
        const QFileInfo store(settings.fileName());
        for (const QString& name : setAside())
            QFile::remove(store.absolutePath() + QLatin1Char('/') + name);
    }
    Settings settings;
};

// The program writes only text, so nothing in the file is ever taken for a serialized type: a
// hostile value gives its default and the rest of the file still reads.
TEST_F(SettingsStoreTest, HostileValuesGiveTheirDefaultAndNothingElseChanges) {
    const QByteArray nested =
        QByteArray("@Variant(").repeated(20000) + QByteArray(")").repeated(20000);
    const struct {
        QByteArray stored;
        QString expected;
    } cases[] = {
        {nested, QStringLiteral("défaut")},
        {"@Variant(\\0\\0\\0\\x7f\\0\\0\\0\\nQByteArray)", QStringLiteral("défaut")},
        {"@ByteArray(abc)", QStringLiteral("défaut")},
        {"\"pas fermé", QStringLiteral("défaut")},
        {"@@au début", QStringLiteral("@au début")},
        {"\"a, b \\\"c\\\" \\\\ d\"", QStringLiteral("a, b \"c\" \\ d")},
        {"Oui", QStringLiteral("Oui")},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.stored.left(40).toStdString());
        writeRaw("[Conseils%20du%20jour]\nConseil%20au%20d%E9marrage=" + c.stored +
                 "\n[Avertissement]\nAffichage=Non\n");
        EXPECT_EQ(settings.read(keys::kTipsAtStart, QStringLiteral("défaut")), c.expected);
        EXPECT_EQ(settings.read(keys::kDepthWarning), QStringLiteral("Non"));
    }
}

TEST_F(SettingsStoreTest, AFileWrittenByQSettingsReadsTheSameAndBackAgain) {
    {
        QSettings qt(settings.fileName(), QSettings::IniFormat);
        qt.setValue(QStringLiteral("Rappel de la dernière icône chargée ou sauvée/Nom de l'icône"),
                    QStringLiteral("/tmp/a, b/é « c ».ico"));
        qt.setValue(QStringLiteral("Couleurs de l'interface/Visualisation, dossiers, etc."),
                    QStringLiteral("13816320"));
    }
    EXPECT_EQ(settings.read(keys::kLastIcon), QStringLiteral("/tmp/a, b/é « c ».ico"));
    EXPECT_EQ(settings.read(keys::kViewing), QStringLiteral("13816320"));
    const QString tricky = QStringLiteral("@x \"y\"\\z\nligne, ; # [s] =");
    ASSERT_TRUE(settings.save(keys::kTipsAtStart, tricky));
    QSettings qt(settings.fileName(), QSettings::IniFormat);
    EXPECT_EQ(qt.value(QStringLiteral("Conseils du jour/Conseil au démarrage")).toString(), tricky);
    EXPECT_EQ(settings.read(keys::kTipsAtStart), tricky);
    EXPECT_EQ(settings.read(keys::kLastIcon), QStringLiteral("/tmp/a, b/é « c ».ico"));
}

// A store the program cannot use (far too large, damaged, not a file at all) is renamed beside
// itself with a notice, and the program goes on with its defaults and a fresh store.
TEST_F(SettingsStoreTest, AnUnusableStoreIsSetAsideWithANotice) {
    const struct {
        const char* what;
        std::function<void()> make;
    } cases[] = {
        {"trop volumineux",
         [this] {
             writeRaw("[Avertissement]\nAffichage=Non\n" + QByteArray(400 * 1024, ';'));
         }},
        {"est endommagé",
         [this] {
             writeRaw("[Avertissement]\nAffichage=Non\n\xff\xfe\x00");
         }},
        {"n'est pas un fichier ordinaire",
         [this] {
             ASSERT_EQ(::mkfifo(QFile::encodeName(settings.fileName()).constData(), 0600), 0);
         }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        c.make();
        EXPECT_EQ(settings.read(keys::kDepthWarning, QStringLiteral("Oui")), QStringLiteral("Oui"));
        const std::optional<QString> notice = Settings::takeNotice();
        ASSERT_TRUE(notice);
        EXPECT_TRUE(notice->contains(QString::fromUtf8(c.what))) << notice->toStdString();
        EXPECT_TRUE(notice->contains(QStringLiteral("réglages par défaut")));
        EXPECT_FALSE(Settings::takeNotice()) << "said once";
        EXPECT_EQ(setAside().size(), 1);
        EXPECT_FALSE(QFileInfo::exists(settings.fileName()));
        EXPECT_TRUE(settings.saveFlag(keys::kDepthWarning, false));
        EXPECT_EQ(settings.read(keys::kDepthWarning), QStringLiteral("Non"));
        Settings().deleteAll();
        removeSetAside();
    }
}

TEST_F(SettingsStoreTest, ChangesByAnotherWriterAreSeenAndAFailedSaveChangesNothing) {
    ASSERT_TRUE(settings.saveFlag(keys::kHelpBubbles, true));
    // Another instance rewrites the file (a different size, so the change shows at once).
    writeRaw("[Affichage%20des%20info-bulles]\nValeur=\"Non\"\n\n[Avertissement]\nAffichage=Non\n");
    EXPECT_EQ(settings.read(keys::kHelpBubbles), QStringLiteral("Non"));

    const QByteArray before = [&] {
        QFile f(settings.fileName());
        f.open(QIODevice::ReadOnly);
        return f.readAll();
    }();
    {
        testsupport::FailingWrites full(10);
        EXPECT_FALSE(settings.saveFlag(keys::kTipsAtStart, false));
    }
    QFile after(settings.fileName());
    ASSERT_TRUE(after.open(QIODevice::ReadOnly));
    EXPECT_EQ(after.readAll(), before);
}

TEST(IniText, WhatIsFormattedParsesBackExactly) {
    shell::IniSections sections;
    const QString names[] = {QStringLiteral("Couleurs de l'interface"), QStringLiteral("a/b=c[d]%"),
                             QStringLiteral("日本 ®")};
    const QString values[] = {QStringLiteral(""), QStringLiteral("  espaces  "),
                              QStringLiteral("\"\\\n\r\t\x01"), QStringLiteral("@Variant(x)"),
                              QStringLiteral("é, «»")};
    for (const QString& section : names)
        for (const QString& value : values)
            shell::setValue(sections, section, value + QStringLiteral("clé"), value);
    const shell::IniSections back = shell::parseIni(QString::fromUtf8(shell::formatIni(sections)));
    ASSERT_EQ(back.size(), sections.size());
    for (std::size_t i = 0; i < back.size(); ++i) {
        EXPECT_EQ(back[i].name, sections[i].name);
        EXPECT_EQ(back[i].values, sections[i].values);
    }
}

} // namespace
