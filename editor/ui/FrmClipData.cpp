#include "editor/ui/FrmClipData.h"

#include "editor/PadTexts.h"
#include "platform/ApplyScheme.h"
#include "platform/GradientButton.h"
#include "platform/GradientPanel.h"
#include "platform/HelpViewer.h"
#include "platform/TitleButton.h"
#include "platform/WindowKeys.h"
#include "platform/WindowStyle.h"
#include "shell/AppState.h"

#include <QLabel>
#include <QRadioButton>

namespace editor::ui {

FrmClipData::FrmClipData(QSize picture, QWidget* parent)
    : QDialog(parent) {
    platform::setUpWindow(*this, "FrmClipData", QStringLiteral("Orvanne® - Coller"),
                          QSize(330, 178));

    auto* frame = new platform::GradientPanel(this);
    frame->setObjectName(QStringLiteral("Forme1"));
    frame->setGeometry(8, 32, 314, 104);

    auto* message = new QLabel(QString::fromUtf8(kClipDataMessage), this);
    message->setObjectName(QStringLiteral("LblMessage"));
    message->setGeometry(18, 38, 296, 18);
    auto* size = new QLabel(QString::fromStdString(pasteSizeText(picture)), this);
    size->setObjectName(QStringLiteral("LblTaille"));
    size->setGeometry(18, 56, 296, 18);

    m_proportional = new QRadioButton(QString::fromUtf8(kClipDataProportional), this);
    m_proportional->setObjectName(QStringLiteral("OptProportions"));
    m_proportional->setGeometry(18, 84, 296, 20);
    m_proportional->setChecked(true);
    m_square = new QRadioButton(QString::fromUtf8(kClipDataSquare), this);
    m_square->setObjectName(QStringLiteral("Opt32x32"));
    m_square->setGeometry(18, 106, 296, 20);

    auto* ok = new platform::GradientButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("CmdOK"));
    ok->setGeometry(156, 146, 80, 24);
    connect(ok, &QAbstractButton::clicked, this, &QDialog::accept);
    auto* cancel = new platform::GradientButton(QStringLiteral("Annuler"), this);
    cancel->setObjectName(QStringLiteral("CmdAnnul"));
    cancel->setGeometry(242, 146, 80, 24);
    connect(cancel, &QAbstractButton::clicked, this, &QDialog::reject);

    platform::setWindowKeys(*this, {ok, cancel, [] {
                                        platform::HelpViewer::showPage(
                                            QStringLiteral("editeur-edition.html"));
                                    }});
    platform::applyScheme(*this);
    for (QRadioButton* option : {m_proportional, m_square})
        platform::setTextColour(
            *option, shell::appState().preferences.colours[shell::SchemeColour::OtherText]);
}

PasteFit FrmClipData::fit() const {
    return m_square->isChecked() ? PasteFit::Square : PasteFit::Proportional;
}

} // namespace editor::ui
