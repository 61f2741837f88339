// The PE reader (icon groups of .exe, .dll and 32-bit .icl files) on any bytes.
#include "fuzz/ContainerCheck.h"
#include "icon/PeReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span<const std::uint8_t> bytes(data, size);
    // Large executables are read once: through the source when it takes them as PE, else
    // by the PE reader alone.
    const std::optional<icon::IconSource> source = fuzzcheck::checkSource(bytes);
    if (source && source->kind() == icon::IconSource::Kind::Pe)
        fuzzcheck::checkIcons(bytes, *source);
    else
        fuzzcheck::checkIcons(bytes, icon::readPeIcons(bytes));
    return 0;
}
