#include "browser/FileOperations.h"
#include "browser/RenameRules.h"
#include "browser/Trash.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

// A temporary folder of the test's own, removed at the end.
class FileCommands : public ::testing::Test {
protected:
    void SetUp() override {
        char pattern[] = "/tmp/orvanne-files-XXXXXX";
        ASSERT_NE(::mkdtemp(pattern), nullptr);
        m_dir = pattern;
        // The user's trash lies in the test's folder, made by the program when missing.
        m_data = m_dir / "data";
        const char* before = std::getenv("XDG_DATA_HOME");
        m_oldData = before ? std::optional<std::string>(before) : std::nullopt;
        ::setenv("XDG_DATA_HOME", m_data.c_str(), 1);
    }
    void TearDown() override {
        if (m_oldData)
            ::setenv("XDG_DATA_HOME", m_oldData->c_str(), 1);
        else
            ::unsetenv("XDG_DATA_HOME");
        std::error_code ignored;
        fs::permissions(m_dir / "fermé", fs::perms::owner_all, ignored);
        fs::remove_all(m_dir, ignored);
    }
    fs::path write(const fs::path& name, const std::string& bytes) {
        const fs::path path = m_dir / name;
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
    static std::string read(const fs::path& path) {
        std::ifstream in(path, std::ios::binary);
        std::ostringstream bytes;
        bytes << in.rdbuf();
        return bytes.str();
    }
    // A folder the program may not write into: as root, the kernel's own /sys.
    fs::path lockedFolder() {
        if (::geteuid() == 0)
            return "/sys";
        const fs::path folder = m_dir / "fermé";
        fs::create_directory(folder);
        fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec);
        return folder;
    }

    fs::path m_dir;
    fs::path m_data;
    std::optional<std::string> m_oldData;
};

TEST_F(FileCommands, ACopyReplacesTheTargetWholeOrRefusesAndLeavesNothingBehind) {
    const fs::path source = write("source.ico", std::string(100000, 'a'));
    const fs::path target = write("cible.ico", "ancienne");
    ASSERT_TRUE(browser::copyFile(source, target).ok());
    EXPECT_EQ(read(target), read(source));

    // Refusals the user can do something about, and their French texts.
    const browser::FileResult self = browser::copyFile(source, m_dir / "." / "source.ico");
    EXPECT_EQ(self.error, browser::kSameFile);
    EXPECT_TRUE(browser::isRefusal(self.error));
    const browser::FileResult locked = browser::copyFile(source, lockedFolder() / "x.ico");
    EXPECT_TRUE(browser::isRefusal(locked.error)) << browser::errorText(locked.error).toStdString();
    EXPECT_EQ(browser::errorText(EACCES), QStringLiteral("Permission refusée."));

    // Other failures are not refusals: they are reported with the system's reason.
    const browser::FileResult missing = browser::copyFile(m_dir / "absent.ico", target);
    EXPECT_EQ(missing.error, ENOENT);
    EXPECT_FALSE(browser::isRefusal(missing.error));
    EXPECT_EQ(browser::copyFile("/dev/null", m_dir / "nul.ico").error, browser::kNotRegular);
    EXPECT_EQ(browser::copyFile(source, m_dir).error, EISDIR);
    EXPECT_EQ(read(target), read(source)) << "a failed copy leaves the old file";
    for (const auto& entry : fs::directory_iterator(m_dir))
        EXPECT_NE(entry.path().filename().native()[0], '.') << "no half-written file is left";
}

TEST_F(FileCommands, NamesThatAreNotUtf8AreCopiedRenamedAndTrashedByTheirBytes) {
    const fs::path odd = write("ic\xF4ne.ico", "octets");
    const fs::path copy = m_dir / "copie\xE9.ico";
    ASSERT_TRUE(browser::copyFile(odd, copy).ok());
    EXPECT_EQ(read(copy), "octets");
    const fs::path renamed = m_dir / "renomm\xE9.ico";
    ASSERT_TRUE(browser::renameFile(copy, renamed).ok());
    EXPECT_TRUE(fs::exists(renamed));
    const browser::TrashResult trashed = browser::moveToTrash(odd);
    ASSERT_EQ(trashed.kind, browser::TrashResult::Kind::Trashed);
    EXPECT_EQ(trashed.trashedFile, m_data / "Trash/files/ic\xF4ne.ico");
}

TEST_F(FileCommands, ARenameNeverReplacesAnExistingFile) {
    const fs::path old = write("vieux.ico", "vieux");
    const fs::path other = write("autre.ico", "autre");
    EXPECT_EQ(browser::renameFile(old, other).error, EEXIST);
    EXPECT_EQ(browser::renameFile(old, old).error, EEXIST);
    EXPECT_EQ(read(other), "autre");
    EXPECT_EQ(browser::renameFile(m_dir / "absent.ico", m_dir / "x.ico").error, ENOENT);
    ASSERT_TRUE(browser::renameFile(old, m_dir / "neuf.ico").ok());
    EXPECT_FALSE(fs::exists(old));
    EXPECT_EQ(read(m_dir / "neuf.ico"), "vieux");
}

TEST(RenameRules, TheOldNameIsThePathAfterItsFirstSlashAndIcoIsAppendedCaseSensitively) {
    const browser::RenameParts parts = browser::renameParts("/icones/x.ico");
    EXPECT_EQ(parts.folder, "/");
    EXPECT_EQ(parts.oldName, "icones/x.ico");
    const struct {
        const char* typed;
        const char* kept;
    } names[] = {{"neuf", "neuf.ico"},
                 {"X.ICO", "X.ICO.ico"},
                 {"x.ico", "x.ico"},
                 {"x.Ico", "x.Ico.ico"},
                 {"icones/y.ico", "icones/y.ico"}};
    for (const auto& n : names)
        EXPECT_EQ(browser::withIcoExtension(QString::fromUtf8(n.typed)), QString::fromUtf8(n.kept))
            << n.typed;
}

