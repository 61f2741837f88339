#include "cli/Input.h"

#include "icon/FileBytes.h"

namespace cli {

std::string quoted(const std::string& path) {
    return "« " + path + " »";
}

std::shared_ptr<const icon::MappedFile> readInput(const std::string& path, Console& console) {
    icon::ReadError error = icon::ReadError::None;
    std::shared_ptr<const icon::MappedFile> file =
        icon::MappedFile::open(std::filesystem::path(path), icon::kMaxFileBytes, &error);
    switch (error) {
    case icon::ReadError::None:
        break;
    case icon::ReadError::Missing:
        console.fail(kRefused, "le fichier " + quoted(path) + " n'existe pas.");
        break;
    case icon::ReadError::NotRegular:
        console.fail(kRefused, quoted(path) + " n'est pas un fichier ordinaire.");
        break;
    case icon::ReadError::TooLarge:
        console.fail(kRefused, quoted(path) + " est trop gros (plus de " +
                                   std::to_string(icon::kMaxFileBytes / (1024 * 1024)) + " Mo).");
        break;
    case icon::ReadError::Unreadable:
        console.fail(kRefused, "impossible de lire " + quoted(path) + ".");
        break;
    }
    return file;
}

} // namespace cli
