#include "shell/ui/Avertis.h"

#include "platform/ApplyScheme.h"
#include "platform/DisplayMode.h"
#include "platform/GradientButton.h"
#include "platform/GradientPanel.h"
#include "platform/HelpViewer.h"
#include "platform/Services.h"
#include "platform/TitleButton.h"
#include "platform/WindowKeys.h"
#include "platform/WindowStyle.h"
#include "shell/Settings.h"

#include <QCheckBox>
#include <QLabel>
#include <QStyle>

namespace shell::ui {

namespace {
constexpr int kTargetDepth = 32;
}

Avertis::Avertis(QWidget* parent)
    : QDialog(parent) {
    platform::setUpWindow(*this, "Avertis", QStringLiteral("Orvanne® - Avertissement"),
                          QSize(400, 200));

    auto* frame = new platform::GradientPanel(this);
    frame->setObjectName(QStringLiteral("Forme1"));
    frame->setGeometry(8, 32, 384, 114);

    auto* picture = new QLabel(this);
    picture->setObjectName(QStringLiteral("Image1"));
    picture->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(32, 32));
    picture->setGeometry(18, 42, 32, 32);

    auto* text = new QLabel(warningText(), this);
    text->setObjectName(QStringLiteral("Label1"));
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    text->setGeometry(60, 40, 324, 100);

    m_check = new QCheckBox(QStringLiteral("Ne plus poser la question"), this);
    m_check->setObjectName(QStringLiteral("Coche1"));
    m_check->setGeometry(10, 160, 200, 22);
    connect(m_check, &QCheckBox::clicked, this, &Avertis::checkBoxClicked);

    auto* ok = new platform::GradientButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("CmdOK"));
    ok->setGeometry(226, 158, 80, 24);
    connect(ok, &QAbstractButton::clicked, this, &Avertis::switchDisplay);

    auto* cancel = new platform::GradientButton(QStringLiteral("Annuler"), this);
    cancel->setObjectName(QStringLiteral("CmdAnnul"));
    cancel->setGeometry(312, 158, 80, 24);
    connect(cancel, &QAbstractButton::clicked, this, &QDialog::reject);

    platform::setWindowKeys(*this,
                            {ok, cancel, [] {
                                 platform::HelpViewer::showPage(QStringLiteral("editeur.html"));
                             }});
    platform::applyScheme(*this);
    m_check->setChecked(Settings().read(keys::kDepthWarning, QStringLiteral("Oui")) ==
                        QLatin1String("Non"));
}

bool Avertis::shouldWarn() {
    return Settings().readFlag(keys::kDepthWarning, QStringLiteral("Oui")) &&
           platform::screenDepth() < kTargetDepth;
}

QString Avertis::warningText() {
    return QStringLiteral("L'éditeur d'icônes de Orvanne® est conçu pour un fonctionnement optimal "
                          "en 16 millions de couleurs. Vous travaillez actuellement dans un mode "
                          "couleurs inférieur. Souhaitez-vous passer immédiatement dans le mode "
                          "d'affichage en 16 millions de couleurs ?");
}

void Avertis::checkBoxClicked(bool ticked) {
    Settings().saveFlag(keys::kDepthWarning, !ticked);
}

void Avertis::switchDisplay() {
    platform::changeDisplayDepth(kTargetDepth);
    accept();
}

} // namespace shell::ui
