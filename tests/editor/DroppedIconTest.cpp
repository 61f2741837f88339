#include "editor/DroppedIcon.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>

namespace {

namespace fs = std::filesystem;

class DroppedIcon : public ::testing::Test {
protected:
    void SetUp() override {
        m_folder =
            fs::temp_directory_path() / ("orvanne-drop-" + std::to_string(std::random_device{}()));
        fs::create_directories(m_folder / "dossier.ico");
        for (const char* name : {"a.ico", "B.ICO", "note.txt", "ico", "Été.Ico"})
            std::ofstream(m_folder / name) << "x";
        fs::create_symlink(m_folder / "a.ico", m_folder / "lien.ico");
        fs::create_symlink(m_folder / "absent.ico", m_folder / "casse.ico");
    }
    void TearDown() override { fs::remove_all(m_folder); }

    fs::path m_folder;
};

TEST_F(DroppedIcon, TheFirstIcoFileIsTakenAndEverythingElseRefused) {
    const fs::path& d = m_folder;
    struct Case {
        std::vector<fs::path> dropped;
        std::optional<fs::path> opened;
    };
    const Case cases[] = {
        {{d / "a.ico"}, d / "a.ico"},
        {{d / "B.ICO"}, d / "B.ICO"},                                    // any case
        {{d / "Été.Ico"}, d / "Été.Ico"},                                // names are bytes
        {{d / "lien.ico"}, d / "lien.ico"},                              // a link to an icon
        {{d / "note.txt", d / "dossier.ico", d / "B.ICO"}, d / "B.ICO"}, // the first icon
        {{d / "a.ico", d / "B.ICO"}, d / "a.ico"},                       // one icon at a time
        {{d / "dossier.ico"}, std::nullopt},                             // a folder
        {{d / "casse.ico"}, std::nullopt},                               // a broken link
        {{d / "absent.ico"}, std::nullopt},                              // gone before the drop
        {{d / "ico"}, std::nullopt},                                     // no extension
        {{d / "note.txt"}, std::nullopt},
        {{fs::path("a.ico")}, std::nullopt}, // not a full path
        {{}, std::nullopt},
    };
    for (const Case& c : cases) {
        const auto opened = editor::droppedIcon(c.dropped);
        EXPECT_EQ(opened, c.opened) << (c.dropped.empty() ? "" : c.dropped.front().string());
    }
}

} // namespace
