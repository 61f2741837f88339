#include "editor/ui/FrmIcoEd.h"

#include "editor/DroppedIcon.h"
#include "editor/PadTexts.h"
#include "editor/ui/CanvasView.h"
#include "editor/ui/Edges.h"
#include "editor/ui/FrmClipData.h"
#include "editor/ui/PaletteView.h"
#include "editor/ui/PreviewView.h"
#include "editor/ui/ToolPadView.h"
#include "platform/ApplyScheme.h"
#include "platform/GradientButton.h"
#include "platform/GradientPanel.h"
#include "platform/HelpBubbles.h"
#include "platform/HelpViewer.h"
#include "platform/MakeButton.h"
#include "platform/Services.h"
#include "platform/TitleButton.h"
#include "platform/WindowKeys.h"
#include "platform/WindowStyle.h"
#include "shell/AppState.h"
#include "shell/Settings.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QCloseEvent>
#include <QDropEvent>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QTimer>
#include <QUrl>

namespace editor::ui {

namespace {

constexpr int kWidth = 558;
constexpr int kHeight = 410;
const QPoint kCanvasPlace(8, 32);
// The swatches of the left and right buttons, and where the position readout is printed.
const QRect kLeftSwatch(366, 125, 21, 21);
const QRect kRightSwatch(390, 125, 21, 21);
const QRect kPositionPlace(386, 98, 44, 14);
// Long enough for Open to finish with the dialog's last click before the canvas listens again.
constexpr int kTimer1Milliseconds = 300;

} // namespace

FrmIcoEd::FrmIcoEd(LoadNotice notice, QWidget* parent)
    : QWidget(parent)
    , m_document(std::make_unique<Document>(m_engine, m_host))
    , m_notice(std::move(notice)) {
    m_title = platform::setUpWindow(*this, "FrmIcoEd", QStringLiteral("Orvanne®"),
                                    QSize(kWidth, kHeight), 48);
    setFocusPolicy(Qt::StrongFocus);

    buildTitleRow();
    buildWorkArea();
    buildPads();
    // The letter keys belong to the window; only the buttons take the focus, through Tab.
    for (QWidget* child : findChildren<QWidget*>()) {
        if (qobject_cast<platform::GradientButton*>(child) == nullptr)
            child->setFocusPolicy(Qt::NoFocus);
    }
    platform::setWindowKeys(*this, {nullptr, nullptr, [this] {
                                        showHelp(3);
                                    }});
    // An icon file dropped from a file manager opens as with the Fichier pad.
    setAcceptDrops(true);

    m_timer1 = new QTimer(this);
    m_timer1->setObjectName(QStringLiteral("Timer1"));
    m_timer1->setSingleShot(true);
    m_timer1->setInterval(kTimer1Milliseconds);
    connect(m_timer1, &QTimer::timeout, this, [this] { m_canvas->setEnabled(true); });

    load();
}

FrmIcoEd::~FrmIcoEd() = default;

void FrmIcoEd::load() {
    if (shell::Settings().readFlag(shell::keys::kDepthWarning, QStringLiteral("Oui")) && m_notice)
        m_notice(*this);
    // A fresh engine: the palette's first colours, black and white buttons, the first tool,
    // a blank icon at the base of the history.
    m_engine = IconEditor();
    m_document = std::make_unique<Document>(m_engine, m_host);
    m_document->load();
    m_trueColours->setChecked(false);
    applyColours();
    refreshAll();
    m_loaded = true;
}

void FrmIcoEd::applyColours() {
    platform::applyScheme(*this);
    const shell::ColourScheme& colours = shell::appState().preferences.colours;
    m_tools->setFaceColour(colours[shell::SchemeColour::GradientEnd]);
    update();
}

void FrmIcoEd::buildTitleRow() {
    auto* minimise = addButton(this, "CmdReduire", QStringLiteral("_"), QStringLiteral("Réduire"),
                               QRect(kWidth - 50, 4, 22, 22));
    connect(minimise, &QAbstractButton::clicked, this, [this] {
        hidePads();
        showMinimized();
    });
    auto* close = addButton(this, "CmdFermer", QStringLiteral("X"), QStringLiteral("Fermer"),
                            QRect(kWidth - 26, 4, 22, 22));
    connect(close, &QAbstractButton::clicked, this, &QWidget::close);
}

void FrmIcoEd::buildWorkArea() {
    m_canvas = new CanvasView(m_engine, this);
    m_canvas->move(kCanvasPlace);
    connect(m_canvas, &CanvasView::pressed, this, &FrmIcoEd::hidePads);
    connect(m_canvas, &CanvasView::engineEvents, this, &FrmIcoEd::apply);

    m_preview = new PreviewView(m_engine, this);
    m_preview->move(371, 53);

    m_position = new QLabel(this);
    m_position->setObjectName(QStringLiteral("LblPosition"));
    m_position->setGeometry(kPositionPlace);

    m_tools = new ToolPadView(m_engine, this);
    m_tools->move(436, 36);
    connect(m_tools, &ToolPadView::engineEvents, this, &FrmIcoEd::apply);

    m_trueColours = new QCheckBox(QString::fromUtf8(kTrueColours), this);
    m_trueColours->setObjectName(QStringLiteral("ChkPal"));
    m_trueColours->setGeometry(430, 126, 124, 20);

    m_palette = new PaletteView(m_engine.palette(), this);
    m_palette->move(342, 152);
    connect(m_palette, &PaletteView::released, this, &FrmIcoEd::paletteReleased);
}

platform::GradientButton* FrmIcoEd::addButton(QWidget* parent, const char* name,
                                              const QString& caption, const QString& help,
                                              const QRect& place) {
    return platform::makeButton(parent, name, caption, help, place);
}

void FrmIcoEd::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    // The canvas and the palette sit in sunken frames.
    drawEdge(painter, QRect(m_canvas->geometry()).adjusted(-1, -1, 1, 1), true);
    drawEdge(painter, QRect(m_palette->geometry()).adjusted(-1, -1, 1, 1), true);
    for (int button = 0; button < 2; ++button) {
        const QRect swatch = button == 0 ? kLeftSwatch : kRightSwatch;
        painter.fillRect(swatch, platform::toQColor(m_engine.buttonColour(button)));
        drawEdge(painter, swatch, true);
    }
}

