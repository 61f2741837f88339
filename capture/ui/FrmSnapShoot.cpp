#include "capture/ui/FrmSnapShoot.h"

#include "capture/BitmapName.h"
#include "capture/CaptureTexts.h"
#include "capture/ui/FrmFullScr.h"
#include "capture/ui/ScrolledPicture.h"
#include "capture/ui/VisuImg.h"
#include "icon/BmpWriter.h"
#include "icon/Frame.h"
#include "iconqt/FrameImage.h"
#include "iconqt/Paths.h"
#include "platform/ApplyScheme.h"
#include "platform/GradientButton.h"
#include "platform/HelpBubbles.h"
#include "platform/HelpViewer.h"
#include "platform/MakeButton.h"
#include "platform/Services.h"
#include "platform/TitleButton.h"
#include "platform/WindowStyle.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>

namespace capture::ui {

namespace {

constexpr int kWidth = 600;
constexpr int kHeight = 420;
constexpr int kButtonLeft = 8;
constexpr int kButtonWidth = 130;
constexpr int kButtonHeight = 26;
constexpr int kFirstRow = 36;
constexpr int kRowStep = 32;
QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

} // namespace

FrmSnapShoot::FrmSnapShoot(platform::DesktopGrabber& grabber, const shell::ColourScheme& colours,
                           QWidget* parent)
    : QWidget(parent)
    , m_grabber(grabber)
    , m_colours(colours) {
    platform::setUpWindow(*this, "FrmSnapShoot", text(kSnapShootTitle), QSize(kWidth, kHeight));

    auto* start = addButton("CmdStart", QStringLiteral("Capturer"), kHelpStart, 0);
    m_copy = addButton("CmdCopy", QStringLiteral("Copier"), kHelpCopy, 1);
    m_save = addButton("CmdSave", QStringLiteral("Enregistrer"), kHelpSave, 2);
    m_edit = addButton("CmdEdit", QStringLiteral("Éditeur"), kHelpEdit, 3);
    auto* viewer = addButton("CmdVisuImg", QStringLiteral("Visualiseur"), kHelpViewer, 4);
    m_clipboard = addButton("CmdPressPap", QStringLiteral("Presse-papiers"), kHelpClipboard, 5);
    auto* help = addButton("CmdAide", QStringLiteral("Aide"), kHelpHelp, 6);
    auto* close = addButton("CmdFermer", QStringLiteral("Fermer"), kHelpClose, 7);
    m_copy->setEnabled(false);
    m_save->setEnabled(false);
    m_clipboard->setEnabled(false);

    connect(start, &QAbstractButton::clicked, this, &FrmSnapShoot::start);
    connect(m_copy, &QAbstractButton::clicked, this, &FrmSnapShoot::copyPicture);
    connect(m_save, &QAbstractButton::clicked, this, &FrmSnapShoot::savePicture);
    connect(m_edit, &QAbstractButton::clicked, this, [this] {
        if (m_editor)
            m_editor();
    });
    connect(viewer, &QAbstractButton::clicked, this, &FrmSnapShoot::openViewer);
    connect(m_clipboard, &QAbstractButton::clicked, this, [this] {
        if (m_clipboardViewer)
            m_clipboardViewer();
    });
    connect(help, &QAbstractButton::clicked, this, &FrmSnapShoot::showHelp);
    connect(close, &QAbstractButton::clicked, this, &QWidget::close);

    const int left = kButtonLeft + kButtonWidth + 8;
    m_picture = new ScrolledPicture(QStringLiteral("FraS"), QStringLiteral("picS"), this);
    m_picture->setGeometry(left, kFirstRow, kWidth - left - 8, kHeight - kFirstRow - 8);

    platform::applyScheme(*this, colours);
    m_picture->setViewingColour(platform::toQColor(colours[shell::SchemeColour::Viewing]));
}

FrmSnapShoot::~FrmSnapShoot() = default;

platform::GradientButton* FrmSnapShoot::addButton(const char* name, const QString& caption,
                                                  const char* help, int row) {
    return platform::makeButton(
        this, name, caption, text(help),
        QRect(kButtonLeft, kFirstRow + row * kRowStep, kButtonWidth, kButtonHeight));
}

void FrmSnapShoot::setEditorCommand(std::function<void()> command) {
    m_editor = std::move(command);
    m_edit->setEnabled(static_cast<bool>(m_editor));
}

void FrmSnapShoot::setClipboardViewerCommand(std::function<void()> command) {
    m_clipboardViewer = std::move(command);
    m_clipboard->setEnabled(static_cast<bool>(m_clipboardViewer));
}

const QImage& FrmSnapShoot::picture() const {
    return m_picture->picture();
}

void FrmSnapShoot::start() {
    // The window leaves the screen so that the picture shows what lies beneath it.
    const bool wasVisible = isVisible();
    hide();
    platform::letWindowsVanish();
    const platform::DesktopPicture desktop = m_grabber.grab();
    if (wasVisible)
        show();
    if (!desktop.ok()) {
        platform::Message message;
        message.title = text(kErrorTitle);
        message.text = desktop.error;
        message.icon = platform::MessageIcon::Exclamation;
        platform::dialogs().message(message);
        return;
    }
    FrmFullScr overlay(desktop.picture, m_zone, this);
    const QString outcome = platform::dialogs().runModal(overlay);
    if (outcome == QLatin1String("Ok") && m_zone.accepted && m_zone.hasSize())
        showPicture(desktop.picture.copy(m_zone.copyRect()));
    // Enter put up the hourglass until the zone was taken.
    while (QApplication::overrideCursor() != nullptr)
        QApplication::restoreOverrideCursor();
    if (wasVisible) {
        raise();
        activateWindow();
    }
}

void FrmSnapShoot::showPicture(const QImage& picture) {
    m_picture->setPicture(picture);
    m_copy->setEnabled(true);
    m_save->setEnabled(true);
}

void FrmSnapShoot::copyPicture() {
    if (picture().isNull())
        return;
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setImage(picture());
    platform::sound().playClick();
}

void FrmSnapShoot::savePicture() {
    if (picture().isNull())
        return;
    platform::FileRequest request;
    request.title = text(kSaveTitle);
    request.filter = text(kSaveFilter);
    request.fileName = text(kSaveName);
    const auto choice = platform::dialogs().saveFile(request);
    const std::optional<QString> path = choice ? bitmapSavePath(choice->path) : std::nullopt;
    if (!path)
        return;
    const icon::SaveResult result = icon::writeBmpFile(iconqt::pathFromText(*path), iconqt::frameFromImage(picture()));
    if (result)
        return;
    platform::Message message;
    message.title = text(kErrorTitle);
    message.text = QString::fromStdString(result.message);
    message.icon = platform::MessageIcon::Exclamation;
    platform::dialogs().message(message);
}

void FrmSnapShoot::openViewer() {
    if (!m_viewer)
        m_viewer = std::make_unique<VisuImg>(m_colours);
    m_viewer->bringUp();
    m_viewer->askForPicture();
}

void FrmSnapShoot::showHelp() {
    if (!platform::HelpViewer::showPage(QStringLiteral("capture.html")))
        platform::HelpViewer::showPage(QStringLiteral("index.html"));
}

void FrmSnapShoot::closeEvent(QCloseEvent* event) {
    if (m_viewer)
        m_viewer->close();
    event->accept();
    // `CmdFermer`: the editor comes back.
    if (m_editor)
        m_editor();
}

} // namespace capture::ui
