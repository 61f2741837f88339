#include "effects/ui/FrmColAdj.h"

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

#include <QLabel>

namespace effects::ui {

namespace {

using Bar = ColourAdjuster::Bar;

struct BarControls {
    Bar bar;
    const char* spinner;
    const char* value;
    const char* caption;
};

constexpr std::array<BarControls, 4> kBars{{
    {Bar::Brightness, "VsbBrightness", "LblBrightness", "Luminosité"},
    {Bar::Red, "VsbRed", "LblRed", "Rouge"},
    {Bar::Green, "VsbGreen", "LblGreen", "Vert"},
    {Bar::Blue, "VsbBlue", "LblBlue", "Bleu"},
}};

constexpr int kColumnLeft = 66;
constexpr int kColumnWidth = 64;

} // namespace

QString FrmColAdj::run(editor::IconEditor& engine, platform::Dialogs& dialogs, QWidget* parent) {
    FrmColAdj dialog(engine.beginColourAdjustment(engine.previewBackground()), parent);
    const QString result = dialogs.runModal(dialog);
    if (result == QLatin1String("Ok"))
        engine.applyColourAdjustment(dialog.adjuster());
    return result;
}

FrmColAdj::FrmColAdj(ColourAdjuster adjuster, QWidget* parent)
    : QDialog(parent)
    , m_adjuster(std::move(adjuster)) {
    platform::setUpWindow(*this, "FrmColAdj", QStringLiteral("Ajuster les couleurs"),
                          QSize(kColumnLeft + 4 * kColumnWidth + 8, 158));

    m_preview = new PreviewPicture(QStringLiteral("PicShade"), this);
    m_preview->move(16, 54);
    m_preview->setPicture(m_adjuster.preview());

    for (std::size_t i = 0; i < kBars.size(); ++i) {
        const BarControls& controls = kBars[i];
        const int left = kColumnLeft + static_cast<int>(i) * kColumnWidth;

        auto* caption = new QLabel(QString::fromUtf8(controls.caption), this);
        caption->setAlignment(Qt::AlignCenter);
        caption->setGeometry(left, 34, kColumnWidth, 18);

        m_bars[i] = new Spinner(QString::fromLatin1(controls.spinner), ColourAdjuster::kMinimum,
                                ColourAdjuster::kMaximum, ColourAdjuster::kStep, this);
        m_bars[i]->move(left + (kColumnWidth - Spinner::kWidth) / 2, 54);
        connect(m_bars[i], &QAbstractSlider::valueChanged, this,
                [this, bar = controls.bar](int value) { barChanged(bar, value); });

        m_values[i] = new QLabel(QStringLiteral("0"), this);
        m_values[i]->setObjectName(QString::fromLatin1(controls.value));
        m_values[i]->setAlignment(Qt::AlignCenter);
        m_values[i]->setGeometry(left, 90, kColumnWidth, 18);
    }

    auto* reset = new platform::GradientButton(QStringLiteral("Réinitialiser"), this);
    reset->setObjectName(QStringLiteral("CmdReset"));
    reset->setGeometry(8, 124, 100, 26);
    platform::setHelpText(*reset, QStringLiteral("Revenir aux couleurs de l'icône"));
    connect(reset, &QAbstractButton::clicked, this, &FrmColAdj::reset);

    auto* ok = new platform::GradientButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("CmdOK"));
    ok->setGeometry(width() - 168, 124, 78, 26);
    platform::setHelpText(*ok, QStringLiteral("Appliquer les couleurs à l'icône"));
    connect(ok, &QAbstractButton::clicked, this, &QDialog::accept);

    auto* cancel = new platform::GradientButton(QStringLiteral("Annuler"), this);
    cancel->setObjectName(QStringLiteral("CmdAnnul"));
    cancel->setGeometry(width() - 86, 124, 78, 26);
    platform::setHelpText(*cancel, QStringLiteral("Fermer sans modifier l'icône"));
    connect(cancel, &QAbstractButton::clicked, this, &QDialog::reject);

    platform::setWindowKeys(*this, {ok, cancel, [] {
                                        platform::HelpViewer::showPage(
                                            QStringLiteral("editeur-couleurs.html"));
                                    }});
    platform::applyScheme(*this);
}

void FrmColAdj::barChanged(Bar bar, int value) {
    m_values[static_cast<std::size_t>(bar)]->setText(
        QString::fromStdString(ColourAdjuster::label(value)));
    m_adjuster.change(bar, value);
    m_preview->setPicture(m_adjuster.preview());
}

void FrmColAdj::reset() {
    m_adjuster.reset();
    m_preview->setPicture(m_adjuster.preview());
    // Every bar's previous value is 0 already, so bringing the bars back takes no step.
    for (Spinner* bar : m_bars)
        bar->setValue(0);
}

} // namespace effects::ui
