#include "icon/NeWriter.h"
#include "icon/ByteReader.h"
#include "icon/IcoAssembly.h"
#include "icon/NeReader.h"

#include <gtest/gtest.h>

using namespace icon;

namespace {

using Bytes = std::vector<std::uint8_t>;

void put16(Bytes& out, std::uint32_t v) {
    out.push_back(static_cast<std::uint8_t>(v));
    out.push_back(static_cast<std::uint8_t>(v >> 8));
}
void put32(Bytes& out, std::uint32_t v) {
    put16(out, v & 0xFFFF);
    put16(out, v >> 16);
}

// An ICO file of square 24-bit images of the given sides, each filled with its own colour.
Bytes icoFile(std::initializer_list<int> sides) {
    Bytes out;
    put16(out, 0);
    put16(out, 1);
    put16(out, static_cast<std::uint32_t>(sides.size()));
    std::vector<Bytes> images;
    for (int side : sides) {
        Bytes image;
        const std::uint32_t row = (static_cast<std::uint32_t>(side) * 3 + 3) / 4 * 4;
        const std::uint32_t maskRow = (static_cast<std::uint32_t>(side) + 31) / 32 * 4;
        for (std::uint32_t v :
             {40u, static_cast<std::uint32_t>(side), static_cast<std::uint32_t>(2 * side)})
            put32(image, v);
        put16(image, 1);
        put16(image, 24);
        for (int i = 0; i < 6; ++i)
            put32(image, 0);
        image.resize(image.size() + row * side, static_cast<std::uint8_t>(side));
        image.resize(image.size() + maskRow * side, 0);
        images.push_back(image);
    }
    std::uint32_t offset = 6 + 16 * static_cast<std::uint32_t>(sides.size());
    for (const Bytes& image : images) {
        const int side = static_cast<int>(ByteReader(image).u32(4));
        out.push_back(static_cast<std::uint8_t>(side));
        out.push_back(static_cast<std::uint8_t>(side));
        put16(out, 0);
        put16(out, 1);
        put16(out, 24);
        put32(out, static_cast<std::uint32_t>(image.size()));
        put32(out, offset);
        offset += static_cast<std::uint32_t>(image.size());
    }
    for (const Bytes& image : images)
        out.insert(out.end(), image.begin(), image.end());
    return out;
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
    const std::vector<QString> names = {"DOSSIER", "", "FLECHE_HAUT", ""};
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
        QString module;
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
