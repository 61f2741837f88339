#pragma once

#include "app/EditorHost.h"
#include "browser/ThumbnailProvider.h"
#include "browser/ui/FenPrin.h"
#include "shell/ui/Demarre2.h"

#include <QObject>

#include <memory>

namespace app {

// How the program starts: the splash and its single-instance question, then the main window on
// the current folder, then the tips when the tips flag says "Oui".
class Startup : public QObject {
    Q_OBJECT
public:
    // The command line is the program's arguments joined by spaces; "/open <path>" opens that
    // icon in the editor once the main window is up.
    explicit Startup(const browser::ThumbnailProvider& provider, const QString& commandLine = {});
    ~Startup() override;

    // False when another instance runs and the user chose not to start a new one.
    bool begin(bool anotherInstanceRuns);

    shell::ui::Demarre2& splash() { return m_splash; }
    browser::ui::FenPrin* mainWindow() { return m_main.get(); }
    EditorHost& editorHost() { return m_editor; }

signals:
    void mainWindowShown();

private:
    void showMainWindow();
    void showTipsAtStart();
    void showAbout();
    void report() const;
    void reportFirstPaint();

    const browser::ThumbnailProvider& m_provider;
    QString m_commandLine;
    shell::ui::Demarre2 m_splash;
    std::unique_ptr<browser::ui::FenPrin> m_main;
    EditorHost m_editor;
};

} // namespace app
