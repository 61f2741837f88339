#include "shell/ui/Conseils.h"

#include "platform/ApplyScheme.h"
#include "platform/GradientButton.h"
#include "platform/GradientPanel.h"
#include "platform/HelpBubbles.h"
#include "platform/HelpViewer.h"
#include "platform/TitleButton.h"
#include "platform/WindowKeys.h"
#include "platform/WindowStyle.h"
#include "shell/AppState.h"
#include "shell/DataFiles.h"
#include "shell/ui/ProgramPicture.h"

#include <QCheckBox>
#include <QLabel>
#include <QPainter>

#include <chrono>
#include <random>

namespace shell::ui {

Conseils::Conseils(QWidget* parent, std::function<double()> random, const QString& tipsFile)
    : QDialog(parent)
    , m_random(std::move(random)) {
    platform::setUpWindow(*this, "Conseils", QStringLiteral("Conseil du jour"), QSize(430, 236));

    auto* frame = new platform::GradientPanel(this);
    frame->setObjectName(QStringLiteral("Forme1"));
    frame->setGeometry(8, 32, 414, 150);

    auto* picture = new QLabel(this);
    picture->setObjectName(QStringLiteral("Image1"));
    picture->setPixmap(QPixmap::fromImage(programPicture(0).scaled(48, 48)));
    picture->setGeometry(18, 44, 48, 48);

    auto* heading = new QLabel(QStringLiteral("Le saviez-vous ?"), this);
    heading->setObjectName(QStringLiteral("LblTitre"));
    QFont bold = heading->font();
    bold.setBold(true);
    bold.setPointSize(bold.pointSize() + 2);
    heading->setFont(bold);
    heading->setGeometry(80, 40, 330, 24);

    m_text = new QLabel(QStringLiteral("Orvanne® montre, range et retouche vos icônes. "
                                       "Les conseils vous guident dans ses commandes."),
                        this);
    m_text->setObjectName(QStringLiteral("lblTipText"));
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_text->setGeometry(80, 70, 330, 104);

    m_check = new QCheckBox(QStringLiteral("Afficher les conseils à l'ouverture"), this);
    m_check->setObjectName(QStringLiteral("chkLoadTipsAtStartup"));
    m_check->setGeometry(10, 192, 230, 22);
    connect(m_check, &QCheckBox::clicked, this, &Conseils::checkBoxClicked);

    auto* next = new platform::GradientButton(QStringLiteral("Conseil suivant"), this);
    next->setObjectName(QStringLiteral("CmdNextTip"));
    next->setGeometry(248, 190, 110, 24);
    platform::setHelpText(*next, QStringLiteral("Afficher le conseil suivant"));
    connect(next, &QAbstractButton::clicked, this, &Conseils::nextTip);

    auto* ok = new platform::GradientButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("CmdOK"));
    ok->setGeometry(364, 190, 58, 24);
    connect(ok, &QAbstractButton::clicked, this, &QDialog::accept);

    platform::setWindowKeys(*this,
                            {ok, nullptr, [] {
                                 platform::HelpViewer::showPage(QStringLiteral("index.html"));
                             }});
    platform::applyScheme(*this);
    m_check->setChecked(Preferences::loadTipsAtStart(Settings()));
    if (!m_random) {
        auto engine = std::make_shared<std::mt19937>(static_cast<std::mt19937::result_type>(
            std::chrono::system_clock::now().time_since_epoch().count()));
        m_random = [engine] {
            return std::uniform_real_distribution<double>(0.0, 1.0)(*engine);
        };
    }
    loadTips(tipsFile.isEmpty() ? DataFiles::find(QString::fromUtf8(Tips::kFileName)) : tipsFile);
}

QString Conseils::tipText() const {
    return m_text->text();
}

void Conseils::loadTips(const QString& path) {
    if (!m_tips.load(path)) {
        m_text->setText(Tips::missingFileText());
        return;
    }
    m_tips.chooseFirst(m_random());
    displayCurrentTip();
}

void Conseils::displayCurrentTip() {
    if (!m_tips.isEmpty())
        m_text->setText(m_tips.current());
}

void Conseils::nextTip() {
    m_tips.next();
    displayCurrentTip();
}

void Conseils::checkBoxClicked(bool ticked) {
    Settings settings;
    appState().preferences.setTipsAtStart(settings, ticked);
}

} // namespace shell::ui
