// The editor's four pads, Fichier, Edition, Couleurs and Effets, their help buttons and the
// commands behind their entries.
#include "editor/ui/FrmIcoEd.h"

#include "editor/PadTexts.h"
#include "editor/ui/CanvasView.h"
#include "effects/ui/FrmColAdj.h"
#include "effects/ui/FrmRndIcon.h"
#include "effects/ui/FrmShades.h"
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

    // Edition: the edit options list.
    m_editPad = buildPad("PopUpEdition", 88, static_cast<int>(kEditOptions.size()), 240);
    for (std::size_t i = 0; i < kEditOptions.size(); ++i) {
        auto* entry = addEntry(m_editPad, "CmdEditOpts", static_cast<int>(i), kEditOptions[i],
                               static_cast<int>(i), 232);
        connect(entry, &QAbstractButton::clicked, this,
                [this, i] { runEditOption(static_cast<int>(i)); });
    }
    // The clipboard viewer and the two captures come with their own windows.
    for (int waiting : {4, 7, 10})
        m_editPad->findChildren<platform::GradientButton*>()[waiting]->setEnabled(false);
    m_captureEntries = {m_editPad->findChildren<platform::GradientButton*>()[7],
                        m_editPad->findChildren<platform::GradientButton*>()[10]};

    // Couleurs.
    m_colourPad = buildPad("PopUpCouleur", 168, static_cast<int>(kColoursPad.size()), 240);
    for (std::size_t i = 0; i < kColoursPad.size(); ++i) {
        auto* entry = addEntry(m_colourPad, "CmdColorOpts", static_cast<int>(i), kColoursPad[i],
                               static_cast<int>(i), 232);
        connect(entry, &QAbstractButton::clicked, this,
                [this, i] { runColourOption(static_cast<int>(i)); });
    }
    m_dialogEntries[0] = m_colourPad->findChildren<platform::GradientButton*>()[2];

    // Effets, with the reflection pad below its entries.
    const int effects = static_cast<int>(kEffectsPad.size());
    m_effectsPad = buildPad("PopUpEffets", 248, effects + static_cast<int>(kMirrorPad.size()), 190);
    m_effectsPad->resize(m_effectsPad->width(), m_effectsPad->height() + 6);
    m_effectsPad->move(m_effectsPad->x(), kPadBottom - m_effectsPad->height());
    for (int i = 0; i < effects; ++i) {
        auto* entry = addEntry(m_effectsPad, "CmdEffetsOpts", i,
                               kEffectsPad[static_cast<std::size_t>(i)], i, 182);
        connect(entry, &QAbstractButton::clicked, this, [this, i] { runEffectOption(i); });
    }
    const auto effectEntries = m_effectsPad->findChildren<platform::GradientButton*>();
    m_dialogEntries[1] = effectEntries[1];
    m_dialogEntries[2] = effectEntries[2];
    for (int i = 0; i < 4; ++i) {
        auto* entry = addEntry(m_effectsPad, "CmdMirrorOpts", i,
                               kMirrorPad[static_cast<std::size_t>(i)], effects + i, 182);
        entry->move(entry->x(), entry->y() + 6);
        m_mirror[static_cast<std::size_t>(i)] = entry;
        connect(entry, &QAbstractButton::clicked, this, [this, i] { runMirrorOption(i); });
    }
    connectEffectDialogs();

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
    if (pad == m_effectsPad)
        for (int i = 0; i < 4; ++i)
            m_mirror[static_cast<std::size_t>(i)]->setEnabled(m_engine.reflectionEnabled(i));
    pad->raise();
    pad->show();
}

void FrmIcoEd::hidePads() {
    for (platform::GradientPanel* pad : {m_filePad, m_editPad, m_colourPad, m_effectsPad})
        if (pad != nullptr)
            pad->hide();
}

void FrmIcoEd::setDialogCommand(DialogEntry entry, std::function<void()> command) {
    const auto i = static_cast<std::size_t>(entry);
    m_dialogCommands[i] = std::move(command);
    m_dialogEntries[i]->setEnabled(static_cast<bool>(m_dialogCommands[i]));
}

void FrmIcoEd::connectEffectDialogs() {
    // Each dialog lives for one use. The canvas is redrawn whatever the answer: the colour
    // adjustment settles a floating picture before its dialog opens.
    setDialogCommand(DialogEntry::AdjustColours, [this] {
        effects::ui::FrmColAdj::run(m_engine, platform::dialogs(), this);
        apply(kRedraw);
    });
    setDialogCommand(DialogEntry::Gradient, [this] {
        effects::ui::FrmShades::run(m_engine, platform::dialogs(), this);
        apply(kRedraw);
    });
    setDialogCommand(DialogEntry::Kaleidoscope, [this] {
        effects::ui::FrmRndIcon::run(m_engine, platform::dialogs(), m_random, this);
        apply(kRedraw);
    });
}

void FrmIcoEd::runEditOption(int index) {
    hidePads();
    switch (index) {
    case 0:
    case 1:
        // The list settles a floating picture first; the keys do not.
        undoOrRedo(index == 0, true);
        break;
    case 2:
        cut();
        break;
    case 3:
        copy();
        break;
    case 5:
    case 6:
        paste(index == 6);
        break;
    case 8:
        apply(m_engine.DeleteSelection());
        break;
    case 7:
        CaptureScreenArea();
        break;
    case 9:
        apply(m_engine.SelectAll());
        break;
    case 10:
        captureZone();
        break;
    default:
        break;
    }
}

void FrmIcoEd::runColourOption(int index) {
    hidePads();
    switch (index) {
    case 0:
        apply(m_engine.greyLevels());
        break;
    case 1:
        apply(m_engine.negative());
        break;
    case 2:
        if (m_dialogCommands[0])
            m_dialogCommands[0]();
        break;
    case 3:
        showSixteenMillionColours();
        break;
    default:
        break;
    }
}

void FrmIcoEd::runEffectOption(int index) {
    hidePads();
    switch (index) {
    case 0:
        apply(m_engine.buttonEffect());
        break;
    case 1:
    case 2:
        if (const auto& command = m_dialogCommands[static_cast<std::size_t>(index)])
            command();
        break;
    case 3:
    case 4:
        apply(m_engine.flip(index));
        break;
    case 5:
    case 6:
        apply(m_engine.quarterTurn(index));
        break;
    default:
        break;
    }
}

void FrmIcoEd::runMirrorOption(int index) {
    hidePads();
    apply(m_engine.halfReflect(index));
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
