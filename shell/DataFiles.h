#pragma once

#include <QString>
#include <QStringList>

namespace shell {

// The program's data files (tips, sound, help pages, icon library) sit beside the executable in
// a build, and in the installed share folder once installed.
class DataFiles {
public:
    // The folders looked in, in order: $ORVANNE_DATA_DIR when set, the executable's folder, then
    // ../share/orvanne beside it and the share folder chosen at installation.
    static QStringList folders();
    // Full path of the first existing file of that name; empty when none exists.
    static QString find(const QString& name);
    // Where the file would be looked for first: the path to report when it is missing.
    static QString expected(const QString& name);
};

} // namespace shell
