#pragma once

#include "browser/PickerCells.h"

#include <QString>

#include <filesystem>
#include <optional>

namespace browser {

// What the icon picker remembers for the whole run: the file it shows, the folder and the
// filter its open dialog used last. It starts on the program's own icon library.
struct PickerState {
    std::filesystem::path file;
    std::filesystem::path lastFolder;
    int filterIndex = 5; // the ".icl" entry

    static PickerState startingOn(const std::filesystem::path& library);
    // The bare name of the current file, as the title shows it.
    QString fileName() const;
    // A file chosen in the open dialog or the panel of system files becomes the current one.
    void choose(const std::filesystem::path& chosen);
};

// The picker's texts and the rules of what it hands back.
namespace picker {

QString openTitle();
QString openFilter();
QString infoText(int number);                        // LblInfo
QString windowTitle(const QString& name, int count); // the title button
QString noIconText(const QString& name);             // the message for a file without icons

// The file's icons when it holds any; nothing for a file without icons or not readable.
std::optional<PickerCells> openIcons(const std::filesystem::path& file);

// The icon (from 1, as the source numbers them) that the browser takes when the user picked
// number `selected`: an animated cursor gives its first frame whatever was picked.
int takenIcon(const std::filesystem::path& file, const icon::IconSource& source, int selected);

} // namespace picker

} // namespace browser