void FrmIcoEd::apply(Events events) {
    if (events & kRedraw) {
        m_canvas->refresh();
        m_preview->update();
    }
    if (events & kBeep)
        QApplication::beep();
    if (events & kColoursChanged)
        update(kLeftSwatch.united(kRightSwatch));
    if (events & kToolChanged)
        m_tools->update();
    if (events & kPaletteChanged)
        m_palette->update();
    if (events & kPositionChanged)
        m_position->setText(positionText());
}

QString FrmIcoEd::positionText() const {
    return QString::fromStdString(m_engine.positionText());
}

void FrmIcoEd::refreshAll() {
    m_canvas->refresh();
    m_preview->update();
    m_tools->update();
    m_palette->update();
    m_position->setText(positionText());
    const QString caption = m_document->caption();
    setWindowTitle(caption);
    m_title->setText(caption);
    m_recall->setEnabled(m_document->recallEnabled());
    update();
}

// --- The document ---------------------------------------------------------------------------

void FrmIcoEd::bringUp(const QString& currentFolder) {
    if (!m_loaded)
        load();
    m_document->activate(currentFolder);
    m_recall->setEnabled(m_document->recallEnabled());
    if (isMinimized())
        showNormal();
    else
        show();
    raise();
    activateWindow();
    // The letter keys reach the window itself.
    setFocus();
}

void FrmIcoEd::handOver(const std::filesystem::path& path) {
    m_document->handOver(path, OpenRequest::Browser);
}

void FrmIcoEd::readCommandLine(const QString& commandLine) {
    const auto path = Document::openArgument(commandLine);
    if (!path)
        return;
    m_document->handOver(*path, OpenRequest::CommandLine);
    runFileCommand([this] { return m_document->OpenIcon(); }, FileCommand::Open);
}

void FrmIcoEd::dragEnterEvent(QDragEnterEvent* event) {
    if (droppedPath(event->mimeData()))
        event->acceptProposedAction();
}

void FrmIcoEd::dropEvent(QDropEvent* event) {
    const auto path = droppedPath(event->mimeData());
    if (!path)
        return;
    event->acceptProposedAction();
    // The drop is answered first: the file manager must not wait on the unsaved-changes prompt.
    const QString file = QFile::decodeName(QByteArray::fromStdString(path->native()));
    QTimer::singleShot(0, this, [this, file] {
        activateWindow();
        m_document->handOver(file, OpenRequest::Drop);
        runFileCommand([this] { return m_document->OpenIcon(); }, FileCommand::Open);
    });
}

