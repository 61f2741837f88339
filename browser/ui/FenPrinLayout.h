#pragma once

#include "platform/WindowStyle.h"

#include <QPoint>
#include <Qt>

namespace browser::ui::layout {

// Where the main window puts what it shows, shared by its files.
constexpr int kDepthRole = Qt::UserRole + 1; // folder list: indentation
constexpr int kPathRole = Qt::UserRole + 2;  // folder list: the folder's path (bytes)
inline const QPoint kGridPlace(platform::twips(3285), platform::twips(840));
inline const QPoint kPopUpPlace(platform::twips(4000), platform::twips(240));

// The commands a display enables when the folder holds icons, and an empty folder disables.
inline constexpr const char* kFileCommands[] = {"CmdCOPIER", "CmdRename", "CmdSuppr", "CmdIcoBmp",
                                                "CmdCopImg"};
inline constexpr const char* kMoveCommands[] = {"DeplaceDebut", "DeplaceHaut", "DeplaceBas",
                                                "DeplaceFin"};

} // namespace browser::ui::layout
