// The PE reader (icon groups of .exe, .dll and 32-bit .icl files) on any bytes.
#include "fuzz/ContainerCheck.h"
#include "icon/PeReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span<const std::uint8_t> bytes(data, size);
    fuzzcheck::checkIcons(bytes, icon::readPeIcons(bytes));
    fuzzcheck::checkSource(bytes);
    return 0;
}
