#include "editor/Document.h"
#include "icon/FileBytes.h"
#include "icon/IcoWriter.h"
#include "iconqt/Paths.h"
#include "tests/support/FailingWrites.h"
#include "tests/support/TestData.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <deque>

namespace {

using editor::Document;
using editor::DocumentHost;
using Reply = DocumentHost::Reply;

// Answers from a script and remembers what it was asked.
class FakeHost : public DocumentHost {
public:
    Reply askToSave(const QString& text) override {
        prompts << text;
        return take();
    }
    Reply warnSeveralImages(const QString& text) override {
        warnings << text;
        return take();
    }
    std::optional<QString> chooseOpenPath(const FileQuestion& q) override {
        opened.push_back(q);
        return takePath();
    }
    std::optional<QString> chooseSavePath(const FileQuestion& q) override {
        saved.push_back(q);
        return takePath();
    }
    QString lastIcon() override { return last; }
    void storeLastIcon(const QString& path) override { last = path; }
    void setBusy(bool) override {}

    Reply take() {
        const Reply r = replies.empty() ? Reply::Cancel : replies.front();
        if (!replies.empty())
            replies.pop_front();
        return r;
    }
    std::optional<QString> takePath() {
        if (paths.empty())
            return std::nullopt;
        const QString p = paths.front();
        paths.pop_front();
        return p.isEmpty() ? std::nullopt : std::optional<QString>(p);
    }

    std::deque<Reply> replies;
    std::deque<QString> paths; // an empty one cancels
    QStringList prompts, warnings;
    std::vector<FileQuestion> opened, saved;
    QString last;
};

class DocumentTest : public ::testing::Test {
protected:
    void draw() {
        m_engine.selectTool(editor::Tool::Pencil);
        m_engine.press(1, 55, 55);
        m_engine.release(1, 55, 55);
    }
    bool openHanded(const QString& path) {
        m_doc.handOver(path, editor::OpenRequest::Browser);
        return m_doc.OpenIcon();
    }