std::optional<std::filesystem::path> FrmIcoEd::droppedPath(const QMimeData* data) {
    if (data == nullptr || !data->hasUrls())
        return std::nullopt;
    std::vector<std::filesystem::path> files;
    for (const QUrl& url : data->urls()) {
        if (url.isLocalFile())
            files.emplace_back(QFile::encodeName(url.toLocalFile()).toStdString());
    }
    return droppedIcon(files);
}

void FrmIcoEd::runFileCommand(const std::function<bool()>& command, FileCommand kind) {
    hidePads();
    const bool done = command();
    if (done && kind != FileCommand::Save)
        m_trueColours->setChecked(false);
    if (done && kind == FileCommand::Open) {
        // The canvas listens again once the open is over.
        m_canvas->setEnabled(false);
        m_timer1->start();
    }
    refreshAll();
}

void FrmIcoEd::closeEvent(QCloseEvent* event) {
    hidePads();
    if (!m_document->close()) {
        event->ignore();
        return;
    }
    m_loaded = false;
    event->accept();
}

// --- Keys -----------------------------------------------------------------------------------

void FrmIcoEd::keyPressEvent(QKeyEvent* event) {
    // The letter alone counts, with or without Ctrl, as it always has.
    const EditorCommand* command = commandForKey(event->key());
    if (command == nullptr || !runCommand(command->command, Origin::Key))
        QWidget::keyPressEvent(event);
}

void FrmIcoEd::showKeyboardError() {
    platform::Message message;
    message.title = QString::fromUtf8(kKeyboardErrorTitle);
    message.text = QString::fromUtf8(kKeyboardErrorText);
    message.icon = platform::MessageIcon::Exclamation;
    platform::dialogs().message(message);
}

// --- Clipboard ------------------------------------------------------------------------------

void FrmIcoEd::cut() {
    const IconEditor::CutResult result = m_engine.Cut();
    if (!result.picture.isNull())
        QGuiApplication::clipboard()->setImage(result.picture);
    apply(result.events);
}

void FrmIcoEd::copy() {
    const QImage picture = m_engine.CopySelection();
    if (!picture.isNull())
        QGuiApplication::clipboard()->setImage(picture);
}

void FrmIcoEd::paste(bool opaque) {
    const QImage picture = QGuiApplication::clipboard()->image();
    if (picture.isNull())
        return;
    PasteFit fit = PasteFit::Proportional;
    if (pasteNeedsDialog(picture.size())) {
        FrmClipData dialog(picture.size(), this);
        if (platform::dialogs().runModal(dialog) != QLatin1String("Ok"))
            return;
        fit = dialog.fit();
    }
    apply(m_engine.PasteClipboard(picture, opaque, fit));
}

// --- Captures -----------------------------------------------------------------------------

void FrmIcoEd::setCaptureCommands(ScreenCapture screen, std::function<void()> zone) {
    m_screenCapture = std::move(screen);
    setCommand(Command::Capture, m_screenCapture
                                     ? std::function<void()>([this] { CaptureScreenArea(); })
                                     : std::function<void()>());
    setCommand(Command::CaptureZone, std::move(zone));
}

void FrmIcoEd::CaptureScreenArea() {
    if (!m_screenCapture)
        return;
    hidePads();
    apply(m_engine.DropSelection());
    // The desktop is read without the editor on it.
    hide();
    const std::optional<icon::IconPlanes> planes = m_screenCapture();
    show();
    raise();
    activateWindow();
    setFocus();
    // Giving up leaves the icon and its history as they were; a capture is one step.
    if (planes)
        apply(m_engine.replacePlanes(*planes));
    refreshAll();
}

// --- Palette --------------------------------------------------------------------------------

void FrmIcoEd::paletteReleased(int button, double x, double y) {
    hidePads();
    std::optional<icon::Colour> redefined;
    if (m_trueColours->isChecked()) {
        // "Couleurs vraies": the cell is redefined first; a cancel changes nothing.
        const auto index = Palette::indexAt(x, y);
        if (!index)
            return;
        redefined = platform::dialogs().chooseColour(m_engine.palette().at(*index));
        if (!redefined)
            return;
    }
    apply(m_engine.paletteRelease(button, x, y, redefined));
}

} // namespace editor::ui
