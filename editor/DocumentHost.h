#pragma once

#include <QString>

#include <optional>

namespace editor {

// What the editor's document needs from the window around it: the user's answers and the
// remembered last icon. The window answers through its dialogs and the settings store.
class DocumentHost {
public:
    enum class Reply { Yes, No, Cancel, Ok };

    // A file dialog: title, folder it opens on, proposed name, filter ("Fichiers d'icônes
    // (*.ico)|*.ico"); the default extension is always ".ico".
    struct FileQuestion {
        QString title;
        QString folder;
        QString fileName;
        QString filter;
    };

    virtual ~DocumentHost() = default;

    // "Enregistrer l'icône en cours ?", titled "Orvanne®": Yes, No or Cancel.
    virtual Reply askToSave(const QString& text) = 0;
    // The warning before a save over a file of several images: Ok or Cancel.
    virtual Reply warnSeveralImages(const QString& text) = 0;
    // Nothing when the user cancels.
    virtual std::optional<QString> chooseOpenPath(const FileQuestion& question) = 0;
    virtual std::optional<QString> chooseSavePath(const FileQuestion& question) = 0;
    // "Nom de l'icône" of the settings.
    virtual QString lastIcon() = 0;
    virtual void storeLastIcon(const QString& path) = 0;
    // The busy pointer while a file is written.
    virtual void setBusy(bool busy) = 0;
};

} // namespace editor
