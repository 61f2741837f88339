#include "icon/AniReader.h"
#include "icon/IcoAssembly.h"

#include <gtest/gtest.h>

#include <string>

using namespace icon;

namespace {

using Bytes = std::vector<std::uint8_t>;

void put32(Bytes& out, std::uint32_t v) {
    for (int i = 0; i < 4; ++i)
        out.push_back(static_cast<std::uint8_t>(v >> (8 * i)));
}

Bytes chunk(const std::string& id, const Bytes& data, std::optional<std::uint32_t> size = {}) {
    Bytes out(id.begin(), id.end());
    put32(out, size.value_or(static_cast<std::uint32_t>(data.size())));
    out.insert(out.end(), data.begin(), data.end());
    if (data.size() % 2)
        out.push_back(0);
    return out;
}

Bytes cat(std::initializer_list<Bytes> parts) {
    Bytes out;
    for (const Bytes& p : parts)
        out.insert(out.end(), p.begin(), p.end());
    return out;
}

Bytes anih(std::uint32_t frames) {
    Bytes data;
    for (std::uint32_t v : {36u, frames, frames, 0u, 0u, 0u, 0u, 10u, 1u})
        put32(data, v);
    return chunk("anih", data);
}

// A tiny stand-in for an ICO file; the reader copies frames without decoding them.
Bytes frame(std::uint8_t tag, std::size_t extra = 0) {
    Bytes ico = {0, 0, 1, 0, 1, 0, tag};
    ico.resize(ico.size() + extra, tag);
    return ico;
}

Bytes list(const std::string& type, const Bytes& content, std::optional<std::uint32_t> size = {}) {
    Bytes data(type.begin(), type.end());
    data.insert(data.end(), content.begin(), content.end());
    return chunk("LIST", data, size);
}

Bytes riff(const Bytes& content, std::optional<std::uint32_t> size = {}) {
    Bytes data = {'A', 'C', 'O', 'N'};
    data.insert(data.end(), content.begin(), content.end());
    return chunk("RIFF", data, size);
}

const Bytes kFrames = cat({chunk("icon", frame(1)), chunk("icon", frame(2, 4))});

} // namespace

TEST(AniReader, ChunksInAnyOrderAndSizesThatLie) {
    struct Case {
        const char* what;
        Bytes file;
        int count; // -1: refused
    };
    const Bytes info = list("INFO", chunk("INAM", {'N', 'o', 'm', 0}));
    const Bytes seq = chunk("seq ", Bytes(8, 0));
    const Bytes rate = chunk("rate", Bytes(8, 1));
    const Case cases[] = {
        {"plain", riff(cat({anih(2), list("fram", kFrames)})), 2},
        {"anih after the frames", riff(cat({info, list("fram", kFrames), rate, seq, anih(2)})), 2},
        {"RIFF size zero", riff(cat({anih(2), list("fram", kFrames)}), 0), 2},
        {"RIFF size too large", riff(cat({anih(2), list("fram", kFrames)}), 0xFFFFFFF0), 2},
        {"LIST shorter than its frames", riff(cat({anih(2), list("fram", kFrames, 12), rate})), 2},
        {"LIST longer than the file", riff(cat({anih(2), list("fram", kFrames, 0x7FFFFFFF)})), 2},
        {"odd-sized frame then padding",
         riff(cat(
             {anih(2), list("fram", cat({chunk("icon", frame(3, 2)), chunk("icon", frame(4))}))})),
         2},
        {"more frames than anih says", riff(cat({anih(1), list("fram", kFrames)})), 1},
        {"no frame list", riff(cat({anih(2), rate})), 0},
        {"no anih", riff(list("fram", kFrames)), -1},
        {"short anih", riff(cat({chunk("anih", Bytes(8, 0)), list("fram", kFrames)})), -1},
        {"not ACON", cat({Bytes{'R', 'I', 'F', 'F', 4, 0, 0, 0, 'W', 'A', 'V', 'E'}}), -1},
        {"four bytes", Bytes{'R', 'I', 'F', 'F'}, -1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const auto frames = readAniIcons(c.file);
        if (c.count < 0) {
            EXPECT_FALSE(frames.has_value());
            continue;
        }
        ASSERT_TRUE(frames.has_value());
        EXPECT_EQ(static_cast<int>(frames->size()), c.count);
    }
    // The frames are the icon chunks, in order.
    const auto frames = readAniIcons(cases[0].file);
    ASSERT_TRUE(frames && frames->size() == 2);
    EXPECT_EQ(assembleIco(cases[0].file, (*frames)[0]), frame(1));
    EXPECT_EQ(assembleIco(cases[0].file, (*frames)[1]), frame(2, 4));
}
