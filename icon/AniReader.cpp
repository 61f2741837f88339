#include "icon/AniReader.h"

#include "icon/ByteReader.h"

#include <algorithm>

namespace icon {

namespace {

constexpr std::size_t kChunkHeader = 8;
constexpr std::size_t kAnihSize = 36;

constexpr std::uint32_t fourcc(const char (&id)[5]) {
    return static_cast<std::uint32_t>(static_cast<std::uint8_t>(id[0])) |
           static_cast<std::uint32_t>(static_cast<std::uint8_t>(id[1])) << 8 |
           static_cast<std::uint32_t>(static_cast<std::uint8_t>(id[2])) << 16 |
           static_cast<std::uint32_t>(static_cast<std::uint8_t>(id[3])) << 24;
}

// Chunks are padded to an even length.
std::size_t nextChunk(std::size_t dataStart, std::size_t size) {
    return dataStart + size + (size % 2);
}

// Reads the "icon" chunks of a "LIST fram" whose content starts at `at`. Lists often say less
// than they hold, so "icon" chunks that follow on past the list's end are still its frames, as
// long as they lie in the file. Returns where the last chunk read ends.
std::size_t readFrames(const ByteReader& r, std::size_t at, std::size_t listEnd,
                       std::vector<IconResource>& frames, std::size_t& leftOut) {
    std::size_t end = at;
    while (r.contains(at, kChunkHeader)) {
        const std::uint32_t id = r.u32(at);
        const std::size_t size = r.u32(at + 4);
        if ((at >= listEnd && id != fourcc("icon")) || !r.contains(at + kChunkHeader, size))
            break;
        if (id == fourcc("icon") && frames.size() == kMaxIconsInFile)
            ++leftOut;
        else if (id == fourcc("icon")) {
            IconResource frame;
            frame.form = IconResource::Form::Embedded;
            frame.offset = at + kChunkHeader;
            frame.size = size;
            frames.push_back(frame);
        }
        end = at + kChunkHeader + size;
        at = nextChunk(at + kChunkHeader, size);
    }
    return end;
}

} // namespace

std::optional<std::vector<IconResource>> readAniIcons(std::span<const std::uint8_t> bytes) {
    std::size_t leftOut = 0;
    return readAniIcons(bytes, leftOut);
}

std::optional<std::vector<IconResource>> readAniIcons(std::span<const std::uint8_t> bytes,
                                                      std::size_t& leftOut) {
    const ByteReader r(bytes);
    if (r.u32(0) != fourcc("RIFF") || r.u32(8) != fourcc("ACON") || r.failed())
        return std::nullopt;
    // The RIFF size is not trusted: the chunks are walked to the end of the file.
    std::optional<std::size_t> declaredFrames;
    std::vector<IconResource> frames;
    std::size_t framesLeftOut = 0;
    bool framesRead = false;
    std::size_t at = 12;
    while (r.contains(at, kChunkHeader)) {
        const std::uint32_t id = r.u32(at);
        const std::size_t size = r.u32(at + 4);
        const std::size_t data = at + kChunkHeader;
        if (id == fourcc("anih") && !declaredFrames) {
            if (size < kAnihSize || !r.contains(data, kAnihSize))
                return std::nullopt;
            declaredFrames = r.u32(data + 4);
        } else if (id == fourcc("LIST") && r.u32(data) == fourcc("fram") && !framesRead) {
            framesRead = true;
            const std::size_t listEnd = std::min(data + size, r.size());
            const std::size_t end = readFrames(r, data + 4, listEnd, frames, framesLeftOut);
            // Resume after whatever the list really held.
            if (end > data + size) {
                at = end + (end % 2);
                continue;
            }
        }
        if (!r.contains(data, size))
            break; // a chunk running past the end: nothing more can be found
        at = nextChunk(data, size);
    }
    if (!declaredFrames)
        return std::nullopt;
    // Chunks beyond the declared number of frames are not frames.
    if (*declaredFrames > 0 && frames.size() + framesLeftOut > *declaredFrames) {
        const std::size_t over = frames.size() + framesLeftOut - *declaredFrames;
        const std::size_t fromLeftOut = std::min(over, framesLeftOut);
        framesLeftOut -= fromLeftOut;
        frames.resize(frames.size() - (over - fromLeftOut));
    }
    leftOut = framesLeftOut;
    return frames;
}

} // namespace icon
