#include "editor/Document.h"

#include "icon/FileBytes.h"
#include "icon/IcoReader.h"
#include "icon/IcoWriter.h"
#include "iconqt/Paths.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace editor {

namespace {

const QString kProgram = QStringLiteral("Orvanne®");

} // namespace

Document::Document(IconEditor& engine, DocumentHost& host)
    : m_engine(engine)
    , m_host(host) {}

QString Document::caption() const {
    return kProgram + QStringLiteral(" - ") + (m_iconPath == kUntitled ? kUntitled : m_shownTitle);
}

bool Document::SavePrompt() {
    m_savedOk = false;
    if (!m_engine.isModified())
        return true;
    switch (m_host.askToSave(QStringLiteral("Enregistrer l'icône en cours ?"))) {
    case DocumentHost::Reply::Yes:
        // A cancelled or failed save keeps the document, and what asked for the prompt stops.
        SaveIcon(m_iconPath != kUntitled ? SaveMode::Save : SaveMode::SaveAs);
        return m_savedOk;
    case DocumentHost::Reply::No:
        m_engine.setModified(false);
        return true;
    default:
        return false;
    }
}

void Document::NewIcon() {
    m_engine.NewIcon();
    m_iconPath = kUntitled;
    m_iconFile.clear();
    m_iconFileTitle.clear();
    m_shownTitle.clear();
    m_savedOk = false;
    m_multiImageFile = false;
}

bool Document::newCommand() {
    if (!SavePrompt())
        return false;
    NewIcon();
    return true;
}

bool Document::OpenIcon() {
    if (!SavePrompt())
        return false;
    QString path;
    QString title;
    std::filesystem::path file;
    if (m_requests.any()) {
        path = m_handedPath;
        title = fileTitleOf(path);
        // The hand-over is used up, whether the file opens or not: the next Open asks again.
        m_requests.reset();
        std::error_code error;
        if (!m_handedFile.empty() && std::filesystem::exists(m_handedFile, error)) {
            file = m_handedFile;
        } else {
            if (!QFileInfo::exists(path))
                path = findIgnoringCase(path);
            if (path.isEmpty())
                return false;
        }
        m_handedFile.clear();
    } else {
        const auto chosen = m_host.chooseOpenPath(
            {kProgram + QStringLiteral(" - Ouvrir"), m_openFolder, QString(), kFilter});
        if (!chosen)
            return false;
        path = *chosen;
        title = fileTitleOf(path);
    }
    if (file.empty())
        file = iconqt::pathFromText(path);
    const auto bytes = icon::readFileBytes(file);
    if (!bytes || !icon::isLoadablePicture(*bytes))
        return false;

    NewIcon();
    m_iconPath = path;
    m_iconFile = file;
    m_iconFileTitle = fileTitleOf(path);
    m_shownTitle = title;
    m_openFolder = QFileInfo(path).absolutePath();
    if (const auto planes = icon::decodeIconPlanes(*bytes))
        m_engine.loadIcon(*planes);
    const auto count = icon::readHeaderCount(*bytes);
    m_multiImageFile = count && *count >= 2;
    m_host.storeLastIcon(m_iconPath);
    m_recallEnabled = true;
    return true;
}

bool Document::SaveIcon(SaveMode mode) {
    if (mode == SaveMode::Save && m_iconPath != kUntitled) {
        if (!m_multiImageFile)
            return write(m_iconFile);
        if (m_host.warnSeveralImages(severalImagesText(m_iconFileTitle)) == DocumentHost::Reply::Ok)
            return write(m_iconFile);
        return SaveIcon(SaveMode::SaveAs);
    }
    // A file of several images proposes "*.ico", so that the user types a new name.
    const QString proposed = m_iconPath == kUntitled ? kUntitled + QStringLiteral(".ico")
                             : m_multiImageFile      ? QStringLiteral("*.ico")
                                                     : m_iconPath;
    const auto chosen = m_host.chooseSavePath(
        {kProgram + QStringLiteral(" - Enregistrer sous..."), m_openFolder, proposed, kFilter});
    if (!chosen || chosen->isEmpty())
        return false;
    QString path = *chosen;
    if (QFileInfo(path).suffix().isEmpty())
        path += QStringLiteral(".ico");
    return write(iconqt::pathFromText(path));
}

