#include "shell/ui/Startup.h"

#include "platform/Services.h"
#include "shell/Preferences.h"
#include "shell/ui/Apropos.h"
#include "shell/ui/Conseils.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

namespace shell::ui {

Startup::Startup(const browser::ThumbnailProvider& provider, int splashMilliseconds,
                 const QString& commandLine)
    : m_provider(provider)
    , m_splashMilliseconds(splashMilliseconds)
    , m_commandLine(commandLine) {
    connect(&m_splash, &Demarre2::timeUp, this, &Startup::showMainWindow);
}

Startup::~Startup() = default;

bool Startup::begin(bool anotherInstanceRuns) {
    if (anotherInstanceRuns && !Demarre2::askForSecondInstance())
        return false;
    m_splash.start(m_splashMilliseconds);
    return true;
}

void Startup::showMainWindow() {
    m_main = std::make_unique<browser::ui::FenPrin>(m_provider);
    connect(m_main.get(), &browser::ui::FenPrin::aboutRequested, this, &Startup::showAbout);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        m_main->move(screen->availableGeometry().center() - m_main->rect().center());
    // The folder's own bytes: its name need not be valid text.
    std::error_code error;
    const std::filesystem::path start = std::filesystem::current_path(error);
    m_main->openFolder(error ? std::filesystem::path("/") : start);
    m_editor.attach(*m_main);
    m_main->show();
    m_splash.close();
    m_editor.openAtStart(m_commandLine);
    report();
    emit mainWindowShown();
    // The tips come last, over the main window once it is painted.
    QTimer::singleShot(0, this, &Startup::showTipsAtStart);
}

void Startup::showTipsAtStart() {
    // A settings file that could not be used was set aside while the main window loaded.
    if (const std::optional<QString> notice = Settings::takeNotice())
        platform::dialogs().message(
            {QStringLiteral("Orvanne®"), *notice, platform::MessageIcon::Exclamation});
    if (!m_main || !Preferences::loadTipsAtStart(Settings()))
        return;
    Conseils tips(m_main.get());
    platform::dialogs().runModal(tips);
    m_main->activateWindow();
}

void Startup::showAbout() {
    Apropos about(m_main.get());
    platform::dialogs().runModal(about);
}

// For scripts that start the program and check what it shows: with ORVANNE_REPORT_FILE set, the
// main window's two texts are written to that file once it is on screen, and the editor's
// caption when it came up at start.
void Startup::report() const {
    const QString path = qEnvironmentVariable("ORVANNE_REPORT_FILE");
    if (path.isEmpty() || !m_main)
        return;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return;
    QString text = "NbrIco: " + m_main->countText() + "\nEtiquette1: " + m_main->pathText() + "\n";
    if (m_editor.hasEditor())
        text += "FrmIcoEd: " + m_editor.caption() + "\n";
    file.write(text.toUtf8());
}

} // namespace shell::ui
