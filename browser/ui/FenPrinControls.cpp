// The controls of the main window, where they lie and what they are wired to.
#include "browser/ui/FenPrin.h"

#include "browser/ui/FenPrinLayout.h"

#include "browser/ui/CentrePicture.h"
#include "browser/ui/IconGridView.h"
#include "browser/ui/MovePictures.h"
#include "browser/ui/PopUpInfos.h"
#include "platform/GradientButton.h"
#include "platform/GradientPanel.h"
#include "platform/HelpBubbles.h"
#include "platform/Services.h"
#include "platform/TitleButton.h"
#include "platform/WindowStyle.h"
#include "shell/AppState.h"
#include "shell/ColourScheme.h"

#include <QComboBox>
#include <QListWidget>
#include <QPainter>
#include <QStyle>
#include <QStyledItemDelegate>

namespace browser::ui {

namespace {

using namespace layout;
using platform::twips;

// The folder list indents each folder by its depth, as the classic folder list does.
class FolderDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem indented(option);
        indented.rect.adjust(index.data(kDepthRole).toInt() * 10, 0, 0, 0);
        QStyledItemDelegate::paint(painter, indented, index);
    }
};

} // namespace

void FenPrin::buildTitleRow() {
    auto* title = new platform::TitleButton(QStringLiteral("Orvanne®"), this);
    title->setGeometry(4, 4, 404, 22);
    auto* options = addCommand("CmdApropos", QStringLiteral("Options"),
                               QStringLiteral("Couleurs, préférences et à propos de Orvanne®"),
                               QRect(412, 4, 60, 22));
    connect(options, &QAbstractButton::clicked, this, &FenPrin::togglePopUp);
    auto* minimise = addCommand("CmdReduire", {}, QStringLiteral("Réduire"), QRect(476, 4, 22, 22));
    minimise->setPicture(windowPicture(WindowPicture::Minimise), Qt::AlignCenter);
    connect(minimise, &QAbstractButton::clicked, this, [this] {
        hidePopUp();
        showMinimized();
    });
    auto* close = addCommand("CmdFermer", {}, QStringLiteral("Fermer"), QRect(500, 4, 20, 22));
    close->setPicture(windowPicture(WindowPicture::Close), Qt::AlignCenter);
    connect(close, &QAbstractButton::clicked, this, &QWidget::close);
}

void FenPrin::buildLists() {
    auto* frame = new platform::GradientPanel(this);
    frame->setObjectName(QStringLiteral("Forme3"));
    frame->setGeometry(4, 30, 211, 180);

    m_drives = new QComboBox(this);
    m_drives->setObjectName(QStringLiteral("Lecteur"));
    m_drives->setGeometry(8, 34, 203, 22);
    m_volumes = mountedVolumes();
    for (const Volume& volume : m_volumes)
        m_drives->addItem(style()->standardIcon(QStyle::SP_DriveHDIcon), volume.text(),
                          volume.root);
    connect(m_drives, &QComboBox::activated, this, &FenPrin::driveChosen);

    m_folders = new QListWidget(this);
    m_folders->setObjectName(QStringLiteral("Repertoire"));
    m_folders->setGeometry(8, 60, 203, 146);
    m_folders->setItemDelegate(new FolderDelegate(m_folders));
    m_folders->setIconSize(QSize(16, 16));
    m_folders->setFrameShape(QFrame::NoFrame);
    connect(m_folders, &QListWidget::itemClicked, this, &FenPrin::folderItemClicked);
    connect(m_folders, &QListWidget::itemActivated, this, &FenPrin::folderItemClicked);
}

void FenPrin::buildCommands() {
    auto* frame = new platform::GradientPanel(this);
    frame->setObjectName(QStringLiteral("Forme1"));
    frame->setGeometry(4, 212, 211, 147);
    struct Command {
        const char* name;
        const char* caption;
        const char* help;
    };
    static const Command commands[] = {
        {"CmdCOPIER", "Copier", "Copier l'icône/Appel de la fenêtre d'ouverture de fichiers"},
        {"CmdRename", "Renommer", "Renommer l'icône"},
        {"CmdSuppr", "Supprimer", "Supprimer l'icône"},
        {"CmdCopImg", "Copier l'image", "Copie l'icône dans le presse-papiers"},
        {"CmdIcoBmp", "ICO en BMP", "Transformation de l'icône en BMP"},
        {"CmdVisuBmp", "Voir un BMP", "Visualisation des fichiers BMP"},
        {"CmdDLL", "Icônes des DLL",
         "Affichage des icônes contenues dans les fichiers ANI, DLL, EXE ou ICL"},
        {"CmdIcoBmpDLL", "Extraite en BMP",
         "Transformation de l'icône copiée des ANI, DLL, EXE ou ICL en BMP"},
        {"CmdEditer", "Éditeur", "Appel de l'éditeur d'icônes"},
        {"CmdPaint", "Dessin", "Appel de Paint (Windows)"},
        {"CmdPressPap", "Presse-papiers", "Appel du presse-papiers"},
        {"CmdAide", "Aide", "Appel de l'aide générale/Appel de l'aide sur le visualiseur"},
        {"CmdCoulFond", "Couleur du fond",
         "Couleur du fond de la fenêtre de visualisation/Fond de l'icône centrée"},
        {"CmdIco48", "Icônes 48x48", "Icônes en 32x32 ou en 48x48"},
    };
    int i = 0;
    for (const Command& command : commands) {
        const QRect place(8 + (i % 2) * 103, 216 + (i / 2) * 20, 100, 19);
        auto* button = addCommand(command.name, QString::fromUtf8(command.caption),
                                  QString::fromUtf8(command.help), place);
        // The commands of the centred icon and the outside tools work once they are ready.
        button->setEnabled(false);
        ++i;
    }
    auto* background = findChild<platform::GradientButton*>(QStringLiteral("CmdCoulFond"));
    background->setEnabled(true);
    connect(background, &QAbstractButton::clicked, this, [this] { chooseGridBackground(false); });
    connect(background, &platform::GradientButton::rightPressed, this,
            [this] { chooseGridBackground(true); });
    auto* icons48 = findChild<platform::GradientButton*>(QStringLiteral("CmdIco48"));
    icons48->setEnabled(true);
    icons48->setText(shell::toggleCaption(QStringLiteral("Icônes 48x48"),
                                          shell::appState().preferences.icons48));
    connect(icons48, &QAbstractButton::clicked, this, &FenPrin::switchView);
}

