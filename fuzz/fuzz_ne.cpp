// The NE reader (icon groups of 16-bit .icl, .exe and .dll files) on any bytes.
#include "fuzz/ContainerCheck.h"
#include "icon/NeReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span<const std::uint8_t> bytes(data, size);
    fuzzcheck::checkIcons(bytes, icon::readNeIcons(bytes));
    fuzzcheck::checkSource(bytes);
    return 0;
}
