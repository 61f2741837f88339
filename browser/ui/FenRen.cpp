#include "browser/ui/FenRen.h"

#include "browser/FileCommandTexts.h"
#include "browser/FileOperations.h"
#include "platform/ApplyScheme.h"
#include "platform/GradientButton.h"
#include "platform/GradientPanel.h"
#include "platform/HelpBubbles.h"
#include "platform/HelpViewer.h"
#include "platform/MakeButton.h"
#include "platform/Services.h"
#include "platform/TitleButton.h"
#include "platform/WindowKeys.h"
#include "platform/WindowStyle.h"

#include <QLabel>
#include <QLineEdit>

#include <cerrno>

namespace browser::ui {

namespace {

platform::GradientPanel* frame(QWidget* parent, int number, const QRect& place) {
    auto* panel = new platform::GradientPanel(parent);
    panel->setObjectName(QStringLiteral("Forme%1").arg(number));
    panel->setGeometry(place);
    return panel;
}

QLabel* label(QWidget* parent, const char* name, const QString& text, const QRect& place) {
    auto* shown = new QLabel(text, parent);
    shown->setObjectName(QString::fromLatin1(name));
    shown->setGeometry(place);
    return shown;
}

} // namespace

FenRen::FenRen(const RenameParts& parts, QWidget* parent)
    : QDialog(parent)
    , m_parts(parts) {
    platform::setUpWindow(*this, "FenRen", QStringLiteral("Renommer l'icône"), QSize(420, 168));

    // The frames behind the two names and the two buttons, and the one around them all.
    frame(this, 1, QRect(4, 30, 412, 134));
    frame(this, 2, QRect(10, 36, 400, 22));
    frame(this, 3, QRect(10, 60, 400, 24));
    frame(this, 4, QRect(10, 88, 400, 22));
    frame(this, 5, QRect(10, 112, 400, 24));
    frame(this, 6, QRect(226, 138, 90, 24));
    frame(this, 7, QRect(320, 138, 90, 24));

    label(this, "LblAncNom", QStringLiteral("Nom actuel :"), QRect(16, 38, 390, 18));
    m_oldName = label(this, "AncNom", m_parts.oldNameText(), QRect(16, 62, 390, 20));
    m_oldName->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label(this, "LblNouvNom", QStringLiteral("Nouveau nom :"), QRect(16, 90, 390, 18));
    m_newName = new QLineEdit(m_parts.oldNameText(), this);
    m_newName->setObjectName(QStringLiteral("NouvNom"));
    m_newName->setGeometry(14, 114, 392, 20);
    connect(m_newName, &QLineEdit::textChanged, this, &FenRen::textChanged);

    m_ok = platform::makeButton(this, "CmdOK", QStringLiteral("OK"),
                                QStringLiteral("Renommer l'icône"), QRect(228, 140, 86, 20));
    connect(m_ok, &QAbstractButton::clicked, this, &FenRen::confirm);
    auto* cancel =
        platform::makeButton(this, "CmdAnnul", QStringLiteral("Annuler"),
                             QStringLiteral("Fermer sans renommer"), QRect(322, 140, 86, 20));
    connect(cancel, &QAbstractButton::clicked, this, &QDialog::reject);
    platform::setWindowKeys(*this,
                            {m_ok, cancel, [] {
                                 platform::HelpViewer::showPage(QStringLiteral("visualiseur.html"));
                             }});

    platform::applyScheme(*this);
    textChanged(m_newName->text());
    m_newName->setFocus();
    m_newName->selectAll();
}

void FenRen::textChanged(const QString& text) {
    m_ok->setEnabled(!text.isEmpty());
}

void FenRen::confirm() {
    m_newName->setText(withIcoExtension(m_newName->text()));
    const std::filesystem::path target = renameTarget(m_parts, m_newName->text());
    const FileResult result = renameFile(m_parts.folder + m_parts.oldName, target);
    if (result.ok()) {
        m_renamedTo = target;
        accept();
        return;
    }
    platform::Message message;
    message.icon = platform::MessageIcon::Information;
    if (result.error == EEXIST) {
        message.title = QString::fromUtf8(kExistsTitle);
        message.text = QString::fromUtf8(kExistsText);
        m_newName->setText(m_parts.oldNameText());
    } else {
        // Another failure keeps what was typed, so the user can correct it.
        message.title = QString::fromUtf8(kProgramTitle);
        message.text = errorText(result.error);
        message.icon = platform::MessageIcon::None;
    }
    platform::dialogs().message(message);
    m_newName->setFocus();
}

} // namespace browser::ui
