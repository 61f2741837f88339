// The animated cursor reader (frames of .ani files) on any bytes.
#include "fuzz/ContainerCheck.h"
#include "icon/AniReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span<const std::uint8_t> bytes(data, size);
    fuzzcheck::checkIcons(bytes, icon::readAniIcons(bytes));
    fuzzcheck::checkSource(bytes);
    return 0;
}
