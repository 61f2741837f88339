#pragma once

#include <QString>

namespace icon {

// The file name of the program's own icon library.
QString ownIconLibraryName();

// Where the program's own icon library is: beside the executable (a build, or a copied
// folder), else in the installed data folder. The path beside the executable when neither
// exists, so that the caller's message names the place it looked first.
QString ownIconLibraryPath();

} // namespace icon
