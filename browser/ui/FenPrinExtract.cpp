// The main window's commands on icons held in other files and on BMP files: the icon picker,
// ICO to BMP for the centred icon and for the icon taken, and the BMP viewer.
#include "browser/ui/FenPrin.h"

#include "browser/NameRules.h"
#include "browser/WindowsFiles.h"
#include "browser/ui/CentrePicture.h"
#include "browser/ui/FrmIcons.h"
#include "browser/ui/IconGridView.h"
#include "browser/ui/PopUpInfos.h"
#include "browser/ui/VisuBMP.h"
#include "icon/BmpWriter.h"
#include "icon/FileBytes.h"
#include "iconqt/FrameImage.h"
#include "iconqt/Paths.h"
#include "platform/GradientButton.h"
#include "platform/Services.h"
#include "shell/AppState.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>

namespace browser::ui {

namespace {

// The hidden picture the taken icon is drawn on has the classic grey of a picture box.
constexpr icon::Colour kPicIconBackground = 0xC0C0C0;

std::filesystem::path pathOf(const QString& path) {
    return std::filesystem::path(QFile::encodeName(path).toStdString());
}

QString shown(const std::filesystem::path& path) {
    return QFile::decodeName(QByteArray::fromStdString(path.native()));
}

} // namespace

void FenPrin::buildExtraction() {
    m_picker = PickerState::startingOn(pathOf(shell::appState().iconLibraryPath));
    m_windowsFolders = WindowsFiles::foldersOfThisUser();
    m_picIcon = new QLabel(this);
    m_picIcon->setObjectName(QStringLiteral("PicIcon"));
    m_picIcon->setGeometry(0, 0, 32, 32);
    m_picIcon->hide();

    auto button = [this](const char* name) {
        return findChild<platform::GradientButton*>(QString::fromLatin1(name));
    };
    connect(button("CmdDLL"), &QAbstractButton::clicked, this, &FenPrin::takeIconFromFile);
    connect(button("CmdIcoBmp"), &QAbstractButton::clicked, this, &FenPrin::iconToBmp);
    connect(button("CmdIcoBmpDLL"), &QAbstractButton::clicked, this, &FenPrin::takenIconToBmp);
    connect(button("CmdVisuBmp"), &QAbstractButton::clicked, this, &FenPrin::showBmpViewer);
    for (const char* name : {"CmdDLL", "CmdIcoBmp", "CmdVisuBmp"})
        setCommandReady(QString::fromLatin1(name));
}

void FenPrin::takeIconFromFile() {
    hidePopUp();
    FrmIcons picker(m_picker, shell::appState().preferences.colours, m_windowsFolders, this);
    if (platform::dialogs().runModal(picker) != QLatin1String("Ok") || picker.cells() == nullptr)
        return;
    const icon::IconPlanes planes = picker.cells()->source().planes(picker.takenIcon());
    m_taken = icon::compose(planes, kPicIconBackground, 1);
    const QImage image = iconqt::toImage(m_taken);
    m_picIcon->setPixmap(QPixmap::fromImage(image));
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setImage(image);
    platform::sound().playClick();
    // There is an icon to write as a BMP from now on.
    findChild<platform::GradientButton*>(QStringLiteral("CmdIcoBmpDLL"))->setEnabled(true);
}

void FenPrin::iconToBmp() {
    hidePopUp();
    const IconEntry* centred = m_grid.centred();
    const GridGeometry& geometry = m_grid.geometry();
    IconGridView* view = m_grid.view() == GridView::Icons48 ? m_fond48 : m_fond;
    const icon::Frame picture = BmpExport::picture(centred ? m_grid.cell(geometry.centre) : nullptr,
                                                   geometry.cellSize, view->centre().background());
    m_bmpName = proposedBmpName(centred ? iconqt::textFromPath(centred->file) : QString());
    saveBmp(m_bmpName, picture);
}

void FenPrin::takenIconToBmp() {
    hidePopUp();
    if (m_taken.isEmpty())
        return;
    saveBmp(m_bmpName.isEmpty() ? QStringLiteral("*.bmp") : m_bmpName, m_taken);
}

void FenPrin::saveBmp(const QString& proposed, const icon::Frame& picture) {
    platform::FileRequest request;
    request.title = BmpExport::title();
    request.filter = BmpExport::filter();
    request.folder = shown(m_bmp.folder);
    request.fileName = proposed;
    const auto choice = platform::dialogs().saveFile(request);
    if (!choice)
        return;
    // A write that fails leaves the old file whole; the command ends without a word.
    if (!icon::writeBmpFile(pathOf(choice->path), picture))
        return;
    const std::filesystem::path written = pathOf(choice->path);
    m_bmp.written(written);
    m_bmpName = shown(written.filename());
}

void FenPrin::showBmpViewer() {
    hidePopUp();
    if (m_visuBmp == nullptr) {
        m_visuBmp = new VisuBMP(m_folder, shell::appState().preferences.colours, this);
        m_visuBmp->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_visuBmp->show();
    m_visuBmp->raise();
    m_visuBmp->activateWindow();
}

} // namespace browser::ui