bool Document::write(const std::filesystem::path& file) {
    m_engine.DropSelection();
    m_host.setBusy(true);
    const icon::SaveResult result = icon::writeIconFile(file, m_engine.planes());
    m_host.setBusy(false);
    // A failed save (a full disk, a protected file) changes nothing: the path, the title and
    // the Modified state stay as they were, and the old file is untouched.
    if (!result)
        return false;
    const QString path = file == m_iconFile ? m_iconPath : iconqt::textFromPath(file);
    m_iconPath = path;
    m_iconFile = file;
    m_iconFileTitle = m_shownTitle = fileTitleOf(path);
    m_savedOk = true;
    m_engine.setModified(false);
    m_multiImageFile = false;
    m_host.storeLastIcon(path);
    return true;
}

bool Document::save() {
    const bool saved = SaveIcon(SaveMode::Save);
    m_recallEnabled = true;
    return saved;
}

bool Document::saveAs() {
    const bool saved = SaveIcon(SaveMode::SaveAs);
    m_recallEnabled = true;
    return saved;
}

bool Document::recall() {
    m_handedPath = m_host.lastIcon();
    if (m_handedPath.isEmpty())
        return false;
    m_requests.set(static_cast<std::size_t>(OpenRequest::Recall));
    return OpenIcon();
}

void Document::handOver(const std::filesystem::path& file, OpenRequest who) {
    m_handedPath = iconqt::textFromPath(file);
    m_handedFile = file;
    m_requests.set(static_cast<std::size_t>(who));
}

void Document::handOver(const QString& path, OpenRequest who) {
    m_handedFile.clear();
    m_handedPath = path;
    m_requests.set(static_cast<std::size_t>(who));
}

void Document::activate(const QString& currentFolder) {
    if (!currentFolder.isEmpty())
        m_openFolder = QDir::cleanPath(currentFolder);
    const QString last = m_host.lastIcon();
    if (!m_requests.any()) {
        m_handedPath = last;
        m_handedFile.clear();
    }
    m_recallEnabled = !last.isEmpty();
}

void Document::load() {
    m_recallEnabled = !m_host.lastIcon().isEmpty();
    NewIcon();
}

bool Document::close() {
    if (!SavePrompt())
        return false;
    // Stored as it stands, "Sans nom" too: a later recall of it finds no file and does nothing.
    m_host.storeLastIcon(m_iconPath);
    return true;
}

QString Document::severalImagesText(const QString& fileTitle) {
    const QChar q('"');
    return QStringLiteral("Le fichier ") + q + fileTitle + q +
           QStringLiteral(" contient plusieurs icônes\r\n") + QStringLiteral("Ce ") + q +
           QStringLiteral("Enregistrer") + q +
           QStringLiteral(" les autres icônes du fichier vont être écrasées\r\n\r\n") +
           QStringLiteral("Cliquez sur 'OK' pour continuer avec ") + q +
           QStringLiteral("Enregistrer") + q + QStringLiteral("\r\n") +
           QStringLiteral("Cliquez sur 'Annuler' pour ") + q +
           QStringLiteral("Enregistrer sous...") + q;
}

std::optional<QString> Document::openArgument(const QString& commandLine) {
    if (commandLine.left(6).toLower() != QStringLiteral("/open "))
        return std::nullopt;
    return properCase(commandLine.mid(6));
}

QString Document::properCase(const QString& text) {
    QString result;
    result.reserve(text.size());
    bool inWord = false;
    for (const QChar c : text) {
        const bool wordChar = c.isLetterOrNumber();
        result += !wordChar ? c : inWord ? c.toLower() : c.toUpper();
        inWord = wordChar;
    }
    return result;
}

QString Document::findIgnoringCase(const QString& path) {
    if (path.isEmpty())
        return {};
    const QString absolute = QDir::cleanPath(QDir::current().absoluteFilePath(path));
    if (QFileInfo::exists(absolute))
        return absolute;
    QString found = QStringLiteral("/");
    for (const QString& part : absolute.split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        const QDir folder(found);
        if (QFileInfo::exists(folder.filePath(part))) {
            found = folder.filePath(part);
            continue;
        }
        const QStringList entries = folder.entryList(
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
        const auto match = std::find_if(entries.begin(), entries.end(), [&](const QString& e) {
            return e.compare(part, Qt::CaseInsensitive) == 0;
        });
        if (match == entries.end())
            return {};
        found = folder.filePath(*match);
    }
    return QFileInfo(found).isFile() ? found : QString();
}

QString Document::fileTitleOf(const QString& path) {
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

} // namespace editor
