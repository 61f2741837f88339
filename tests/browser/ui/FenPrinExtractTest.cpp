#include "icon/FileBytes.h"
#include "iconqt/Paths.h"
#include "tests/browser/ui/FenPrinFixture.h"

#include "browser/NameRules.h"
#include "browser/ui/FrmIcons.h"
#include "browser/ui/VisuBMP.h"
#include "iconqt/FrameImage.h"
#include "tests/support/TestData.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

namespace {

using browsertest::RealIconsFenPrin;
using platform::Asked;

class FenPrinExtract : public RealIconsFenPrin {
protected:
    // The picker first opens the program's own library: an icon library of the test data here.
    void SetUp() override {
        QDir().mkpath(m_data.path());
        QFile::copy(testsupport::testData("icl/psc_robanderson_test.icl"),
                    m_data.filePath(QStringLiteral("Orvanne®.icl")));
        qputenv("ORVANNE_DATA_DIR", QFile::encodeName(m_data.path()));
        RealIconsFenPrin::SetUp();
    }
    void TearDown() override {
        RealIconsFenPrin::TearDown();
        qunsetenv("ORVANNE_DATA_DIR");
    }
    // Runs the picker on a file, picking icon `number`, then OK or Cancel.
    void pick(const QString& file, int number, bool ok) {
        m_dialogs.onModal([=](QDialog& dialog) {
            auto& picker = dynamic_cast<browser::ui::FrmIcons&>(dialog);
            picker.openFile(testsupport::pathOf(file));
            picker.select(number);
            QTest::mouseClick(picker.findChild<platform::GradientButton*>(
                                  QLatin1String(ok ? "CmdOK" : "CmdCancel")),
                              Qt::LeftButton);
        });
        click("CmdDLL");
    }
    QString bmpPath(const char* name) { return m_dir.filePath(QString::fromLatin1(name)); }

    QTemporaryDir m_data;
};

TEST_F(FenPrinExtract, OkTakesTheSelectedIconOntoPicIconAndTheClipboard) {
    QGuiApplication::clipboard()->clear();
    EXPECT_EQ(m_window->pickerState().fileName(), QStringLiteral("Orvanne®.icl"));
    EXPECT_TRUE(button("CmdDLL")->isEnabled());
    EXPECT_FALSE(button("CmdIcoBmpDLL")->isEnabled()) << "nothing taken yet";
    const QString firefox = testsupport::testData("pe/penet_firefox_x64.exe");
    pick(firefox, 3, false);
    EXPECT_TRUE(m_window->takenIcon().isEmpty());
    EXPECT_TRUE(QGuiApplication::clipboard()->image().isNull());
    EXPECT_EQ(m_sound.clicks, 0);

    pick(firefox, 3, true);
    ASSERT_EQ(m_window->takenIcon().width(), 32);
    auto source = icon::IconSource::open(testsupport::pathOf(firefox));
    EXPECT_EQ(m_window->takenIcon(), icon::compose(source->planes(3), 0xC0C0C0, 1))
        << "icon n°3 is the source's third icon";
    EXPECT_EQ(QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32),
              iconqt::toImage(m_window->takenIcon()));
    EXPECT_EQ(m_sound.clicks, 1);
    EXPECT_TRUE(button("CmdIcoBmpDLL")->isEnabled());
    EXPECT_EQ(m_window->pickerState().file.filename(), "penet_firefox_x64.exe")
        << "the picker opens on it next time";

    m_dialogs.chooseFile(bmpPath("prise.bmp"));
    click("CmdIcoBmpDLL");
    const QImage written(bmpPath("prise.bmp"));
    EXPECT_EQ(written.convertToFormat(QImage::Format_RGB32), iconqt::toImage(m_window->takenIcon()));
}

TEST_F(FenPrinExtract, IcoToBmpWritesTheCentredIconAtTheViewSize) {
    m_window->openFolder(realIconFolder());
    const QString centred = iconqt::textFromPath(m_window->grid().centred()->file);
    m_dialogs.cancel();
    click("CmdIcoBmp");
    EXPECT_EQ(m_dialogs.last().kind, Asked::Kind::SaveFile);
    EXPECT_EQ(m_dialogs.last().file.fileName, browser::proposedBmpName(centred));
    EXPECT_TRUE(QDir(m_dir.path()).entryList({QStringLiteral("*.bmp")}).isEmpty());

    QDir().mkpath(bmpPath("images"));
    m_dialogs.chooseFile(bmpPath("images/petite.bmp"));
    click("CmdIcoBmp");
    EXPECT_EQ(QImage(bmpPath("images/petite.bmp")).size(), QSize(32, 32));

    click("CmdIco48");
    m_dialogs.chooseFile(bmpPath("images/grande.bmp"));
    click("CmdIcoBmp");
    EXPECT_EQ(m_dialogs.last().file.folder, bmpPath("images")) << "the last BMP folder";
    const QImage large(bmpPath("images/grande.bmp"));
    EXPECT_EQ(large.size(), QSize(48, 48));
    QFile file(bmpPath("images/grande.bmp"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(static_cast<unsigned char>(file.readAll().at(28)), 24) << "24 bits per pixel";

    m_dialogs.chooseFile(QStringLiteral("/nowhere/at/all.bmp"));
    click("CmdIcoBmp");
    EXPECT_EQ(m_dialogs.remaining(), 0) << "a failed write ends the command quietly";
}

TEST_F(FenPrinExtract, VoirUnBmpOpensTheViewer) {
    click("CmdVisuBmp");
    auto* viewer = m_window->findChild<browser::ui::VisuBMP*>();
    ASSERT_NE(viewer, nullptr);
    EXPECT_TRUE(viewer->isVisible());
    click("CmdVisuBmp");
    EXPECT_EQ(m_window->findChildren<browser::ui::VisuBMP*>().size(), 1);
}

} // namespace
