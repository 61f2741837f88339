#include "icon/NeWriter.h"

#include "icon/ByteReader.h"
#include "icon/ByteWriter.h"
#include "icon/NeReader.h"
#include "icon/Text.h"

#include <algorithm>

namespace icon {

namespace {

constexpr std::size_t kNeHeaderAt = 0x80;
constexpr std::size_t kResourceTableAt = 0x40;   // from the NE header
constexpr std::uint16_t kResourceFlags = 0x1C30; // moveable, pure, discardable
constexpr std::size_t kMaxResources = 0x7FFF;

// A DOS program that ends at once with exit code 1: a library does not run under DOS.
constexpr std::uint8_t kDosStub[] = {0xB8, 0x01, 0x4C, 0xCD, 0x21};

// The writer, with Pascal strings: a length byte and the characters.
class Out : public ByteWriter {
public:
    void pascal(const std::string& text) {
        u8(static_cast<std::uint32_t>(text.size()));
        bytes.insert(bytes.end(), text.begin(), text.end());
    }
};

// One image of an ICO file, to become an RT_ICON resource.
struct Image {
    std::uint8_t entry[12] = {}; // width, height, colours, reserved, planes, bit count, size
    std::span<const std::uint8_t> data;
};

std::optional<std::vector<Image>> icoImages(const std::vector<std::uint8_t>& ico) {
    const ByteReader r(ico);
    const std::size_t count = r.u16(4);
    if (r.u16(0) != 0 || r.u16(2) != 1 || count == 0 || !r.contains(6, count * 16))
        return std::nullopt;
    std::vector<Image> images(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t e = 6 + i * 16;
        const std::span<const std::uint8_t> entry = r.slice(e, 12);
        std::copy(entry.begin(), entry.end(), images[i].entry);
        images[i].data = r.slice(r.u32(e + 12), r.u32(e + 8));
        if (images[i].data.empty())
            return std::nullopt;
    }
    return images;
}

std::optional<std::string> resourceName(const std::string& name) {
    if (name.empty() || name.size() > 255)
        return std::nullopt;
    std::string upper = name;
    for (char& c : upper) {
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
        if (!((c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_'))
            return std::nullopt;
    }
    return upper;
}

} // namespace

std::optional<std::vector<std::uint8_t>> writeNeIconLibrary(const std::vector<LibraryIcon>& icons,
                                                            const std::string& moduleName,
                                                            const std::string& description) {
    // Gather every image and every name first: nothing is written for a bad input.
    std::vector<std::vector<Image>> groups;
    std::vector<std::optional<std::string>> names;
    std::size_t imageCount = 0;
    for (const LibraryIcon& icon : icons) {
        std::optional<std::vector<Image>> images = icoImages(icon.ico);
        if (!images)
            return std::nullopt;
        imageCount += images->size();
        groups.push_back(std::move(*images));
        if (icon.name.empty()) {
            names.emplace_back();
        } else {
            std::optional<std::string> name = resourceName(icon.name);
            if (!name)
                return std::nullopt;
            names.push_back(name);
        }
    }
    const std::optional<std::string> module = resourceName(moduleName);
    if (!module || groups.size() > kMaxResources || imageCount > kMaxResources)
        return std::nullopt;

    Out out;
    // MZ header: the minimum for a loader to find the NE header at e_lfanew.
    out.u16(0x5A4D);
    out.u16(0x40 + sizeof kDosStub); // bytes in the last page
    out.u16(1);                      // pages
    out.u16(0);                      // relocations
    out.u16(4);                      // header paragraphs
    out.u16(0);                      // minimum extra paragraphs
    out.u16(0xFFFF);                 // maximum extra paragraphs
    out.u16(0);                      // SS
    out.u16(0xB8);                   // SP
    out.u16(0);                      // checksum
    out.u16(0);                      // IP
    out.u16(0);                      // CS
    out.u16(0x40);                   // relocation table
    out.padTo(0x3C);
    out.u32(kNeHeaderAt);
    out.append(kDosStub);
    out.padTo(kNeHeaderAt);

    const std::size_t ne = out.size();
    out.padTo(ne + kResourceTableAt);
    // Resource table: the alignment shift, one type record for the groups and one for the
    // icons, then the names.
    const std::size_t table = out.size();
    const int shift = 4;
    out.u16(shift);
    std::vector<std::size_t> groupEntries;
    std::vector<std::size_t> iconEntries;
    std::vector<std::size_t> nameFields;
    out.u16(kNeGroupIcon);
    out.u16(static_cast<std::uint32_t>(groups.size()));
    out.u32(0);
    for (std::size_t g = 0; g < groups.size(); ++g) {
        groupEntries.push_back(out.size());
        out.u32(0); // offset and length, set below
        out.u16(kResourceFlags);
        nameFields.push_back(out.size());
        out.u16(0x8000 | static_cast<std::uint32_t>(g + 1));
        out.u32(0);
    }
    out.u16(kNeIcon);
    out.u16(static_cast<std::uint32_t>(imageCount));
    out.u32(0);
    for (std::size_t i = 0; i < imageCount; ++i) {
        iconEntries.push_back(out.size());
        out.u32(0);
        out.u16(kResourceFlags);
        out.u16(0x8000 | static_cast<std::uint32_t>(i + 1));
        out.u32(0);
    }
    out.u16(0);
    for (std::size_t g = 0; g < groups.size(); ++g) {
        if (!names[g])
            continue;
        if (out.size() - table > 0x7FFF)
            return std::nullopt;
        out.at16(nameFields[g], static_cast<std::uint32_t>(out.size() - table));
        out.pascal(*names[g]);
    }
    out.u8(0);

    // Resident names (the module name, ordinal 0), no module references, no imported names,
    // an empty entry table.
    const std::size_t residentNames = out.size();
    out.pascal(*module);
    out.u16(0);
    out.u8(0);
    const std::size_t moduleRefs = out.size();
    const std::size_t importedNames = out.size();
    out.u8(0);
    const std::size_t entryTable = out.size();
    out.u16(0);
    const std::size_t entryTableEnd = out.size();
    // Non-resident names: the description, ordinal 0.
    const std::size_t nonResident = out.size();
    const std::string text = latin1FromUtf8(description).substr(0, 255);
    out.pascal(text);
    out.u16(0);
    out.u8(0);
    const std::size_t nonResidentEnd = out.size();
    if (nonResidentEnd - ne > 0xFFFF)
        return std::nullopt;

    // The resources, each at a multiple of the alignment unit.
    const std::size_t unit = std::size_t{1} << shift;
    const auto place = [&](std::size_t entry, std::span<const std::uint8_t> data) {
        out.padTo((out.size() + unit - 1) / unit * unit);
        const std::size_t units = (data.size() + unit - 1) / unit;
        if (out.size() / unit > 0xFFFF || units > 0xFFFF)
            return false;
        out.at16(entry, static_cast<std::uint32_t>(out.size() / unit));
        out.at16(entry + 2, static_cast<std::uint32_t>(units));
        out.append(data);
        return true;
    };
    std::size_t iconNumber = 0;
    for (std::size_t g = 0; g < groups.size(); ++g) {
        Out group;
        group.u16(0);
        group.u16(1);
        group.u16(static_cast<std::uint32_t>(groups[g].size()));
        for (const Image& image : groups[g]) {
            group.append(image.entry);
            group.u16(static_cast<std::uint32_t>(++iconNumber));
        }
        if (!place(groupEntries[g], group.bytes))
            return std::nullopt;
    }
    std::size_t i = 0;
    for (const std::vector<Image>& images : groups)
        for (const Image& image : images)
            if (!place(iconEntries[i++], image.data))
                return std::nullopt;
    out.padTo((out.size() + unit - 1) / unit * unit);

    // The NE header, now that every table has its place.
    Out header;
    header.u16(0x454E); // "NE"
    header.u8(5);       // linker version
    header.u8(0);
    header.u16(static_cast<std::uint32_t>(entryTable - ne));
    header.u16(static_cast<std::uint32_t>(entryTableEnd - entryTable));
    header.u32(0);      // checksum
    header.u16(0x8000); // a library module without data segment
    header.u16(0);      // automatic data segment
    header.u16(0);      // heap
    header.u16(0);      // stack
    header.u32(0);      // CS:IP
    header.u32(0);      // SS:SP
    header.u16(0);      // segments
    header.u16(0);      // module references
    header.u16(static_cast<std::uint32_t>(nonResidentEnd - nonResident));
    header.u16(static_cast<std::uint32_t>(table - ne)); // segment table (empty)
    header.u16(static_cast<std::uint32_t>(table - ne));
    header.u16(static_cast<std::uint32_t>(residentNames - ne));
    header.u16(static_cast<std::uint32_t>(moduleRefs - ne));
    header.u16(static_cast<std::uint32_t>(importedNames - ne));
    header.u32(static_cast<std::uint32_t>(nonResident));
    header.u16(0);     // movable entries
    header.u16(shift); // segment alignment shift
    header.u16(0);     // resource segments
    header.u8(2);      // Windows
    header.u8(0);
    header.u16(0); // fast-load area
    header.u16(0);
    header.u16(0);      // minimum code swap area
    header.u16(0x030A); // Windows 3.10
    std::copy(header.bytes.begin(), header.bytes.end(),
              out.bytes.begin() + static_cast<std::ptrdiff_t>(ne));
    return out.bytes;
}

} // namespace icon
