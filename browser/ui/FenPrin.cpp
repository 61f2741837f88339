#include "browser/ui/FenPrin.h"

#include "browser/ui/FenPrinLayout.h"

#include "browser/BrowserInput.h"
#include "browser/FolderTree.h"
#include "browser/ui/CentrePicture.h"
#include "browser/ui/IconGridView.h"
#include "browser/ui/PopUpInfos.h"
#include "platform/GradientButton.h"
#include "platform/GradientPanel.h"
#include "platform/Services.h"
#include "platform/WindowKeys.h"
#include "platform/WindowStyle.h"
#include "shell/AppState.h"
#include "shell/DataFiles.h"

#include "icon/FileBytes.h"
#include "iconqt/Paths.h"

#include <QComboBox>
#include <QDir>
#include <QDropEvent>
#include <QEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QListWidget>
#include <QMimeData>
#include <QStyle>
#include <QWindow>

namespace browser::ui {

namespace {

using namespace layout;
using platform::twips;
using shell::SchemeColour;

shell::Preferences& preferences() {
    return shell::appState().preferences;
}

} // namespace

FenPrin::FenPrin(const ThumbnailProvider& provider, QWidget* parent)
    : QWidget(parent)
    , m_grid(provider) {
    setObjectName(QStringLiteral("FenPrin"));
    setWindowTitle(QStringLiteral("Orvanne®"));
    platform::makeFrameless(*this);
    setFixedSize(twips(7860), twips(5440));

    // What the main window reads while it loads: colours, grid view, help bubbles.
    preferences() = shell::Preferences::load(shell::Settings());
    shell::AppState& state = shell::appState();
    const QString library = shell::DataFiles::find(state.iconLibraryName);
    state.iconLibraryPath =
        library.isEmpty() ? shell::DataFiles::expected(state.iconLibraryName) : library;
    state.helpFile = shell::DataFiles::find(QStringLiteral("help/index.html"));
    m_grid.setView(preferences().icons48 ? GridView::Icons48 : GridView::Icons32);

    buildTitleRow();
    buildLists();
    buildCommands();
    buildExtraction();
    buildGrid();
    buildMoves();
    m_popUp = new PopUpInfos(this);
    m_popUp->hide();
    connect(m_popUp, &PopUpInfos::coloursChanged, this, &FenPrin::applyColours);
    connect(m_popUp, &PopUpInfos::aboutRequested, this, &FenPrin::aboutRequested);

    for (const char* name : kMoveCommands)
        m_ready.insert(QString::fromLatin1(name));
    connectFileCommands();
    applyColours();
    placeGrids();
    clearGrid();

    // The lists would take the grid's keys for their own highlight.
    m_folders->installEventFilter(this);
    m_drives->installEventFilter(this);
    platform::setWindowKeys(*this, {nullptr, nullptr, [this] {
                                        showHelp(true);
                                    }});
    setAcceptDrops(true);
}

FenPrin::~FenPrin() = default;

void FenPrin::setCommandReady(const QString& name) {
    m_ready.insert(name);
    if (auto* button = findChild<platform::GradientButton*>(name)) {
        const bool fileCommand =
            std::any_of(std::begin(kFileCommands), std::end(kFileCommands),
                        [&](const char* c) { return name == QLatin1String(c); });
        button->setEnabled(!fileCommand || m_grid.count() > 0);
    }
}

QString FenPrin::countText() const {
    return m_count->text();
}

QString FenPrin::pathText() const {
    return m_path->text();
}

void FenPrin::applyColours() {
    const shell::ColourScheme& colours = preferences().colours;
    const auto start = colours[SchemeColour::GradientStart];
    const auto end = colours[SchemeColour::GradientEnd];
    const auto viewing = colours[SchemeColour::Viewing];
    const auto other = colours[SchemeColour::OtherText];
    platform::setBackground(*this, colours[SchemeColour::WindowBackground]);
    static const QSet<QString> titled{QStringLiteral("CmdDeplaceFen"), QStringLiteral("CmdReduire"),
                                      QStringLiteral("CmdFermer")};
    for (auto* button : findChildren<platform::GradientButton*>(Qt::FindDirectChildrenOnly)) {
        button->setStartColour(start);
        button->setEndColour(end);
        if (titled.contains(button->objectName())) {
            button->setTextColour(colours[SchemeColour::ButtonText]);
            button->setLightColour(colours[SchemeColour::ButtonLight]);
        }
        if (button->objectName() == QLatin1String("CmdApropos"))
            button->setLightColour(colours[SchemeColour::ButtonLight]);
    }
    for (auto* panel : findChildren<platform::GradientPanel*>(Qt::FindDirectChildrenOnly))
        panel->setColours(start, end);
    m_count->setTextColour(colours[SchemeColour::ButtonText]);
    m_path->setTextColour(other);
    m_popUp->applyColours(colours);
    for (QWidget* list : {static_cast<QWidget*>(m_drives), static_cast<QWidget*>(m_folders)}) {
        QPalette palette = list->palette();
        for (auto role : {QPalette::Base, QPalette::Window, QPalette::Button})
            palette.setColor(role, platform::toQColor(viewing));
        for (auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
            palette.setColor(role, platform::toQColor(other));
        list->setPalette(palette);
    }
    for (IconGridView* view : {m_fond, m_fond48}) {
        view->setBackground(viewing);
        view->centre().setBackground(viewing);
    }
}

void FenPrin::changeEvent(QEvent* event) {
    // The tips window may have changed the tips flag while this window was not active.
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_popUp->refreshCaptions();
    QWidget::changeEvent(event);
}

void FenPrin::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    // On a screen of another scale the cells are decoded again for its pixels.
    if (m_followsScreen || windowHandle() == nullptr)
        return;
    m_followsScreen = true;
    connect(windowHandle(), &QWindow::screenChanged, this, [this] {
        if (m_grid.count() > 0 && m_grid.deviceScale() != devicePixelRatioF())
            displayGrid();
    });
}

void FenPrin::openFolder(const QString& folder, MissingFolder report) {
    openFolder(iconqt::pathFromText(QDir::cleanPath(QDir(folder).absolutePath())), report);
}

void FenPrin::openFolder(const std::filesystem::path& folder, MissingFolder report) {
    std::error_code error;
    std::filesystem::path real = std::filesystem::absolute(folder, error).lexically_normal();
    if (real.native().size() > 1 && real.native().back() == '/')
        real = real.parent_path();
    const QString clean = iconqt::textFromPath(real);
    const ScanResult result = std::filesystem::is_directory(real, error)
                                  ? m_grid.openFolder(real)
                                  : ScanResult::FolderMissing;
    if (m_centreOn && result == ScanResult::Listed)
        m_grid.centreOn(*m_centreOn);
    m_centreOn.reset();
    if (result == ScanResult::FolderMissing) {
        if (report == MissingFolder::Report)
            showFolderMissing();
        else
            m_drives->setCurrentIndex(m_drives->findData(volumeOf(m_folder, m_volumes)));
        return;
    }
    m_folder = clean;
    fillFolderList(real);
    const int drive = m_drives->findData(volumeOf(clean, m_volumes));
    if (drive >= 0)
        m_drives->setCurrentIndex(drive);
    showScanResult(result);
}

void FenPrin::showFolderMissing() {
    platform::Message message;
    message.title = QStringLiteral("Chemin d'accès introuvable");
    message.text = QStringLiteral("Vous avez probablement supprimé ce dossier depuis "
                                  "l'Explorateur.\nCliquez sur un nom de dossier valide.");
    message.icon = platform::MessageIcon::Exclamation;
    platform::dialogs().message(message);
}

void FenPrin::fillFolderList(const std::filesystem::path& folder) {
    m_folders->clear();
    // The grid has just read the folder: its subfolders come from that same pass.
    const auto items = folderItems(folder, m_grid.subfolders());
    for (const FolderItem& entry : items) {
        auto* item = new QListWidgetItem(
            style()->standardIcon(entry.open ? QStyle::SP_DirOpenIcon : QStyle::SP_DirClosedIcon),
            entry.name, m_folders);
        item->setData(kDepthRole, entry.depth);
        item->setData(kPathRole, QByteArray::fromStdString(entry.file.native()));
    }
    m_folders->setCurrentRow(currentItem(items));
    m_folders->scrollToItem(m_folders->currentItem());
}

void FenPrin::folderItemClicked(QListWidgetItem* item) {
    hidePopUp();
    if (item == nullptr)
        return;
    const std::filesystem::path folder(item->data(kPathRole).toByteArray().toStdString());
    // The open folder's own name refreshes it where it stands.
    std::error_code error;
    const std::filesystem::path shown = m_grid.folderPath().lexically_normal();
    if (std::filesystem::equivalent(folder, shown, error))
        reactualiser();
    else
        openFolder(folder);
}

void FenPrin::driveChosen(int index) {
    hidePopUp();
    // A drive that cannot be read leaves the folder list where it was, without a word.
    if (index >= 0)
        openFolder(m_drives->itemData(index).toString(), MissingFolder::KeepQuiet);
}

void FenPrin::reactualiser() {
    showScanResult(m_grid.refresh());
}

void FenPrin::showScanResult(ScanResult result) {
    switch (result) {
    case ScanResult::FolderMissing:
        // The folder went away under the list: say so, and keep what the grid showed.
        showFolderMissing();
        return;
    case ScanResult::Empty:
        clearGrid();
        return;
    case ScanResult::Listed:
        displayGrid();
        return;
    }
}

void FenPrin::clearGrid() {
    m_fond->update();
    m_fond48->update();
    m_fond->centre().update();
    m_fond48->centre().update();
    m_path->setText(m_grid.pathText());
    m_count->setText(m_grid.countText());
    enableCommands(false);
}

void FenPrin::displayGrid() {
    // Cells are decoded for the screen's pixels: sharp at any scale factor.
    m_grid.setDeviceScale(devicePixelRatioF());
    const bool complete = m_grid.loadPage();
    for (IconGridView* view : {m_fond, m_fond48}) {
        view->update();
        view->centre().update();
    }
    if (m_grid.count() > 0) {
        m_path->setText(m_grid.pathText());
        m_count->setText(m_grid.countText());
        enableCommands(true);
    }
    // The grid shows what is still there; a click on the folder's name lists it again.
    if (!complete)
        showFileMissing();
}

void FenPrin::showFileMissing() {
    platform::Message message;
    message.title = QStringLiteral("Fichier non trouvé");
    message.text =
        QStringLiteral("Vous avez probablement supprimé une icône depuis l'Explorateur.\n"
                       "Cliquez sur le nom du dossier ouvert pour réactualiser la "
                       "fenêtre d'affichage.");
    message.icon = platform::MessageIcon::Exclamation;
    platform::dialogs().message(message);
}

void FenPrin::enableCommands(bool on) {
    auto enable = [&](const char* name) {
        const QString objectName = QString::fromLatin1(name);
        if (auto* button = findChild<platform::GradientButton*>(objectName))
            button->setEnabled(on && m_ready.contains(objectName));
    };
    std::for_each(std::begin(kFileCommands), std::end(kFileCommands), enable);
    std::for_each(std::begin(kMoveCommands), std::end(kMoveCommands), enable);
}

void FenPrin::moveIndex(const std::function<void()>& step) {
    hidePopUp();
    step();
    displayGrid();
}

void FenPrin::switchView() {
    hidePopUp();
    shell::Settings settings;
    preferences().setIcons48(settings, !preferences().icons48);
    findChild<platform::GradientButton*>(QStringLiteral("CmdIco48"))
        ->setText(shell::toggleCaption(QStringLiteral("Icônes 48x48"), preferences().icons48));
    const ScanResult result = m_grid.switchView();
    placeGrids();
    showScanResult(result);
}

void FenPrin::placeGrids() {
    m_fond48->setVisible(m_grid.view() == GridView::Icons48);
    if (m_fond48->isVisible())
        m_fond48->move(kGridPlace);
}

void FenPrin::reloadCentre() {
    hidePopUp();
    if (!m_grid.reloadCentre())
        showFileMissing();
    m_fond->centre().update();
    m_fond48->centre().update();
}

void FenPrin::centreRightPressed() {
    hidePopUp();
    const IconEntry* centred = m_grid.centred();
    // The editor comes with its own window; until it is there the right button does nothing.
    if (centred == nullptr || !m_showEditor)
        return;
    platform::sound().playClick();
    m_showEditor(centred->file);
}

void FenPrin::chooseGridBackground(bool centre) {
    hidePopUp();
    IconGridView* view = m_grid.view() == GridView::Icons48 ? m_fond48 : m_fond;
    const icon::Colour initial = centre ? view->centre().background() : view->background();
    const auto chosen = platform::dialogs().chooseColour(initial);
    if (!chosen)
        return;
    if (centre)
        view->centre().setBackground(*chosen);
    else
        view->setBackground(*chosen);
}

bool FenPrin::gridKeyPressed(QKeyEvent* event) {
    if ((event->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    const std::optional<GridKey> key = gridKey(event->key());
    if (!key)
        return false;
    if (*key == GridKey::Edit)
        centreRightPressed();
    else
        moveIndex([this, key] { applyGridKey(m_grid, *key); });
    return true;
}

bool FenPrin::eventFilter(QObject* watched, QEvent* event) {
    if ((watched == m_folders || watched == m_drives) && event->type() == QEvent::KeyPress)
        return gridKeyPressed(static_cast<QKeyEvent*>(event));
    return QWidget::eventFilter(watched, event);
}

void FenPrin::keyPressEvent(QKeyEvent* event) {
    if (!gridKeyPressed(event))
        QWidget::keyPressEvent(event);
}

namespace {

// The first local file of a drag, where the main window would take it.
std::optional<DropTarget> droppedTarget(const QMimeData* data) {
    if (data == nullptr || !data->hasUrls() || data->urls().isEmpty() ||
        !data->urls().front().isLocalFile())
        return std::nullopt;
    return dropTarget(iconqt::pathFromText(data->urls().front().toLocalFile()));
}

} // namespace

void FenPrin::dragEnterEvent(QDragEnterEvent* event) {
    if (droppedTarget(event->mimeData()))
        event->acceptProposedAction();
}

void FenPrin::dropEvent(QDropEvent* event) {
    const std::optional<DropTarget> target = droppedTarget(event->mimeData());
    if (!target)
        return;
    event->acceptProposedAction();
    hidePopUp();
    m_centreOn = target->icon;
    openFolder(target->folder);
}

void FenPrin::hidePopUp() {
    m_popUp->hide();
}

void FenPrin::togglePopUp() {
    if (m_popUp->isVisible()) {
        m_popUp->hide();
        return;
    }
    m_popUp->move(kPopUpPlace);
    m_popUp->refreshCaptions();
    m_popUp->show();
    m_popUp->raise();
}

} // namespace browser::ui
