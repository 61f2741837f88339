#pragma once

#include "editor/DocumentHost.h"
#include "editor/IconEditor.h"

#include <QString>

#include <bitset>
#include <filesystem>
#include <optional>

namespace editor {

// Who handed a path to open without a dialog.
enum class OpenRequest { Browser, CommandLine, Recall, Drop };

enum class SaveMode {
    Save,   // "Enregistrer": under the current name
    SaveAs, // "Enregistrer sous...": ask for a name
};

// The life of the icon the editor holds: new, open, save, save as, the prompt before changes
// are lost, the several-images warning, the caption, the recall of the last icon and the
// paths handed over by the browser and the command line. The pixels are the engine's.
class Document {
public:
    static inline const QString kUntitled = QStringLiteral("Sans nom");
    static inline const QString kFilter = QStringLiteral("Fichiers d'icônes (*.ico)|*.ico");

    Document(IconEditor& engine, DocumentHost& host);

    const QString& iconPath() const { return m_iconPath; }
    // The file the document was opened from or saved to, as the file system's bytes.
    const std::filesystem::path& iconFile() const { return m_iconFile; }
    const QString& iconFileTitle() const { return m_iconFileTitle; }
    // "Orvanne® - Test.ico"; a new icon shows "Orvanne® - Sans nom".
    QString caption() const;
    bool savedOk() const { return m_savedOk; }
    bool isMultiImageFile() const { return m_multiImageFile; }
    const QString& openFolder() const { return m_openFolder; }
    void setOpenFolder(const QString& folder) { m_openFolder = folder; }
    const QString& handedPath() const { return m_handedPath; }
    bool hasOpenRequest() const { return m_requests.any(); }
    // Whether the recall command can be chosen.
    bool recallEnabled() const { return m_recallEnabled; }

    // True when the work may go on: nothing to save, saved, or the user said No.
    bool SavePrompt();
    void NewIcon();
    // The commands of the Fichier pad. Each returns whether the document changed.
    bool newCommand();
    bool OpenIcon();
    bool SaveIcon(SaveMode mode);
    bool save();
    bool saveAs();
    bool recall();

    // A path to open at the next OpenIcon without a dialog.
    void handOver(const QString& path, OpenRequest who);
    // The same for a file named by the file system's bytes (the browser's: a name need not be
    // valid text, and is opened and saved as it is).
    void handOver(const std::filesystem::path& file, OpenRequest who);
    // When the window is brought up: the Open dialog starts on the browser's folder, and the
    // recall follows the last icon stored.
    void activate(const QString& currentFolder);
    // The window's load: the recall is possible when an icon is remembered.
    void load();
    // Closing: false when the user cancelled; otherwise the path is remembered, "Sans nom"
    // included.
    bool close();

    // The five lines of the warning before a save over a file of several images.
    static QString severalImagesText(const QString& fileTitle);
    // The text after "/open " at the start of a command line, in proper case; nothing when the
    // command line does not start with the keyword (in any case).
    static std::optional<QString> openArgument(const QString& commandLine);
    // The first letter of every word upper case, the others lower case; a word is a run of
    // letters and digits.
    static QString properCase(const QString& text);
    // The existing file whose path equals `path` without regard to case (an exact match
    // first); empty when there is none.
    static QString findIgnoringCase(const QString& path);
    static QString fileTitleOf(const QString& path);

private:
    bool write(const std::filesystem::path& file);

    IconEditor& m_engine;
    DocumentHost& m_host;
    QString m_iconPath = kUntitled;
    std::filesystem::path m_iconFile;
    QString m_iconFileTitle;
    QString m_shownTitle; // what the caption shows, proper case kept
    bool m_savedOk = false;
    bool m_multiImageFile = false;
    QString m_handedPath;
    std::filesystem::path m_handedFile; // when handed as bytes; empty otherwise
    std::bitset<4> m_requests;
    QString m_openFolder;
    bool m_recallEnabled = false;
};

} // namespace editor
