#include "cli/Batch.h"

#include "cli/Input.h"

#include <filesystem>
#include <system_error>
#include <unordered_set>

namespace cli {

std::string stemOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
    const std::size_t dot = name.rfind('.');
    return dot == std::string::npos || dot == 0 ? name : name.substr(0, dot);
}

std::string inFolder(std::string folder, const std::string& name) {
    while (folder.size() > 1 && folder.back() == '/')
        folder.pop_back();
    if (folder.empty())
        return name;
    return folder == "/" ? folder + name : folder + "/" + name;
}

std::vector<std::string> distinctStems(const std::vector<std::string>& paths) {
    std::vector<std::string> stems;
    std::unordered_set<std::string> taken;
    stems.reserve(paths.size());
    for (const std::string& path : paths) {
        const std::string stem = stemOf(path);
        std::string name = stem;
        for (int k = 2; taken.contains(name); ++k)
            name = stem + "-" + std::to_string(k);
        taken.insert(name);
        stems.push_back(name);
    }
    return stems;
}

bool makeFolder(const std::string& folder, Console& console) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error || !std::filesystem::is_directory(folder, error)) {
        console.fail(kRefused, "impossible de créer le dossier " + quoted(folder) + ".");
        return false;
    }
    return true;
}

} // namespace cli
