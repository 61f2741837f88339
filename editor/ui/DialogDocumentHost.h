#pragma once

#include "editor/DocumentHost.h"

namespace editor::ui {

// The document's questions as the program asks them: message boxes and file dialogs through
// the dialog service, the last icon in the settings store, the busy pointer while writing.
class DialogDocumentHost : public DocumentHost {
public:
    Reply askToSave(const QString& text) override;
    Reply warnSeveralImages(const QString& text) override;
    std::optional<QString> chooseOpenPath(const FileQuestion& question) override;
    std::optional<QString> chooseSavePath(const FileQuestion& question) override;
    QString lastIcon() override;
    void storeLastIcon(const QString& path) override;
    void setBusy(bool busy) override;
};

} // namespace editor::ui
