// Runs a fuzz target over the files (or the files of the folders) given on the command line,
// without libFuzzer: the regular build checks every seed this way, with its own compiler.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

int replay(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    const std::vector<char> chars{std::istreambuf_iterator<char>(in), {}};
    const std::vector<std::uint8_t> bytes(chars.begin(), chars.end());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        const std::filesystem::path path(argv[i]);
        if (std::filesystem::is_directory(path)) {
            for (const auto& entry : std::filesystem::directory_iterator(path))
                if (entry.is_regular_file())
                    count += replay(entry.path());
        } else {
            count += replay(path);
        }
    }
    std::printf("%d inputs replayed\n", count);
    return count > 0 ? 0 : 1;
}
