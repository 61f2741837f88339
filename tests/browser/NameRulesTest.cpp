#include "browser/NameRules.h"

#include <gtest/gtest.h>

namespace {

struct NameCase {
    const char* path;
    const char* proposed;
    const char* bmp;
    const char* folder;
};

TEST(NameRules, ProposeTheLast12CharactersAfterTheirFirstSlash) {
    const NameCase cases[] = {
        {"/home/léa/icones/x.ico", "x.ico", "x.bmp", "/home/léa/icones/"},
        {"/icones/abcdefghij.ico", "cdefghij.ico", "cdefghij.bmp", "/icones/ab"},
        {"/Icons/ABCDEFGHIJKLMN.ico", "GHIJKLMN.ico", "GHIJKLMN.bmp", "/Icons/ABCDEF"},
        {"/tmp/Folder.ico", "Folder.ico", "Folder.bmp", "/tmp/"},
        {"/home/moi/mes.icones/z.ico", "z.ico", "z.bmp", "/home/moi/mes.icones/"},
    };
    for (const auto& c : cases) {
        const QString path = QString::fromUtf8(c.path);
        EXPECT_EQ(browser::proposedName(path), QString::fromUtf8(c.proposed)) << c.path;
        EXPECT_EQ(browser::proposedBmpName(path), QString::fromUtf8(c.bmp)) << c.path;
        EXPECT_EQ(browser::folderBeforeName(path), QString::fromUtf8(c.folder)) << c.path;
    }
    EXPECT_EQ(browser::proposedBmpName(QString()), QStringLiteral("*.bmp"));
}

} // namespace
