#include "browser/ui/PopUpInfos.h"

#include "platform/DisplayMode.h"
#include "platform/GradientButton.h"
#include "platform/HelpBubbles.h"
#include "platform/Services.h"
#include "platform/WindowStyle.h"
#include "shell/AppState.h"

#include <QLabel>

namespace browser::ui {

namespace {

constexpr int kWidth = 236;
constexpr int kRowHeight = 20;
constexpr int kRowPitch = 22;
constexpr int kMargin = 6;

const char* const kColourButtonNames[shell::kSchemeColourCount] = {
    "CmdCoulDeb", "CmdCoulFin",     "CmdCoulTxt", "CmdLumiere",
    "CmdAutrTxt", "CmdCoulFondFen", "CmdCoulVisu"};

const char* const kColourCaptions[shell::kSchemeColourCount] = {"Début du dégradé",
                                                                "Fin du dégradé",
                                                                "Texte des boutons",
                                                                "Lumière des boutons",
                                                                "Autres textes",
                                                                "Fond des fenêtres",
                                                                "Visualisation, dossiers, etc."};

shell::Preferences& preferences() {
    return shell::appState().preferences;
}

} // namespace

PopUpInfos::PopUpInfos(QWidget* parent)
    : platform::GradientPanel(parent) {
    setObjectName(QStringLiteral("PopUpInfos"));
    int row = 0;
    auto* about = addButton("CmdApropos2", QStringLiteral("À propos de Orvanne®..."), row++);
    platform::setHelpText(*about, QStringLiteral("Informations sur le programme"));
    connect(about, &QAbstractButton::clicked, this, [this] {
        hide();
        emit aboutRequested();
    });

    auto* label = new QLabel(QStringLiteral("Couleurs de l'interface :"), this);
    label->setObjectName(QStringLiteral("LblChangerCoul"));
    label->setGeometry(kMargin + 2, kMargin + row++ * kRowPitch, kWidth - 2 * kMargin, kRowHeight);
    m_label = label;

    for (shell::SchemeColour which : shell::kAllSchemeColours) {
        auto* button =
            addButton(kColourButtonNames[static_cast<int>(which)], colourCaption(which), row++);
        platform::setHelpText(*button,
                              QStringLiteral("Changer la couleur : ") + colourCaption(which));
        connect(button, &QAbstractButton::clicked, this, [this, which] { chooseColour(which); });
        m_colourButtons[static_cast<std::size_t>(which)] = button;
    }
    auto* reset = addButton("CmdReset", QStringLiteral("Couleurs par défaut"), row++);
    platform::setHelpText(*reset, QStringLiteral("Retour aux couleurs d'origine"));
    connect(reset, &QAbstractButton::clicked, this, &PopUpInfos::resetColours);

    auto* bubbles = addButton("CmdBulAide", QString(), row++);
    platform::setHelpText(*bubbles, QStringLiteral("Afficher ou masquer les info-bulles"));
    connect(bubbles, &QAbstractButton::clicked, this, &PopUpInfos::toggleHelpBubbles);
    auto* tips = addButton("CmdConseilDem", QString(), row++);
    platform::setHelpText(*tips, QStringLiteral("Afficher ou non les conseils au démarrage"));
    connect(tips, &QAbstractButton::clicked, this, &PopUpInfos::toggleTips);

    auto* depth = addButton("cmd65536", QStringLiteral("Affichage en 65536 couleurs"), row++);
    platform::setHelpText(*depth, QStringLiteral("Passer l'affichage en 65536 couleurs"));
    connect(depth, &QAbstractButton::clicked, this, [this] {
        hide();
        platform::changeDisplayDepth(16);
    });

    auto* remove = addButton("CmdSupprCle", QStringLiteral("Supprimer les réglages..."), row++);
    platform::setHelpText(
        *remove, QStringLiteral("Effacer tous les réglages avant de désinstaller le programme"));
    connect(remove, &QAbstractButton::clicked, this, &PopUpInfos::removeSettings);

    auto* close = addButton("CmdFerMnu", QStringLiteral("Fermer ce menu"), row++);
    platform::setHelpText(*close, QStringLiteral("Fermer ce menu"));
    connect(close, &QAbstractButton::clicked, this, &QWidget::hide);

    setFixedSize(kWidth, 2 * kMargin + row * kRowPitch - (kRowPitch - kRowHeight));
    refreshCaptions();
}

platform::GradientButton* PopUpInfos::addButton(const char* name, const QString& caption, int row) {
    auto* button = new platform::GradientButton(caption, this);
    button->setObjectName(QString::fromLatin1(name));
    button->setGeometry(kMargin, kMargin + row * kRowPitch, kWidth - 2 * kMargin, kRowHeight);
    return button;
}

platform::GradientButton& PopUpInfos::colourButton(shell::SchemeColour which) {
    return *m_colourButtons[static_cast<std::size_t>(which)];
}

QString PopUpInfos::colourCaption(shell::SchemeColour which) {
    return QString::fromUtf8(kColourCaptions[static_cast<int>(which)]);
}

QString PopUpInfos::colourButtonName(shell::SchemeColour which) {
    return QString::fromLatin1(kColourButtonNames[static_cast<int>(which)]);
}

void PopUpInfos::applyColours(const shell::ColourScheme& colours) {
    using shell::SchemeColour;
    setColours(colours[SchemeColour::GradientStart], colours[SchemeColour::GradientEnd]);
    setTextColour(colours[SchemeColour::ButtonText]);
    for (auto* button : findChildren<platform::GradientButton*>()) {
        button->setColours(colours[SchemeColour::GradientStart], colours[SchemeColour::GradientEnd],
                           colours[SchemeColour::OtherText], colours[SchemeColour::ButtonLight]);
    }
    platform::setTextColour(*m_label, colours[SchemeColour::OtherText]);
}

void PopUpInfos::refreshCaptions() {
    const shell::Preferences& prefs = preferences();
    findChild<platform::GradientButton*>(QStringLiteral("CmdBulAide"))
        ->setText(
            shell::toggleCaption(QStringLiteral("Affichage des info-bulles"), prefs.helpBubbles));
    findChild<platform::GradientButton*>(QStringLiteral("CmdConseilDem"))
        ->setText(shell::toggleCaption(QStringLiteral("Conseils au démarrage"), prefs.tipsAtStart));
}

void PopUpInfos::chooseColour(shell::SchemeColour which) {
    hide();
    shell::Preferences& prefs = preferences();
    if (const auto chosen = platform::dialogs().chooseColour(prefs.colours[which]))
        prefs.colours[which] = *chosen;
    // Chosen or cancelled, the colour in force is written and applied again.
    shell::Settings settings;
    prefs.saveColour(settings, which);
    emit coloursChanged();
}

void PopUpInfos::resetColours() {
    hide();
    shell::Settings settings;
    preferences().resetColours(settings);
    emit coloursChanged();
}

void PopUpInfos::toggleHelpBubbles() {
    hide();
    shell::Settings settings;
    preferences().setHelpBubbles(settings, !preferences().helpBubbles);
    refreshCaptions();
}

void PopUpInfos::toggleTips() {
    hide();
    shell::Settings settings;
    preferences().setTipsAtStart(settings, !preferences().tipsAtStart);
    refreshCaptions();
}

void PopUpInfos::removeSettings() {
    hide();
    platform::Message question;
    question.title = QStringLiteral("DÉSINSTALLATION");
    question.text =
        QStringLiteral("Cette opération ne devrait être effectuée que si vous souhaitez "
                       "désinstaller le programme.\n"
                       "Etes-vous sûr(e) de vouloir supprimer la clé d'enregistrement "
                       "des données d'initialisation dans la base du Registre ?");
    question.icon = platform::MessageIcon::Critical;
    question.buttons = platform::MessageButtons::YesNo;
    question.defaultButton = 2;
    if (platform::dialogs().message(question) == platform::Answer::Yes)
        shell::Settings().deleteAll();
}

} // namespace browser::ui
