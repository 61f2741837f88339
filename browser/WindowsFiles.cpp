#include "browser/WindowsFiles.h"

#include <QFile>
#include <QStandardPaths>

#include <cstdlib>
#include <system_error>

namespace browser {

namespace fs = std::filesystem;

const QStringList& WindowsFiles::names() {
    static const QStringList files{QStringLiteral("explorer.exe"), QStringLiteral("moricons.dll"),
                                   QStringLiteral("progman.exe"),  QStringLiteral("cool.dll"),
                                   QStringLiteral("cryptui.dll"),  QStringLiteral("inetcplc.dll"),
                                   QStringLiteral("javacypt.dll"), QStringLiteral("mshtml.dll"),
                                   QStringLiteral("msrating.dll"), QStringLiteral("pifmgr.dll"),
                                   QStringLiteral("setupapi.dll"), QStringLiteral("setupx.dll"),
                                   QStringLiteral("shdocvw.dll"),  QStringLiteral("shell32.dll"),
                                   QStringLiteral("syncui.dll"),   QStringLiteral("user.exe")};
    return files;
}

QString WindowsFiles::caption(const QString& name) {
    return name.isEmpty() ? name : name.left(1).toUpper() + name.mid(1);
}

std::vector<fs::path> WindowsFiles::folders(const fs::path& winePrefix, const fs::path& home) {
    const fs::path prefix = winePrefix.empty() ? home / ".wine" : winePrefix;
    const fs::path windows = prefix / "drive_c" / "windows";
    std::vector<fs::path> out{windows, windows / "system32", windows / "system"};
    for (const fs::path& folder : libraryFolders())
        out.push_back(folder);
    return out;
}

std::vector<fs::path> WindowsFiles::libraryFolders() {
    return {"/usr/lib/x86_64-linux-gnu/wine/x86_64-windows",
            "/usr/lib/i386-linux-gnu/wine/i386-windows",
            "/usr/lib/aarch64-linux-gnu/wine/aarch64-windows",
            "/usr/lib/wine/x86_64-windows",
            "/usr/lib/wine/i386-windows",
            "/usr/lib/x86_64-linux-gnu/wine/fakedlls",
            "/usr/lib/i386-linux-gnu/wine/fakedlls"};
}

std::vector<fs::path> WindowsFiles::foldersOfThisUser() {
    const char* prefix = std::getenv("WINEPREFIX");
    const QString home = QStandardPaths::writableLocation(QStandardPaths::HomeLocation);
    return folders(prefix ? fs::path(prefix) : fs::path(),
                   fs::path(QFile::encodeName(home).toStdString()));
}

std::optional<fs::path> WindowsFiles::find(const QString& name,
                                           const std::vector<fs::path>& folders) {
    const QStringList spellings{name, caption(name), name.toUpper()};
    for (const fs::path& folder : folders) {
        for (const QString& spelling : spellings) {
            const fs::path candidate = folder / QFile::encodeName(spelling).toStdString();
            std::error_code error;
            if (fs::is_regular_file(candidate, error))
                return candidate;
        }
    }
    return std::nullopt;
}

} // namespace browser
