// Writes the large inputs bench/cli_memory.sh runs orvanne-icons on:
//   big.ico  one 32×32 icon followed by padding, SIZE_MB in all
//   big.dll  four icon groups of a 60 MiB image each, padded to SIZE_MB
//   shared.dll  65,535 groups naming one 4 MiB image (the file a few MB)
//   sections.dll  65,535 sections
#include "icon/IcoWriter.h"
#include "icon/SafeSave.h"
#include "tests/icon/PeFiles.h"

#include <cstdio>
#include <cstdlib>
#include <string>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage : make_big_inputs DOSSIER TAILLE_MO\n");
        return 2;
    }
    const std::string folder = argv[1];
    const std::size_t size = std::strtoull(argv[2], nullptr, 10) * 1024 * 1024;

    const icon::IconFileBytes ico = icon::encodeIconFile(icon::IconPlanes::blank());
    std::vector<std::uint8_t> big(ico.begin(), ico.end());
    big.resize(size, 0x55);
    if (!icon::saveFileSafely(folder + "/big.ico", big, false))
        return 1;

    testfiles::PePlan plan;
    plan.groups = 4;
    plan.imageBytes = 60u * 1024 * 1024;
    std::vector<std::uint8_t> pe = testfiles::peFile(plan);
    pe.resize(std::max(pe.size(), size), 0);
    if (!icon::saveFileSafely(folder + "/big.dll", pe, false))
        return 1;

    plan.groups = 65535;
    plan.imageBytes = 4u * 1024 * 1024;
    if (!icon::saveFileSafely(folder + "/shared.dll", testfiles::peFile(plan), false))
        return 1;

    testfiles::PePlan sections;
    sections.sections = 65535;
    if (!icon::saveFileSafely(folder + "/sections.dll", testfiles::peFile(sections), false))
        return 1;
    return 0;
}
