#include "icon/NeWriter.h"
#include "icon/ByteReader.h"
#include "icon/IcoAssembly.h"
#include "icon/NeReader.h"
#include "tests/icon/IcoFiles.h"

#include <gtest/gtest.h>

using namespace icon;

namespace {

using Bytes = std::vector<std::uint8_t>;

// An ICO file of square 24-bit images of the given sides, each filled with its own colour.
Bytes icoFile(std::initializer_list<int> sides) {
    std::vector<icontest::Entry> entries;
    for (int side : sides) {
        icontest::BitmapPlan s;
        s.width = s.height = side;
        s.pixel = [side](int, int) {
            return static_cast<std::uint32_t>(side);
        };
        entries.push_back({side, side, 24, icontest::dib(s)});
    }
    return icontest::icoFile(entries);
}

} // namespace

TEST(NeWriter, LibraryReadsBackAsWritten) {
    const std::vector<LibraryIcon> icons = {
        {"Dossier", icoFile({16, 32, 48})},
        {"", icoFile({32})},
        {"FLECHE_HAUT", icoFile({48, 16})},
        {"", icoFile({32, 32})},
    };
    const auto library = writeNeIconLibrary(icons, "ORVANNE", "Icônes d'Orvanne");
    ASSERT_TRUE(library.has_value());
    const auto read = readNeIcons(*library);
    ASSERT_TRUE(read.has_value());
    ASSERT_EQ(read->size(), icons.size());
    const std::vector<std::string> names = {"DOSSIER", "", "FLECHE_HAUT", ""};
    const std::vector<int> ids = {-1, 2, -1, 4};
    for (std::size_t i = 0; i < icons.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ((*read)[i].name, names[i]);
        EXPECT_EQ((*read)[i].id, ids[i]);
        EXPECT_EQ(assembleIco(*library, (*read)[i]), icons[i].ico);
    }
    // Resources sit on the alignment unit the table announces.
    const ByteReader r(*library);
    const std::size_t ne = r.u32(0x3C);
    EXPECT_EQ(r.u16(ne), 0x454E);
    const int shift = r.u16(ne + r.u16(ne + 0x24));
    for (const IconResource& icon : *read)
        for (const GroupImage& image : icon.images)
            EXPECT_EQ(image.offset % (std::size_t{1} << shift), 0u);
    EXPECT_EQ(library->size() % (std::size_t{1} << shift), 0u);
}

TEST(NeWriter, RefusesWhatItCannotWrite) {
    struct Case {
        const char* what;
        std::vector<LibraryIcon> icons;
        std::string module;
    };
    Bytes truncated = icoFile({32});
    truncated.resize(100);
    const Case cases[] = {
        {"truncated ICO", {{"A", truncated}}, "LIB"},
        {"not an ICO", {{"A", Bytes(64, 7)}}, "LIB"},
        {"accented name", {{"Flèche", icoFile({16})}}, "LIB"},
        {"name with a space", {{"A B", icoFile({16})}}, "LIB"},
        {"empty module name", {{"A", icoFile({16})}}, ""},
    };
    for (const Case& c : cases)
        EXPECT_FALSE(writeNeIconLibrary(c.icons, c.module, "x").has_value()) << c.what;
    EXPECT_TRUE(writeNeIconLibrary({}, "LIB", "").has_value()) << "an empty library is valid";
}
