// The editor's four pads, Fichier, Edition, Couleurs and Effets, their help buttons and the
// commands behind their entries.
#include "editor/ui/FrmIcoEd.h"

#include "editor/EditorCommands.h"
#include "editor/ui/CanvasView.h"
#include "platform/ClipboardViewer.h"
#include "platform/DisplayMode.h"
#include "platform/GradientButton.h"
#include "platform/GradientPanel.h"
#include "platform/HelpBubbles.h"
#include "platform/HelpViewer.h"
#include "platform/Services.h"

#include <QEvent>

namespace editor::ui {

namespace {

constexpr int kPadRow = 362;    // the pad buttons
constexpr int kPadBottom = 358; // the pop-up pads rise from here
constexpr int kEntryHeight = 20;
constexpr int kWindowWidth = 558;
constexpr int kScreenDepthWanted = 32;

// The help page of each help context of the editor.
QString helpPage(int context) {
    switch (context) {
    case 6:
        return QStringLiteral("editeur-fichier.html");
    case 7:
        return QStringLiteral("editeur-edition.html");
    case 8:
        return QStringLiteral("editeur-effets.html");
    case 9:
        return QStringLiteral("editeur-couleurs.html");
    default:
        return QStringLiteral("editeur.html");
    }
}

} // namespace

void FrmIcoEd::buildPads() {
    struct PadButton {
        const char* name;
        const char* caption;
        const char* help;
        const char* helpName;
        const char* helpTip;
        int context;
    };
    static const PadButton pads[] = {
        {"CmdFichier", "Fichier", "Outils 'Fichier'/Chargement icône centrée", "BasFichier",
         "Appel de l'aide sur les outils 'Fichier'", 6},
        {"CmdEdition", "Edition", "Outils 'Edition'", "BasEdition",
         "Appel de l'aide sur les outils 'Edition'", 7},
        {"CmdCouleur", "Couleurs", "Outils 'Couleurs'", "BasCouleur",
         "Appel de l'aide sur les outils 'Couleurs'", 9},
        {"CmdEffets", "Effets", "Outils 'Effets'", "BasEffets",
         "Appel de l'aide sur les outils 'Effets'", 8},
    };

    // Fichier.
    m_filePad = buildPad("PopUpFichier", 8, 5, 170);
    struct FileEntry {
        const char* name;
        const char* caption;
        const char* help;
    };
    static const FileEntry files[] = {
        {"CmdNew", "Nouveau", "Nouvelle icône"},
        {"CmdOpen", "Ouvrir...", "Ouvrir un fichier d'icône"},
        {"CmdSave", "Enregistrer", "Enregistrer l'icône sous son nom actuel"},
        {"CmdSaveAs", "Enregistrer sous...", "Enregistrer l'icône sous un autre nom"},
        {"CmdRappel", "Rappel", "Rappel de la dernière icône chargée ou sauvée"},
    };
    std::array<platform::GradientButton*, 5> fileButtons{};
    for (int i = 0; i < 5; ++i)
        fileButtons[static_cast<std::size_t>(i)] =
            addButton(m_filePad, files[i].name, QString::fromUtf8(files[i].caption),
                      QString::fromUtf8(files[i].help),
                      QRect(4, 4 + i * kEntryHeight, 162, kEntryHeight - 1));
    connect(fileButtons[0], &QAbstractButton::clicked, this, [this] {
        runFileCommand([this] { return m_document->newCommand(); }, FileCommand::New);
    });
    connect(fileButtons[1], &QAbstractButton::clicked, this, [this] {
        runFileCommand([this] { return m_document->OpenIcon(); }, FileCommand::Open);
    });
    connect(fileButtons[2], &QAbstractButton::clicked, this,
            [this] { runFileCommand([this] { return m_document->save(); }, FileCommand::Save); });
    connect(fileButtons[3], &QAbstractButton::clicked, this,
            [this] { runFileCommand([this] { return m_document->saveAs(); }, FileCommand::Save); });
    m_recall = fileButtons[4];
    connect(m_recall, &QAbstractButton::clicked, this,
            [this] { runFileCommand([this] { return m_document->recall(); }, FileCommand::Open); });

    // The command pads, built from the editor's table of commands. The reflections sit on the
    // Effets pad, below its entries.
    m_editPad =
        buildPad("PopUpEdition", 88, static_cast<int>(padCommands(Pad::Edition).size()), 240);
    m_colourPad =
        buildPad("PopUpCouleur", 168, static_cast<int>(padCommands(Pad::Couleurs).size()), 240);
    const int effects = static_cast<int>(padCommands(Pad::Effets).size());
    m_effectsPad = buildPad("PopUpEffets", 248,
                            effects + static_cast<int>(padCommands(Pad::Reflets).size()), 190);
    m_effectsPad->resize(m_effectsPad->width(), m_effectsPad->height() + 6);
    m_effectsPad->move(m_effectsPad->x(), kPadBottom - m_effectsPad->height());
    for (const EditorCommand& command : editorCommands()) {
        struct Place {
            platform::GradientPanel* pad;
            const char* list;
            int row;
            int width;
            int drop;
        };
        const Place place = [&]() -> Place {
            switch (command.pad) {
            case Pad::Edition:
                return {m_editPad, "CmdEditOpts", command.index, 232, 0};
            case Pad::Couleurs:
                return {m_colourPad, "CmdColorOpts", command.index, 232, 0};
            case Pad::Effets:
                return {m_effectsPad, "CmdEffetsOpts", command.index, 182, 0};
            case Pad::Reflets:
                break;
            }
            return {m_effectsPad, "CmdMirrorOpts", effects + command.index, 182, 6};
        }();
        auto* entry =
            addEntry(place.pad, place.list, command.index, command.text, place.row, place.width);
        entry->move(entry->x(), entry->y() + place.drop);
        const Command name = command.command;
        connect(entry, &QAbstractButton::clicked, this,
                [this, name] { runCommand(name, Origin::Pad); });
        m_entries[static_cast<std::size_t>(name)] = entry;
    }
    // What needs only the clipboard or the display is the window's own; what opens another
    // window waits for whoever composes the program to put it here.
    setCommand(Command::Cut, [this] { cut(); });
    setCommand(Command::Copy, [this] { copy(); });
    setCommand(Command::Paste, [this] { paste(false); });
    setCommand(Command::PasteOpaque, [this] { paste(true); });
    setCommand(Command::SixteenMillionColours, [this] { showSixteenMillionColours(); });
    setCommand(Command::ClipboardViewer, [] { platform::ClipboardViewer::showViewer(); });
    for (const EditorCommand& command : editorCommands())
        if (command.run == nullptr && !m_commands[static_cast<std::size_t>(command.command)])
            m_entries[static_cast<std::size_t>(command.command)]->setEnabled(false);

    // The pad buttons and their help buttons.
    const std::array<platform::GradientPanel*, 4> popUps{m_filePad, m_editPad, m_colourPad,
                                                         m_effectsPad};
    for (std::size_t i = 0; i < 4; ++i) {
        const PadButton& p = pads[i];
        const int x = 8 + static_cast<int>(i) * 80;
        auto* button = addButton(this, p.name, QString::fromUtf8(p.caption),
                                 QString::fromUtf8(p.help), QRect(x, kPadRow, 76, 24));
        button->installEventFilter(this);
        platform::GradientPanel* pad = popUps[i];
        connect(button, &QAbstractButton::clicked, this, [this, pad] { showPad(pad); });
        auto* help = addButton(this, p.helpName, QStringLiteral("?"), QString::fromUtf8(p.helpTip),
                               QRect(x, kPadRow + 26, 76, 16));
        const int context = p.context;
        connect(help, &QAbstractButton::clicked, this, [this, context] { showHelp(context); });
    }
    // The Fichier pad's right button opens the icon the browser handed over.
    connect(findChild<platform::GradientButton*>(QStringLiteral("CmdFichier")),
            &platform::GradientButton::rightPressed, this, [this] {
                if (m_document->hasOpenRequest())
                    runFileCommand([this] { return m_document->OpenIcon(); }, FileCommand::Open);
            });
    auto* help =
        addButton(this, "CmdAide", QStringLiteral("Aide"),
                  QStringLiteral("Appel de l'aide sur l'éditeur"), QRect(342, kPadRow + 2, 90, 24));
    connect(help, &QAbstractButton::clicked, this, [this] { showHelp(3); });
}

platform::GradientPanel* FrmIcoEd::buildPad(const char* name, int x, int rows, int width) {
    auto* pad = new platform::GradientPanel(this);
    pad->setObjectName(QString::fromLatin1(name));
    const int height = rows * kEntryHeight + 8;
    pad->setGeometry(std::min(x, kWindowWidth - 4 - width), kPadBottom - height, width, height);
    pad->hide();
    return pad;
}

platform::GradientButton* FrmIcoEd::addEntry(platform::GradientPanel* pad, const char* name,
                                             int index, const char* text, int row, int width) {
    auto* entry = addButton(pad, name, QString::fromUtf8(text), QString::fromUtf8(text),
                            QRect(4, 4 + row * kEntryHeight, width, kEntryHeight - 1));
    entry->setProperty("index", index);
    return entry;
}

bool FrmIcoEd::eventFilter(QObject* watched, QEvent* event) {
    // Moving over a pad button hides the other pads.
    if (event->type() == QEvent::Enter) {
        static const char* const names[] = {"CmdFichier", "CmdEdition", "CmdCouleur", "CmdEffets"};
        const std::array<platform::GradientPanel*, 4> popUps{m_filePad, m_editPad, m_colourPad,
                                                             m_effectsPad};
        for (std::size_t i = 0; i < 4; ++i)
            if (watched->objectName() != QLatin1String(names[i]))
                popUps[i]->hide();
    }
    return QWidget::eventFilter(watched, event);
}

void FrmIcoEd::showPad(platform::GradientPanel* pad) {
    const bool wasVisible = pad->isVisible();
    hidePads();
    if (wasVisible)
        return;
    for (const EditorCommand& command : editorCommands())
        if (command.enabled != nullptr)
            m_entries[static_cast<std::size_t>(command.command)]->setEnabled(
                command.enabled(m_engine));
    pad->raise();
    pad->show();
}

void FrmIcoEd::hidePads() {
    for (platform::GradientPanel* pad : {m_filePad, m_editPad, m_colourPad, m_effectsPad})
        if (pad != nullptr)
            pad->hide();
}

void FrmIcoEd::setCommand(Command command, std::function<void()> run) {
    const auto i = static_cast<std::size_t>(command);
    m_commands[i] = std::move(run);
    if (m_entries[i] != nullptr)
        m_entries[i]->setEnabled(static_cast<bool>(m_commands[i]));
}

bool FrmIcoEd::runCommand(Command name, Origin origin) {
    hidePads();
    const EditorCommand& command = commandInfo(name);
    if (command.run != nullptr) {
        if (command.enabled != nullptr && !command.enabled(m_engine))
            return true;
        const Events events = command.run(m_engine, origin);
        apply(events);
        if (events & kHistoryFailed)
            showKeyboardError();
        return true;
    }
    if (const auto& run = m_commands[static_cast<std::size_t>(name)]) {
        run();
        return true;
    }
    return false;
}

void FrmIcoEd::showSixteenMillionColours() {
    // A display of 24 bits or more already shows 16 million colours: the click says so.
    platform::changeDisplayDepth(kScreenDepthWanted);
}

void FrmIcoEd::showHelp(int context) {
    hidePads();
    platform::HelpViewer::showPage(helpPage(context));
}

} // namespace editor::ui
