#pragma once

#include "platform/Dialogs.h"

#include <QStringList>

namespace platform {

// The dialogs as the user sees them: Qt's message boxes and common dialogs, their standard
// buttons in French through Qt's own translations.
class QtDialogs : public Dialogs {
public:
    Answer message(const Message& message) override;
    std::optional<FileChoice> openFile(const FileRequest& request) override;
    std::optional<FileChoice> saveFile(const FileRequest& request) override;
    std::optional<QString> chooseFolder(const QString& title, const QString& start) override;
    std::optional<icon::Colour> chooseColour(icon::Colour initial) override;
    QString runModal(QDialog& window) override;

    // "Icônes|*.ico|Tous fichiers|*.*" as Qt's list of filters.
    static QStringList qtFilters(const QString& filter);
};

} // namespace platform
