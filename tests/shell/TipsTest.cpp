#include "shell/Tips.h"
#include "shell/DataFiles.h"
#include "tests/support/TestData.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

QString writeTips(const QTemporaryDir& dir, const QByteArray& content) {
    const QString path = dir.filePath(QStringLiteral("Conseils.txt"));
    testsupport::writeFile(path, content);
    return path;
}

TEST(Tips, TheFirstTipIsChosenFromTheRandomNumber) {
    QTemporaryDir dir;
    const QString path = writeTips(dir, "un\r\ndeux\r\ntrois\r\n");
    const struct {
        double random;
        int index;
    } cases[] = {{0.0, 1}, {0.33, 1}, {0.34, 2}, {0.66, 2}, {0.67, 3}, {0.9999, 3}};
    for (const auto& c : cases) {
        shell::Tips tips;
        ASSERT_TRUE(tips.load(path));
        tips.chooseFirst(c.random);
        EXPECT_EQ(tips.index(), c.index) << c.random;
    }
}

TEST(Tips, NextGoesRoundAndLinesAreKeptAsTheyAre) {
    QTemporaryDir dir;
    shell::Tips tips;
    ASSERT_TRUE(tips.load(writeTips(dir, "  premier, avec « guillemets »\ndeuxième\n\ntroisième")));
    EXPECT_EQ(tips.count(), 4) << "an empty line is a tip too";
    tips.chooseFirst(0.0);
    EXPECT_EQ(tips.current(), QStringLiteral("  premier, avec « guillemets »"));
    const QString first = tips.current();
    for (int i = 0; i < 4; ++i)
        tips.next();
    EXPECT_EQ(tips.current(), first);
    tips.next();
    EXPECT_EQ(tips.current(), QStringLiteral("deuxième"));
}

TEST(Tips, AMissingOrEmptyFileGivesNoTipAndNothingFails) {
    QTemporaryDir dir;
    const QString empty = writeTips(dir, "");
    for (const QString& path : {QStringLiteral("/nonexistent/Conseils.txt"), QString(), empty}) {
        shell::Tips tips;
        EXPECT_EQ(tips.load(path), path == empty) << path.toStdString();
        tips.chooseFirst(0.5);
        tips.next();
        EXPECT_TRUE(tips.isEmpty());
        EXPECT_EQ(tips.index(), 0);
        EXPECT_EQ(tips.current(), QString());
    }
    // A FIFO in its place is not waited on.
    const QString fifo = dir.filePath(QStringLiteral("fifo.txt"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    shell::Tips tips;
    EXPECT_FALSE(tips.load(fifo));
}

TEST(Tips, TheProgramsOwnTipsAreThereAndPlenty) {
    const QString path = shell::DataFiles::find(QStringLiteral("Conseils.txt"));
    ASSERT_FALSE(path.isEmpty());
    shell::Tips tips;
    ASSERT_TRUE(tips.load(path));
    EXPECT_GE(tips.count(), 25);
    for (int i = 0; i < tips.count(); ++i) {
        tips.next();
        EXPECT_GT(tips.current().size(), 20) << "tip " << tips.index();
    }
}

} // namespace
