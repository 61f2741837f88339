#include "effects/ui/FrmRndIcon.h"

#include "editor/IconEditor.h"
#include "effects/ui/PreviewPicture.h"
#include "effects/ui/Spinner.h"
#include "platform/ApplyScheme.h"
#include "platform/Dialogs.h"
#include "platform/GradientButton.h"
#include "platform/HelpBubbles.h"
#include "platform/HelpViewer.h"
#include "platform/TitleButton.h"
#include "platform/WindowKeys.h"
#include "platform/WindowStyle.h"
#include "shell/AppState.h"

#include <QApplication>
#include <QLabel>

namespace effects::ui {

QString FrmRndIcon::run(editor::IconEditor& engine, platform::Dialogs& dialogs,
                        UniformGenerator& random, QWidget* parent) {
    FrmRndIcon dialog(dialogs, random, parent);
    const QString result = dialogs.runModal(dialog);
    if (result == QLatin1String("Ok"))
        engine.applyBackground(dialog.preview().picture());
    return result;
}

FrmRndIcon::FrmRndIcon(platform::Dialogs& dialogs, UniformGenerator& random, QWidget* parent)
    : QDialog(parent)
    , m_dialogs(dialogs)
    , m_random(random)
    , m_preview(shell::appState().preferences.colours[shell::SchemeColour::Viewing]) {
    platform::setUpWindow(*this, "FrmRndIcon", QStringLiteral("Fond 'kaléidoscope'"),
                          QSize(250, 136));

    m_picture = new PreviewPicture(QStringLiteral("PicRnd"), this);
    m_picture->move(20, 44);
    platform::setHelpText(*m_picture, QStringLiteral("Double-clic : couleur du fond"));
    connect(m_picture, &PreviewPicture::doubleClicked, this, &FrmRndIcon::chooseBackground);

    auto* caption = new QLabel(QStringLiteral("Densité :"), this);
    caption->setGeometry(76, 42, 64, 18);

    m_density = new QLabel(
        QString::fromStdString(KaleidoscopePreview::densityLabel(m_preview.density())), this);
    m_density->setObjectName(QStringLiteral("LblDensity"));
    m_density->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_density->setGeometry(140, 42, 32, 18);

    auto* density = new Spinner(QStringLiteral("UDdensity"), Kaleidoscope::kMinimumDensity,
                                Kaleidoscope::kMaximumDensity, Kaleidoscope::kDensityStep, this);
    density->setValue(m_preview.density());
    density->move(180, 34);
    platform::setHelpText(*density, QStringLiteral("Nombre de points du motif"));
    connect(density, &QAbstractSlider::valueChanged, this, &FrmRndIcon::densityChanged);

    auto* generate = new platform::GradientButton(QStringLiteral("Générer"), this);
    generate->setObjectName(QStringLiteral("CmdGenerate"));
    generate->setGeometry(76, 70, 121, 24);
    platform::setHelpText(*generate, QStringLiteral("Dessiner un nouveau motif"));
    connect(generate, &QAbstractButton::clicked, this, &FrmRndIcon::generate);

    auto* ok = new platform::GradientButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("CmdOK"));
    ok->setGeometry(width() - 168, 104, 78, 26);
    platform::setHelpText(*ok, QStringLiteral("Appliquer le motif au fond de l'icône"));
    connect(ok, &QAbstractButton::clicked, this, &QDialog::accept);

    auto* cancel = new platform::GradientButton(QStringLiteral("Annuler"), this);
    cancel->setObjectName(QStringLiteral("CmdCancel"));
    cancel->setGeometry(width() - 86, 104, 78, 26);
    platform::setHelpText(*cancel, QStringLiteral("Fermer sans modifier l'icône"));
    connect(cancel, &QAbstractButton::clicked, this, &QDialog::reject);

    platform::setWindowKeys(*this, {ok, cancel, [] {
                                        platform::HelpViewer::showPage(
                                            QStringLiteral("editeur-effets.html"));
                                    }});
    platform::applyScheme(*this);
    showPreview();
}

void FrmRndIcon::densityChanged(int density) {
    m_preview.setDensity(density);
    m_density->setText(QString::fromStdString(KaleidoscopePreview::densityLabel(density)));
}

void FrmRndIcon::generate() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_preview.clear();
    showPreview();
    // The cleared preview shows before the passes begin.
    QCoreApplication::processEvents();
    m_preview.generate(m_random);
    showPreview();
    QApplication::restoreOverrideCursor();
}

void FrmRndIcon::chooseBackground() {
    const icon::Colour colour =
        m_dialogs.chooseColour(m_preview.background()).value_or(m_preview.background());
    m_preview.setBackground(colour);
    showPreview();
}

void FrmRndIcon::showPreview() {
    m_picture->setPicture(m_preview.picture());
}

} // namespace effects::ui