TEST(RenameRules, TheTargetKeepsTheBytesOfTheFoldersTheNewNameKeeps) {
    const browser::RenameParts parts = browser::renameParts("/home/dossier\xFF/x.ico");
    const QString shown = parts.oldNameText();
    const QString shownFolders = shown.left(shown.lastIndexOf(QLatin1Char('/')) + 1);
    EXPECT_EQ(browser::renameTarget(parts, shownFolders + QStringLiteral("é.ico")),
              fs::path("/home/dossier\xFF/\xC3\xA9.ico"));
    EXPECT_EQ(browser::renameTarget(parts, QStringLiteral("tmp/y.ico")), fs::path("/tmp/y.ico"));
}

TEST_F(FileCommands, TheTrashIsMadeWhenMissingAndKeepsANoteOfWhereEachFileCameFrom) {
    const fs::path first = write("un fichier.ico", "1");
    ASSERT_FALSE(fs::exists(m_data));
    const browser::TrashResult trashed = browser::moveToTrash(first);
    ASSERT_EQ(trashed.kind, browser::TrashResult::Kind::Trashed);
    EXPECT_FALSE(fs::exists(first));
    EXPECT_EQ(read(m_data / "Trash/files/un fichier.ico"), "1");
    const std::string note = read(m_data / "Trash/info/un fichier.ico.trashinfo");
    EXPECT_EQ(note.rfind("[Trash Info]\nPath=" + m_dir.native() + "/un%20fichier.ico\n", 0), 0u)
        << note;
    EXPECT_NE(note.find("\nDeletionDate=20"), std::string::npos) << note;

    // A second file of the same name gets a name of its own.
    const fs::path second = write("un fichier.ico", "2");
    ASSERT_EQ(browser::moveToTrash(second).kind, browser::TrashResult::Kind::Trashed);
    EXPECT_EQ(read(m_data / "Trash/files/un fichier.2.ico"), "2");
    EXPECT_TRUE(fs::exists(m_data / "Trash/info/un fichier.2.ico.trashinfo"));
    EXPECT_EQ(read(m_data / "Trash/files/un fichier.ico"), "1");
}

TEST_F(FileCommands, AFileThatCannotGoToTheTrashStaysAndIsExplained) {
    const browser::TrashResult missing = browser::moveToTrash(m_dir / "absent.ico");
    EXPECT_EQ(missing.kind, browser::TrashResult::Kind::Failed);
    EXPECT_EQ(missing.error, ENOENT);
    EXPECT_EQ(browser::trashFailureText(QStringLiteral("absent.ico"), missing),
              QStringLiteral("« absent.ico » n'a pas pu être mis à la corbeille.\nFichier ou "
                             "dossier introuvable.\nLe fichier reste à sa place."));
    // A disk whose top cannot take a trash folder.
    const browser::TrashResult noTrash{browser::TrashResult::Kind::NoTrash, EROFS, {}};
    EXPECT_EQ(browser::trashFailureText(QStringLiteral("x.ico"), noTrash),
              QStringLiteral("« x.ico » n'a pas pu être mis à la corbeille : son disque n'a pas "
                             "de corbeille utilisable.\nLe disque est en lecture seule.\nLe "
                             "fichier reste à sa place."));
}

TEST_F(FileCommands, AFileOnAnotherDiskGoesToThatDisksOwnTrash) {
    // /dev/shm is a disk of its own on most machines; skip where it is not.
    struct stat shm {
    }, data{};
    fs::create_directories(m_data);
    if (::stat("/dev/shm", &shm) != 0 || ::stat(m_data.c_str(), &data) != 0 ||
        shm.st_dev == data.st_dev || ::access("/dev/shm", W_OK) != 0)
        GTEST_SKIP() << "no second writable disk";
    char pattern[] = "/dev/shm/orvanne-XXXXXX";
    ASSERT_NE(::mkdtemp(pattern), nullptr);
    const fs::path folder = pattern;
    const fs::path file = folder / "loin.ico";
    std::ofstream(file) << "loin";
    const fs::path ownTrash = fs::path("/dev/shm") / (".Trash-" + std::to_string(::getuid()));
    const bool trashExisted = fs::exists(ownTrash);
    const browser::TrashResult trashed = browser::moveToTrash(file);
    EXPECT_EQ(trashed.kind, browser::TrashResult::Kind::Trashed);
    EXPECT_FALSE(fs::exists(file));
    EXPECT_EQ(trashed.trashedFile.parent_path().parent_path().parent_path(), "/dev/shm");
    const fs::path noteFile = trashed.trashedFile.parent_path().parent_path() / "info" /
                              (trashed.trashedFile.filename().native() + ".trashinfo");
    const std::string note = read(noteFile);
    EXPECT_NE(note.find("\nPath=" + folder.filename().native() + "/loin.ico\n"), std::string::npos)
        << "a disk's trash notes paths from the disk's top: " << note;
    std::error_code ignored;
    fs::remove(trashed.trashedFile, ignored);
    fs::remove(noteFile, ignored);
    fs::remove_all(folder, ignored);
    if (!trashExisted)
        fs::remove_all(ownTrash, ignored);
}

} // namespace
