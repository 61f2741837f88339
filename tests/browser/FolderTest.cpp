#include "browser/FolderScan.h"
#include "browser/FolderTree.h"
#include "browser/Volumes.h"
#include "icon/FileBytes.h"
#include "iconqt/Paths.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

void touch(const QString& path) {
    QFile file(path);
    file.open(QIODevice::WriteOnly);
}

TEST(FolderScan, ListsIcoFilesInAnyCaseByNameAndShowsThemLowerCased) {
    QTemporaryDir dir;
    const QString base = dir.filePath(QStringLiteral("Mes Icônes"));
    QDir().mkpath(base);
    for (const char* name :
         {"b.ico", "A.ICO", "c.Ico", "notes.txt", "ico", ".ico.bak", "Zèbre.ico"})
        touch(base + QLatin1Char('/') + QString::fromUtf8(name));
    QDir().mkpath(base + QStringLiteral("/dossier.ico")); // a folder is not an icon
    QFile::link(base + QStringLiteral("/b.ico"), base + QStringLiteral("/lien.ico"));

    const auto entries = browser::scanIconFolder(base);
    ASSERT_TRUE(entries);
    QStringList files, shown;
    for (const auto& e : *entries) {
        files << QFileInfo(e.file).fileName();
        shown << e.shown;
    }
    EXPECT_EQ(files,
              (QStringList{"A.ICO", "b.ico", "c.Ico", "lien.ico", QStringLiteral("Zèbre.ico")}));
    EXPECT_EQ(shown.first(), (base + QStringLiteral("/a.ico")).toLower());
    EXPECT_TRUE(shown.first().contains(QStringLiteral("mes icônes/")));
    EXPECT_EQ((*entries)[0].file, iconqt::pathFromText(base + QStringLiteral("/A.ICO")));
}

TEST(FolderScan, AMissingFolderIsNotAnEmptyOne) {
    QTemporaryDir dir;
    EXPECT_FALSE(browser::scanIconFolder(dir.filePath(QStringLiteral("absent"))));
    const auto empty = browser::scanIconFolder(dir.path());
    ASSERT_TRUE(empty);
    EXPECT_TRUE(empty->empty());
    EXPECT_EQ(browser::withTrailingSlash(QStringLiteral("/a")), QStringLiteral("/a/"));
    EXPECT_EQ(browser::withTrailingSlash(QStringLiteral("/")), QStringLiteral("/"));
}

TEST(FolderTree, OpenFoldersDownToTheCurrentThenItsSubfolders) {
    QTemporaryDir dir;
    const QString current = dir.filePath(QStringLiteral("haut/bas"));
    for (const char* sub : {"zeta", "Alpha", "beta", ".cache"})
        QDir().mkpath(current + QLatin1Char('/') + QString::fromLatin1(sub));
    const auto items = browser::folderItems(current);
    const int at = browser::currentItem(items);
    ASSERT_EQ(items.size(), static_cast<std::size_t>(at + 4));
    EXPECT_EQ(items[0].path, QStringLiteral("/"));
    EXPECT_EQ(items[static_cast<std::size_t>(at)].name, QStringLiteral("bas"));
    EXPECT_EQ(items[static_cast<std::size_t>(at)].path, current);
    EXPECT_EQ(items[static_cast<std::size_t>(at - 1)].name, QStringLiteral("haut"));
    EXPECT_EQ(items[static_cast<std::size_t>(at + 1)].name, QStringLiteral("Alpha"));
    EXPECT_EQ(items[static_cast<std::size_t>(at + 2)].name, QStringLiteral("beta"));
    EXPECT_EQ(items[static_cast<std::size_t>(at + 3)].name, QStringLiteral("zeta"));
    EXPECT_EQ(items[static_cast<std::size_t>(at + 3)].depth,
              items[static_cast<std::size_t>(at)].depth + 1);
    EXPECT_FALSE(items[static_cast<std::size_t>(at + 1)].open);
}

TEST(Volumes, TheRootComesFirstAndEveryFolderHasAVolume) {
    const auto volumes = browser::mountedVolumes();
    ASSERT_FALSE(volumes.empty());
    EXPECT_EQ(volumes.front().root, QStringLiteral("/"));
    for (const auto& v : volumes)
        EXPECT_FALSE(v.root.startsWith(QStringLiteral("/proc"))) << v.root.toStdString();
    const std::vector<browser::Volume> made{{"/", {}}, {"/home", "maison"}, {"/media/clé", {}}};
    EXPECT_EQ(browser::volumeOf(QStringLiteral("/home/ana/icônes"), made), QStringLiteral("/home"));
    EXPECT_EQ(browser::volumeOf(QStringLiteral("/homeless"), made), QStringLiteral("/"));
    EXPECT_EQ(browser::volumeOf(QStringLiteral("/media/clé"), made), QStringLiteral("/media/clé"));
    EXPECT_EQ(made[1].text(), QStringLiteral("/home [maison]"));
}

} // namespace