void FenPrin::buildGrid() {
    m_count = new platform::GradientPanel(this);
    m_count->setObjectName(QStringLiteral("NbrIco"));
    m_count->setGeometry(219, 30, 264, 22);
    m_fond = new IconGridView(m_grid, GridView::Icons32, this);
    m_fond48 = new IconGridView(m_grid, GridView::Icons48, this);
    for (IconGridView* view : {m_fond, m_fond48}) {
        view->move(kGridPlace);
        connect(view, &IconGridView::cellClicked, this,
                [this](int cell) { moveIndex([this, cell] { m_grid.clickCell(cell); }); });
        connect(view, &IconGridView::backgroundRightPressed, this, [this] {
            hidePopUp();
            for (IconGridView* v : {m_fond, m_fond48}) {
                v->setBackground(shell::kDefaultViewing);
                v->centre().setBackground(shell::kDefaultViewing);
            }
        });
        connect(&view->centre(), &CentrePicture::doubleClicked, this, &FenPrin::reloadCentre);
        connect(&view->centre(), &CentrePicture::rightPressed, this, &FenPrin::centreRightPressed);
    }
    m_path = new platform::GradientPanel(this);
    m_path->setObjectName(QStringLiteral("Etiquette1"));
    m_path->setGeometry(219, 324, 301, 35);
    m_path->setWordWrap(true);
}

void FenPrin::buildMoves() {
    auto* frame = new platform::GradientPanel(this);
    frame->setObjectName(QStringLiteral("Forme2"));
    frame->setGeometry(487, 30, 33, 290);
    struct Move {
        const char* name;
        const char* help;
        MovePicture picture;
        QRect place;
    };
    const Move moves[] = {
        {"DeplaceDebut", "Première icône du dossier", MovePicture::First, QRect(489, 58, 29, 44)},
        {"DeplaceBas", "Page précédente/Ligne précédente (clic droit)", MovePicture::Previous,
         QRect(489, 108, 29, 84)},
        {"DeplaceHaut", "Page suivante/Ligne suivante (clic droit)", MovePicture::Next,
         QRect(489, 198, 29, 84)},
        {"DeplaceFin", "Dernière icône du dossier", MovePicture::Last, QRect(489, 288, 29, 30)},
    };
    for (const Move& m : moves) {
        auto* button = addCommand(m.name, {}, QString::fromUtf8(m.help), m.place);
        button->setPicture(movePicture(m.picture), Qt::AlignCenter);
    }
    auto button = [this](const char* name) {
        return findChild<platform::GradientButton*>(QString::fromLatin1(name));
    };
    connect(button("DeplaceHaut"), &QAbstractButton::clicked, this,
            [this] { moveIndex([this] { m_grid.pageNext(); }); });
    connect(button("DeplaceHaut"), &platform::GradientButton::rightPressed, this,
            [this] { moveIndex([this] { m_grid.lineNext(); }); });
    connect(button("DeplaceBas"), &QAbstractButton::clicked, this,
            [this] { moveIndex([this] { m_grid.pagePrevious(); }); });
    connect(button("DeplaceBas"), &platform::GradientButton::rightPressed, this,
            [this] { moveIndex([this] { m_grid.linePrevious(); }); });
    connect(button("DeplaceDebut"), &QAbstractButton::clicked, this,
            [this] { moveIndex([this] { m_grid.first(); }); });
    connect(button("DeplaceFin"), &QAbstractButton::clicked, this,
            [this] { moveIndex([this] { m_grid.last(); }); });
}

platform::GradientButton* FenPrin::addCommand(const char* name, const QString& caption,
                                              const QString& help, const QRect& place) {
    auto* button = new platform::GradientButton(caption, this);
    button->setObjectName(QString::fromLatin1(name));
    button->setGeometry(place);
    platform::setHelpText(*button, help);
    return button;
}

} // namespace browser::ui
