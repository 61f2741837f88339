#include "app/Startup.h"

#include "app/MainWindowClose.h"
#include "platform/Services.h"
#include "shell/Preferences.h"
#include "shell/ui/Apropos.h"
#include "shell/ui/Conseils.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

#include <ctime>

namespace app {

namespace {

// Waits for the window's first paint, then writes the report once the picture has gone to the
// screen (the rest of the window's paint runs in the same turn of the event loop).
class FirstPaintReport : public QObject {
public:
    FirstPaintReport(QString path, QObject* parent)
        : QObject(parent)
        , m_path(std::move(path)) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && !m_done) {
            m_done = true;
            QTimer::singleShot(0, this, &FirstPaintReport::write);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void write() {
        timespec wall{};
        timespec cpu{};
        clock_gettime(CLOCK_REALTIME, &wall);
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &cpu);
        const qint64 wallNs = qint64(wall.tv_sec) * 1000000000 + wall.tv_nsec;
        const qint64 cpuUs = qint64(cpu.tv_sec) * 1000000 + cpu.tv_nsec / 1000;
        QFile file(m_path);
        if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            file.write(QByteArray::number(wallNs) + ' ' + QByteArray::number(cpuUs) + '\n');
    }

    QString m_path;
    bool m_done = false;
};

} // namespace

Startup::Startup(const browser::ThumbnailProvider& provider, const QString& commandLine)
    : m_provider(provider)
    , m_commandLine(commandLine) {
    connect(&m_splash, &shell::ui::Demarre2::timeUp, this, &Startup::showMainWindow);
}

Startup::~Startup() = default;

bool Startup::begin(bool anotherInstanceRuns) {
    if (anotherInstanceRuns && !shell::ui::Demarre2::askForSecondInstance())
        return false;
    // The splash says "Un instant, SVP..." while the main window loads, never longer: its timer
    // runs out as soon as the window system has had its turn.
    m_splash.start(0);
    return true;
}

void Startup::showMainWindow() {
    m_main = std::make_unique<browser::ui::FenPrin>(m_provider);
    reportFirstPaint();
    connect(m_main.get(), &browser::ui::FenPrin::aboutRequested, this, &Startup::showAbout);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        m_main->move(screen->availableGeometry().center() - m_main->rect().center());
    // The folder's own bytes: its name need not be valid text.
    std::error_code error;
    const std::filesystem::path start = std::filesystem::current_path(error);
    m_main->openFolder(error ? std::filesystem::path("/") : start);
    m_editor.attach(*m_main);
    new MainWindowClose(*m_main, [this] { return m_editor.closeEditor(); });
    m_main->show();
    // With no control chosen for the keys, the window keeps them itself: otherwise the window
    // system's activation hands them to the first button, which Return would then press.
    if (m_main->focusWidget() == nullptr)
        m_main->setFocus(Qt::OtherFocusReason);
    m_splash.close();
    m_editor.openAtStart(m_commandLine);
    report();
    emit mainWindowShown();
    // The tips come last, over the main window once it is painted.
    QTimer::singleShot(0, this, &Startup::showTipsAtStart);
}

void Startup::showTipsAtStart() {
    // A settings file that could not be used was set aside while the main window loaded.
    if (const std::optional<QString> notice = shell::Settings::takeNotice())
        platform::dialogs().message(
            {QStringLiteral("Orvanne®"), *notice, platform::MessageIcon::Exclamation});
    if (!m_main || !shell::Preferences::loadTipsAtStart(shell::Settings()))
        return;
    shell::ui::Conseils tips(m_main.get());
    platform::dialogs().runModal(tips);
    m_main->activateWindow();
}

void Startup::showAbout() {
    shell::ui::Apropos about(m_main.get());
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

// For the start-up bench: with ORVANNE_FIRST_PAINT_FILE set, the moment the main window has
// been painted for the first time (wall clock, nanoseconds since the epoch) and the processor
// time used until then (microseconds) are written to that file.
void Startup::reportFirstPaint() {
    const QString path = qEnvironmentVariable("ORVANNE_FIRST_PAINT_FILE");
    if (path.isEmpty())
        return;
    m_main->installEventFilter(new FirstPaintReport(path, m_main.get()));
}

} // namespace app