    QTemporaryDir m_dir;
    editor::IconEditor m_engine;
    FakeHost m_host;
    Document m_doc{m_engine, m_host};
};

TEST_F(DocumentTest, ThePromptAnswersDecideWhetherTheWorkGoesOn) {
    const QString target = m_dir.filePath(QStringLiteral("nouvelle.ico"));
    struct Case {
        Reply reply;
        QString savePath; // empty: the Save dialog is cancelled
        bool proceeds;
        bool stillModified;
    } cases[] = {
        {Reply::Cancel, {}, false, true},
        {Reply::No, {}, true, false},
        {Reply::Yes, {}, false, true},
        {Reply::Yes, target, true, false},
    };
    for (const Case& c : cases) {
        m_doc.NewIcon();
        draw();
        m_host.replies = {c.reply};
        m_host.paths = {c.savePath};
        m_host.saved.clear();
        EXPECT_EQ(m_doc.SavePrompt(), c.proceeds);
        EXPECT_EQ(m_engine.isModified(), c.stillModified);
        EXPECT_EQ(m_host.prompts.last(), QStringLiteral("Enregistrer l'icône en cours ?"));
        if (c.reply == Reply::Yes) {
            // A never-saved icon goes through Save As, proposing "Sans nom.ico".
            ASSERT_EQ(m_host.saved.size(), 1u);
            EXPECT_EQ(m_host.saved[0].fileName, QStringLiteral("Sans nom.ico"));
            EXPECT_EQ(m_host.saved[0].title, QStringLiteral("Orvanne® - Enregistrer sous..."));
        }
    }
    EXPECT_EQ(QFileInfo(target).size(), 3262);
    EXPECT_EQ(m_doc.caption(), QStringLiteral("Orvanne® - nouvelle.ico"));
    EXPECT_EQ(m_host.last, target);
    // Nothing changed since: no question.
    const int asked = static_cast<int>(m_host.prompts.size());
    EXPECT_TRUE(m_doc.SavePrompt());
    EXPECT_EQ(m_host.prompts.size(), asked);
}

TEST_F(DocumentTest, SavingOverAFileOfSeveralImagesWarnsAndCancelAsksForANewName) {
    const QString world = testsupport::copyValidIcon(QStringLiteral("qt_WORLD.ico"), m_dir.path());
    m_host.paths = {world};
    ASSERT_TRUE(m_doc.OpenIcon());
    EXPECT_EQ(m_host.opened[0].title, QStringLiteral("Orvanne® - Ouvrir"));
    EXPECT_EQ(m_host.opened[0].filter, QStringLiteral("Fichiers d'icônes (*.ico)|*.ico"));
    EXPECT_TRUE(m_doc.isMultiImageFile());
    EXPECT_EQ(m_doc.openFolder(), m_dir.path());
    EXPECT_EQ(m_host.last, world);
    EXPECT_EQ(m_engine.history().undoCount(), 1u);

    m_host.replies = {Reply::Cancel};
    m_host.paths = {QString()};
    EXPECT_FALSE(m_doc.save());
    ASSERT_EQ(m_host.warnings.size(), 1);
    EXPECT_EQ(m_host.warnings[0],
              QStringLiteral("Le fichier \"qt_WORLD.ico\" contient plusieurs icônes\r\n"
                             "Ce \"Enregistrer\" les autres icônes du fichier vont être écrasées"
                             "\r\n\r\nCliquez sur 'OK' pour continuer avec \"Enregistrer\"\r\n"
                             "Cliquez sur 'Annuler' pour \"Enregistrer sous...\""));
    ASSERT_EQ(m_host.saved.size(), 1u);
    EXPECT_EQ(m_host.saved[0].fileName, QStringLiteral("*.ico"));

    // OK writes over the file; its tail stays and it now counts as a single image.
    m_host.replies = {Reply::Ok};
    EXPECT_TRUE(m_doc.save());
    EXPECT_FALSE(m_doc.isMultiImageFile());
    EXPECT_EQ(QFileInfo(world).size(), 3310);
}

TEST_F(DocumentTest, AFileThatIsNotAPictureChangesNothing) {
    const QString bad = m_dir.filePath(QStringLiteral("court.ico"));
    testsupport::writeFile(bad, QByteArray("\0\0\1\0\1", 5));
    draw();
    const icon::IconPlanes before = m_engine.planes();
    m_host.paths = {bad};
    m_engine.setModified(false);
    EXPECT_FALSE(m_doc.OpenIcon());
    EXPECT_EQ(m_engine.planes(), before);
    EXPECT_EQ(m_doc.iconPath(), Document::kUntitled);
    EXPECT_TRUE(m_host.last.isEmpty());
}

TEST_F(DocumentTest, AWriteErrorKeepsTheDocumentAndStopsWhatAskedForTheSave) {
    draw();
    m_host.replies = {Reply::Yes};
    m_host.paths = {m_dir.filePath(QStringLiteral("absent/icône.ico"))};
    EXPECT_FALSE(m_doc.SavePrompt());
    EXPECT_TRUE(m_engine.isModified());
    EXPECT_EQ(m_doc.iconPath(), Document::kUntitled);
}

TEST_F(DocumentTest, ClosingANewIconRemembersSansNomAndItsRecallDoesNothing) {
    EXPECT_TRUE(m_doc.close());
    EXPECT_EQ(m_host.last, QStringLiteral("Sans nom"));
    m_doc.load();
    EXPECT_TRUE(m_doc.recallEnabled());
    EXPECT_FALSE(m_doc.recall());
    // The failed recall is used up: Open asks with its dialog again.
    m_host.paths = {QString()};
    EXPECT_FALSE(m_doc.OpenIcon());
    EXPECT_EQ(m_host.opened.size(), 1u);
}

TEST_F(DocumentTest, TheOpenKeywordIsFoundInAnyCaseAndThePathPutInProperCase) {
    const struct {
        const char* commandLine;
        const char* path; // nullptr: no open
    } cases[] = {
        {"/OPEN c:\\ICONS\\TEST.ICO", "C:\\Icons\\Test.Ico"},
        {"/open /home/moi/mes icônes/l'ÉTÉ.ico", "/Home/Moi/Mes Icônes/L'Été.Ico"},
        {"/Open icône2a.ico", "Icône2a.Ico"},
        {"/open", nullptr},
        {"/opentest.ico", nullptr},
        {"open /x.ico", nullptr},
    };
    for (const auto& c : cases) {
        const auto path = Document::openArgument(QString::fromUtf8(c.commandLine));
        if (c.path == nullptr)
            EXPECT_FALSE(path) << c.commandLine;
        else
            EXPECT_EQ(path, QString::fromUtf8(c.path)) << c.commandLine;
    }
}

TEST_F(DocumentTest, AProperCasedPathOpensTheFileThatDiffersOnlyInCase) {
    QDir(m_dir.path()).mkpath(QStringLiteral("mes icônes"));
    const QString real = m_dir.filePath(QStringLiteral("mes icônes/test.ico"));
    QFile::copy(testsupport::testData(QStringLiteral("ico/valid/moz_ico-size-32x32-24bpp.ico")),
                real);
    const QString handed = Document::properCase(real);
    ASSERT_FALSE(QFileInfo::exists(handed));
    EXPECT_EQ(Document::findIgnoringCase(handed), real);
    EXPECT_TRUE(Document::findIgnoringCase(m_dir.filePath(QStringLiteral("MES ICÔNES/autre.ico")))
                    .isEmpty());

    m_doc.handOver(handed, editor::OpenRequest::CommandLine);
    ASSERT_TRUE(m_doc.OpenIcon());
    EXPECT_TRUE(m_host.opened.empty());
    EXPECT_EQ(m_doc.iconPath(), real);
    EXPECT_EQ(m_doc.caption(), QStringLiteral("Orvanne® - Test.Ico"));
    EXPECT_FALSE(m_doc.hasOpenRequest());
}

} // namespace

