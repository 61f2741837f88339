#pragma once

#include "platform/GradientPanel.h"

#include <filesystem>
#include <vector>

namespace browser::ui {

// The pop-up panel of system files (`IcoWinOpts` buttons and `CmdFerMnu`). Each button opens
// its file where it was found; a file found nowhere leaves its button disabled, its bubble
// saying why.
class IcoWinPanel : public platform::GradientPanel {
    Q_OBJECT
public:
    IcoWinPanel(const std::vector<std::filesystem::path>& folders, QWidget* parent = nullptr);

    static QString missingText(const QString& name);

signals:
    void chosen(const std::filesystem::path& file);
};

} // namespace browser::ui
