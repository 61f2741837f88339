#include "shell/ui/Apropos.h"

#include "platform/ApplyScheme.h"
#include "platform/GradientButton.h"
#include "platform/HelpBubbles.h"
#include "platform/HelpViewer.h"
#include "platform/Services.h"
#include "platform/TitleButton.h"
#include "platform/WindowKeys.h"
#include "platform/WindowStyle.h"
#include "shell/AppState.h"
#include "shell/DataFiles.h"
#include "shell/ui/ProgramPicture.h"

#include <QEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QUrl>

namespace shell::ui {

namespace {
constexpr int kSweepSteps = 120; // one sweep of the light band, in timer ticks
}

Apropos::Apropos(QWidget* parent)
    : QDialog(parent) {
    platform::setUpWindow(*this, "Apropos", QStringLiteral("À propos de Orvanne®"),
                          QSize(380, 330));

    m_picture = new QWidget(this);
    m_picture->setObjectName(QStringLiteral("Image1"));
    m_picture->setGeometry(14, 38, 64, 64);
    m_picture->installEventFilter(this);

    m_text = new QWidget(this);
    m_text->setObjectName(QStringLiteral("Image2"));
    m_text->setGeometry(88, 34, 284, 256);
    m_text->installEventFilter(this);

    auto* site = new platform::GradientButton(QStringLiteral("Page de Orvanne®"), this);
    site->setObjectName(QStringLiteral("CmdSite"));
    site->setGeometry(88, 298, 150, 24);
    platform::setHelpText(*site, QStringLiteral("Ouvrir la page de présentation de Orvanne®"));
    connect(site, &QAbstractButton::clicked, this, &Apropos::openSite);

    auto* close = new platform::GradientButton(QStringLiteral("Fermer"), this);
    close->setObjectName(QStringLiteral("CmdFermer"));
    close->setGeometry(286, 298, 86, 24);
    platform::setHelpText(*close, QStringLiteral("Fermer"));
    connect(close, &QAbstractButton::clicked, this, &QDialog::accept);

    platform::setWindowKeys(*this,
                            {close, close, [] {
                                 platform::HelpViewer::showPage(QStringLiteral("index.html"));
                             }});
    platform::applyScheme(*this);
    m_timer.setObjectName(QStringLiteral("Minuterie1"));
    m_timer.setInterval(40);
    connect(&m_timer, &QTimer::timeout, this, &Apropos::tick);
    m_timer.start();
}

QStringList Apropos::lines() {
    // The leading spaces centred the lines in the program's first font; they are kept as written.
    return {QStringLiteral("         Orvanne®"),
            QStringLiteral("            Visualisation, gestion et"),
            QStringLiteral("                   édition d'icônes"),
            QStringLiteral("     Extraction d'icônes des fichiers"),
            QStringLiteral("               ANI, DLL, EXE et ICL"),
            QStringLiteral("     Transformation d'icônes en BMP"),
            QStringLiteral("         Version 3.10 - Février 2002"),
            QString(),
            QStringLiteral("Conçu et réalisé par l'équipe Orvanne"),
            QStringLiteral("Programme libre pour le bureau Linux"),
            QStringLiteral("Vos remarques sont les bienvenues"),
            QStringLiteral("sur la page de Orvanne®")};
}

QString Apropos::pageName() {
    return QStringLiteral("site/orvanne.html");
}

void Apropos::tick() {
    m_phase = (m_phase + 1) % (kSweepSteps * 30);
    m_text->update();
    if (m_phase % 4 == 0)
        m_picture->update();
}

bool Apropos::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint) {
        if (watched == m_text) {
            paintText(*m_text);
            return true;
        }
        if (watched == m_picture) {
            QPainter painter(m_picture);
            painter.drawImage(m_picture->rect(), programPicture(m_phase / 4));
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void Apropos::paintText(QWidget& area) {
    const ColourScheme& colours = appState().preferences.colours;
    QPainter painter(&area);
    painter.fillRect(area.rect(), platform::toQColor(colours[SchemeColour::Viewing]));
    // A band of the light colour travels slowly across the box, from left to right.
    const qreal sweep = static_cast<qreal>(m_phase % kSweepSteps) / kSweepSteps;
    const qreal centre = -0.3 + 1.6 * sweep;
    QLinearGradient light(0, 0, area.width(), area.height() / 3.0);
    const QColor glow = platform::toQColor(colours[SchemeColour::ButtonLight]);
    QColor clear = glow;
    clear.setAlpha(0);
    light.setColorAt(std::clamp(centre - 0.15, 0.0, 1.0), clear);
    light.setColorAt(std::clamp(centre, 0.0, 1.0), glow);
    light.setColorAt(std::clamp(centre + 0.15, 0.0, 1.0), clear);
    painter.fillRect(area.rect(), light);

    const QColor ink = platform::toQColor(colours[SchemeColour::WindowBackground]).darker(180);
    painter.setPen(ink);
    int y = 6;
    const QStringList all = lines();
    for (int i = 0; i < all.size(); ++i) {
        QFont font = painter.font();
        font.setPointSize(i == 0 ? 18 : 10);
        font.setBold(i == 0);
        painter.setFont(font);
        const int height = painter.fontMetrics().height();
        painter.drawText(QRect(0, y, area.width(), height), Qt::AlignHCenter, all[i].trimmed());
        y += height + (i == 0 || i == 6 ? 6 : 0);
    }
    painter.setPen(ink.lighter(150));
    painter.drawRect(area.rect().adjusted(0, 0, -1, -1));
}

void Apropos::openSite() {
    const QString page = DataFiles::find(pageName());
    if (page.isEmpty()) {
        platform::Message message;
        message.title = QStringLiteral("Orvanne®");
        message.text = QStringLiteral("La page de Orvanne® n'a pas été trouvée dans le dossier du "
                                      "programme.");
        message.icon = platform::MessageIcon::Exclamation;
        platform::dialogs().message(message);
        return;
    }
    platform::launcher().openDocument(QUrl::fromLocalFile(page));
}

} // namespace shell::ui