namespace {

using DocumentSaveFailure = DocumentTest;

// A disk that fills up during "Enregistrer" or "Enregistrer sous...": the file on disk, the
// document's path, caption and Modified state all stay as they were.
TEST_F(DocumentSaveFailure, AFullDiskSavesNothingAndTheDocumentStaysModified) {
    const QString path = m_dir.filePath(QStringLiteral("icone.ico"));
    ASSERT_TRUE(icon::writeIconFile(iconqt::pathFromText(path), icon::IconPlanes::blank()).ok());
    ASSERT_TRUE(openHanded(path));
    const std::vector<std::uint8_t> before = icon::readFileBytes(iconqt::pathFromText(path)).value();
    const QString caption = m_doc.caption();
    draw();
    {
        testsupport::FailingWrites full(1000);
        EXPECT_FALSE(m_doc.save());
        m_host.paths = {m_dir.filePath(QStringLiteral("autre.ico"))};
        EXPECT_FALSE(m_doc.saveAs());
    }
    EXPECT_EQ(icon::readFileBytes(iconqt::pathFromText(path)).value(), before);
    EXPECT_FALSE(QFile::exists(m_dir.filePath(QStringLiteral("autre.ico"))));
    EXPECT_EQ(m_doc.iconPath(), path);
    EXPECT_EQ(m_doc.caption(), caption);
    EXPECT_TRUE(m_engine.isModified());
    EXPECT_FALSE(m_doc.savedOk());
    EXPECT_EQ(m_host.last, path) << "the last icon stays the one opened";
}

// A file handed over by the browser under a name that is not valid text is opened and saved
// under that same name, not under the text shown for it.
TEST_F(DocumentSaveFailure, AFileNamedByBytesIsSavedUnderItsOwnName) {
    const std::filesystem::path file =
        iconqt::pathFromText(m_dir.path()) / std::string("bad\xff\xfe.ico");
    ASSERT_TRUE(icon::writeIconFile(file, icon::IconPlanes::blank()).ok());
    m_doc.handOver(file, editor::OpenRequest::Browser);
    ASSERT_TRUE(m_doc.OpenIcon());
    draw();
    ASSERT_TRUE(m_doc.save());
    EXPECT_EQ(m_doc.iconFile(), file);
    EXPECT_NE(icon::readFileBytes(file).value(),
              std::vector<std::uint8_t>(icon::encodeIconFile(icon::IconPlanes::blank()).begin(),
                                        icon::encodeIconFile(icon::IconPlanes::blank()).end()));
    const auto names = std::filesystem::directory_iterator(iconqt::pathFromText(m_dir.path()));
    EXPECT_EQ(std::distance(begin(names), end(names)), 1);
    std::filesystem::remove(file);
}

} // namespace
