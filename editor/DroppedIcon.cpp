#include "editor/DroppedIcon.h"

#include <system_error>

namespace editor {

namespace {

bool hasIcoExtension(const std::filesystem::path& file) {
    const std::string name = file.filename().native();
    if (name.size() < 4)
        return false;
    const char* tail = name.data() + name.size() - 4;
    return tail[0] == '.' && (tail[1] | 0x20) == 'i' && (tail[2] | 0x20) == 'c' &&
           (tail[3] | 0x20) == 'o';
}

} // namespace

std::optional<std::filesystem::path> droppedIcon(const std::vector<std::filesystem::path>& files) {
    for (const std::filesystem::path& file : files) {
        std::error_code error;
        if (file.is_absolute() && hasIcoExtension(file) &&
            std::filesystem::is_regular_file(file, error))
            return file;
    }
    return std::nullopt;
}

} // namespace editor
