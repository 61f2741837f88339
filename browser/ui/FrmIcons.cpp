#include "browser/ui/FrmIcons.h"

#include "browser/PickerLayout.h"
#include "browser/ui/IcoWinPanel.h"
#include "browser/ui/PickerGrid.h"
#include "platform/ApplyScheme.h"
#include "platform/GradientButton.h"
#include "platform/HelpBubbles.h"
#include "platform/HelpViewer.h"
#include "platform/MakeButton.h"
#include "platform/Services.h"
#include "platform/TitleButton.h"
#include "platform/WindowKeys.h"
#include "platform/WindowStyle.h"

#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

namespace browser::ui {

namespace {

constexpr int kFrameLeft = 8;
constexpr int kFrameTop = 30;
constexpr int kFrameWidth = PickerLayout::kPerRow * PickerLayout::kPitch + PickerLayout::kMargin;
constexpr int kBarWidth = 17;

std::filesystem::path pathOf(const QString& path) {
    return std::filesystem::path(QFile::encodeName(path).toStdString());
}

QString shown(const std::filesystem::path& path) {
    return QFile::decodeName(QByteArray::fromStdString(path.native()));
}

} // namespace

FrmIcons::FrmIcons(PickerState& state, const shell::ColourScheme& colours,
                   const std::vector<std::filesystem::path>& windowsFolders, QWidget* parent)
    : QDialog(parent)
    , m_state(state) {
    const int width = kFrameLeft + kFrameWidth + kBarWidth + 8;
    m_title = platform::setUpWindow(*this, "FrmIcons", QStringLiteral("Orvanne®"),
                                    QSize(width, kFrameTop + PickerLayout::kFrameHeight + 66));

    m_frame = new QWidget(this);
    m_frame->setObjectName(QStringLiteral("PicFrame"));
    m_frame->setGeometry(kFrameLeft, kFrameTop, kFrameWidth, PickerLayout::kFrameHeight);
    m_grid = new PickerGrid(m_frame);
    m_grid->setGeometry(0, 0, kFrameWidth, PickerLayout::kFrameHeight);
    m_grid->setBackground(colours[shell::SchemeColour::Viewing]);
    connect(m_grid, &PickerGrid::released, this, &FrmIcons::select);

    m_bar = new QScrollBar(Qt::Vertical, this);
    m_bar->setObjectName(QStringLiteral("Vsb"));
    m_bar->setGeometry(kFrameLeft + kFrameWidth, kFrameTop, kBarWidth, PickerLayout::kFrameHeight);
    m_bar->setSingleStep(PickerLayout::kPitch);
    m_bar->setPageStep(PickerLayout::kFrameHeight);
    connect(m_bar, &QScrollBar::valueChanged, this, &FrmIcons::scrolled);

    const int lower = kFrameTop + PickerLayout::kFrameHeight + 6;
    m_info = new QLabel(this);
    m_info->setObjectName(QStringLiteral("LblInfo"));
    m_info->setGeometry(kFrameLeft, lower, width - 16, 18);

    struct Command {
        const char* name;
        const char* caption;
        const char* help;
    };
    const Command commands[] = {
        {"CmdBrowse", "Parcourir...", "Ouvrir un fichier ANI, DLL, EXE ou ICL"},
        {"CmdIcoWin", "Windows...", "Fichiers préselectionnés"},
        {"CmdOK", "OK", "Prendre l'icône sélectionnée"},
        {"CmdCancel", "Annuler", "Fermer sans prendre d'icône"},
    };
    const int buttonWidth = (width - 8 - 3 * 4) / 4;
    for (int i = 0; i < 4; ++i) {
        platform::makeButton(this, commands[i].name, QString::fromUtf8(commands[i].caption),
                             QString::fromUtf8(commands[i].help),
                             QRect(4 + i * (buttonWidth + 4), lower + 22, buttonWidth, 24));
    }
    auto button = [this](const char* name) {
        return findChild<platform::GradientButton*>(QString::fromLatin1(name));
    };
    connect(button("CmdBrowse"), &QAbstractButton::clicked, this, &FrmIcons::browse);
    connect(button("CmdOK"), &QAbstractButton::clicked, this, [this] {
        if (m_cells)
            accept();
    });
    connect(button("CmdCancel"), &QAbstractButton::clicked, this, &QDialog::reject);
    platform::setWindowKeys(*this,
                            {button("CmdOK"), button("CmdCancel"), [] {
                                 platform::HelpViewer::showPage(QStringLiteral("visualiseur.html"));
                             }});

    m_panel = new IcoWinPanel(windowsFolders, this);
    m_panel->move((width - m_panel->width()) / 2, kFrameTop + 20);
    m_panel->hide();
    connect(button("CmdIcoWin"), &QAbstractButton::clicked, this, [this] {
        m_panel->setVisible(!m_panel->isVisible());
        m_panel->raise();
    });
    connect(m_panel, &IcoWinPanel::chosen, this, [this](const std::filesystem::path& file) {
        if (openFile(file))
            m_state.choose(file);
    });

    platform::applyScheme(*this, colours);
    m_grid->setBackground(colours[shell::SchemeColour::Viewing]);
    openFile(m_state.file);
}

FrmIcons::~FrmIcons() = default;

bool FrmIcons::openFile(const std::filesystem::path& file) {
    std::optional<PickerCells> cells = picker::openIcons(file);
    if (!cells) {
        platform::Message message;
        message.title = QStringLiteral("Orvanne®");
        message.text = picker::noIconText(shown(file.filename()));
        message.icon = platform::MessageIcon::Exclamation;
        platform::dialogs().message(message);
        return false;
    }
    m_grid->setCells(nullptr);
    m_cells = std::move(cells);
    m_state.file = file;
    const int total = m_cells->count();
    m_grid->setFixedHeight(PickerLayout::gridHeight(total));
    m_grid->move(0, 0);
    {
        const QSignalBlocker quiet(m_bar);
        m_bar->setRange(0, PickerLayout::scrollRange(total));
        m_bar->setValue(0);
    }
    m_bar->setEnabled(PickerLayout::scrolls(total));
    m_grid->setCells(&*m_cells);
    select(1);
    const QString title = picker::windowTitle(m_state.fileName(), total);
    setWindowTitle(title);
    // A long file name is shortened in its middle on the title button, never cut at its ends.
    m_title->setText(
        m_title->fontMetrics().elidedText(title, Qt::ElideMiddle, m_title->width() - 12));
    // The first rows show at once; the rest of the view follows pass by pass.
    if (!decodeRowsInView())
        scheduleDecoding();
    return true;
}

void FrmIcons::select(int number) {
    m_selected = number;
    m_grid->setSelected(number);
    m_info->setText(picker::infoText(number));
}

int FrmIcons::takenIcon() const {
    return m_cells ? picker::takenIcon(m_state.file, m_cells->source(), m_selected) : 0;
}

bool FrmIcons::decodeRowsInView() {
    if (!m_cells)
        return true;
    const auto rows = PickerLayout::rowsInView(m_bar->value(), m_cells->count());
    const bool done = m_cells->decode(rows.first * PickerLayout::kPerRow + 1,
                                      (rows.last + 1) * PickerLayout::kPerRow);
    m_grid->update();
    return done;
}

void FrmIcons::scheduleDecoding() {
    if (m_decodingScheduled)
        return;
    m_decodingScheduled = true;
    QTimer::singleShot(0, this, [this] {
        m_decodingScheduled = false;
        if (!decodeRowsInView())
            scheduleDecoding();
    });
}

void FrmIcons::scrolled(int value) {
    m_grid->move(0, -value);
    if (!decodeRowsInView())
        scheduleDecoding();
}

void FrmIcons::wheelEvent(QWheelEvent* event) {
    // The wheel over the grid turns the grid's bar.
    QCoreApplication::sendEvent(m_bar, event);
}

void FrmIcons::browse() {
    m_panel->hide();
    platform::FileRequest request;
    request.title = picker::openTitle();
    request.filter = picker::openFilter();
    request.folder = shown(m_state.lastFolder);
    request.filterIndex = m_state.filterIndex;
    const auto choice = platform::dialogs().openFile(request);
    if (!choice)
        return;
    const std::filesystem::path file = pathOf(choice->path);
    m_state.lastFolder = file.parent_path();
    m_state.filterIndex = choice->filterIndex;
    if (openFile(file))
        m_state.choose(file);
}

} // namespace browser::ui
