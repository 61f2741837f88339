#include "shell/ui/Demarre2.h"

#include "platform/ApplyScheme.h"
#include "platform/Services.h"
#include "platform/TitleButton.h"
#include "platform/WindowStyle.h"
#include "shell/ui/ProgramPicture.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>

namespace shell::ui {

Demarre2::Demarre2(QWidget* parent)
    : QWidget(parent) {
    platform::setUpWindow(*this, "Demarre2", QStringLiteral("Démarrage"), QSize(340, 150));

    auto* name = new QLabel(QStringLiteral("Orvanne®"), this);
    name->setObjectName(QStringLiteral("LblNom"));
    QFont big = name->font();
    big.setPointSize(18);
    big.setBold(true);
    name->setFont(big);
    name->setGeometry(92, 36, 240, 36);

    auto* version = new QLabel(QStringLiteral("Version 3.10 - Février 2002"), this);
    version->setObjectName(QStringLiteral("LblVersion"));
    version->setGeometry(92, 74, 240, 20);

    auto* wait = new QLabel(QStringLiteral("Un instant, SVP..."), this);
    wait->setObjectName(QStringLiteral("LblAttente"));
    QFont italic = wait->font();
    italic.setItalic(true);
    wait->setFont(italic);
    wait->setGeometry(92, 112, 240, 22);

    m_timer.setObjectName(QStringLiteral("Timer1"));
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Demarre2::timeUp);
    platform::applyScheme(*this);
}

bool Demarre2::askForSecondInstance() {
    platform::Message question;
    question.title = QStringLiteral("Orvanne®");
    question.text = QStringLiteral("Orvanne® est déjà en cours d'exécution.\n"
                                   "Souhaitez-vous exécuter une nouvelle instance ?");
    question.icon = platform::MessageIcon::Exclamation;
    question.buttons = platform::MessageButtons::YesNo;
    question.defaultButton = 2;
    return platform::dialogs().message(question) == platform::Answer::Yes;
}

void Demarre2::start(int milliseconds) {
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
    show();
    m_timer.start(milliseconds);
}

void Demarre2::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawImage(QRect(20, 44, 64, 64), programPicture(0));
}

} // namespace shell::ui
