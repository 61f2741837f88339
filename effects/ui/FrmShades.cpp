#include "effects/ui/FrmShades.h"

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
#include <QPainter>
#include <QScrollBar>

namespace effects::ui {

namespace {

constexpr std::array<const char*, 3> kChannelLetters{"R", "V", "B"};
constexpr int kBarsTop = 92;
constexpr int kBarPitch = 22;
constexpr int kBarHeight = 17;
constexpr int kLowerTop = kBarsTop + 3 * kBarPitch + 10;

QString valueLabel(int value) {
    return QString::fromStdString(Gradient::label(value));
}

} // namespace

QString FrmShades::run(editor::IconEditor& engine, platform::Dialogs& dialogs, QWidget* parent) {
    FrmShades dialog(parent);
    const QString result = dialogs.runModal(dialog);
    if (result == QLatin1String("Ok"))
        engine.applyBackground(dialog.preview().picture());
    return result;
}

FrmShades::FrmShades(QWidget* parent)
    : QDialog(parent) {
    platform::setUpWindow(*this, "FrmShades", QStringLiteral("Fond en dégradé"),
                          QSize(280, kLowerTop + 84));

    for (const auto& [swatch, caption] : {std::pair{kStartSwatch, "Début"}, {kEndSwatch, "Fin"}}) {
        auto* heading = new QLabel(QString::fromUtf8(caption), this);
        heading->setAlignment(Qt::AlignCenter);
        heading->setGeometry(swatch.left(), 28, swatch.width(), 16);
    }

    for (int i = 0; i < GradientPreview::kBars; ++i) {
        const auto index = static_cast<std::size_t>(i);
        const bool start = i < 3;
        const int top = kBarsTop + (i % 3) * kBarPitch;
        const QRect& swatch = start ? kStartSwatch : kEndSwatch;

        auto* bar = new QScrollBar(Qt::Horizontal, this);
        bar->setObjectName(QStringLiteral("Hsb%1").arg(i));
        bar->setRange(0, 255);
        bar->setPageStep(16);
        bar->setValue(m_preview.bar(i));
        bar->setGeometry(swatch.left(), top, swatch.width(), kBarHeight);
        connect(bar, &QScrollBar::valueChanged, this,
                [this, i](int value) { barChanged(i, value); });

        // The start colour's values stand to the left of its bars, the end colour's to the
        // right, and the channel letters between the two columns.
        m_values[index] = new QLabel(valueLabel(m_preview.bar(i)), this);
        m_values[index]->setObjectName(QStringLiteral("LblColorVal%1").arg(i));
        m_values[index]->setAlignment((start ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
        m_values[index]->setGeometry(start ? swatch.left() - 34 : swatch.right() + 5, top, 30,
                                     kBarHeight);
        if (start) {
            auto* letter = new QLabel(QString::fromLatin1(kChannelLetters[index]), this);
            letter->setAlignment(Qt::AlignCenter);
            letter->setGeometry(kStartSwatch.right() + 1, top,
                                kEndSwatch.left() - kStartSwatch.right() - 1, kBarHeight);
        }
    }

    m_picture = new PreviewPicture(QStringLiteral("PicSml"), this);
    m_picture->move(kStartSwatch.left(), kLowerTop);

    auto* degrees = new Spinner(QStringLiteral("VsbDegrees"), 0, Gradient::kMaxDirection, 1, this);
    degrees->move(kStartSwatch.left() + PreviewPicture::kSide + 8, kLowerTop + 1);
    platform::setHelpText(*degrees, QStringLiteral("Direction du dégradé"));
    connect(degrees, &QAbstractSlider::valueChanged, this, &FrmShades::directionChanged);

    auto* angle = new QLabel(QStringLiteral("Angle :"), this);
    angle->setGeometry(degrees->geometry().right() + 8, kLowerTop + 9, 44, 18);
    m_degrees = new QLabel(QString::number(m_preview.angle()), this);
    m_degrees->setObjectName(QStringLiteral("LblDegrees"));
    m_degrees->setGeometry(angle->geometry().right() + 2, kLowerTop + 9, 30, 18);

    auto* gradient = new platform::GradientButton(QStringLiteral("Tracer"), this);
    gradient->setObjectName(QStringLiteral("CmdGradient"));
    gradient->setGeometry(width() - 86, kLowerTop + 5, 78, 26);
    platform::setHelpText(*gradient, QStringLiteral("Tracer le dégradé"));
    connect(gradient, &QAbstractButton::clicked, this, &FrmShades::redraw);

    auto* ok = new platform::GradientButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("CmdOK"));
    ok->setGeometry(width() - 168, height() - 34, 78, 26);
    platform::setHelpText(*ok, QStringLiteral("Appliquer le dégradé au fond de l'icône"));
    connect(ok, &QAbstractButton::clicked, this, &QDialog::accept);

    auto* cancel = new platform::GradientButton(QStringLiteral("Annuler"), this);
    cancel->setObjectName(QStringLiteral("CmdCancel"));
    cancel->setGeometry(width() - 86, height() - 34, 78, 26);
    platform::setHelpText(*cancel, QStringLiteral("Fermer sans modifier l'icône"));
    connect(cancel, &QAbstractButton::clicked, this, &QDialog::reject);

    platform::setWindowKeys(*this, {ok, cancel, [] {
                                        platform::HelpViewer::showPage(
                                            QStringLiteral("editeur-effets.html"));
                                    }});
    platform::applyScheme(*this);
    m_picture->setPicture(m_preview.picture());
}

void FrmShades::paintEvent(QPaintEvent* event) {
    QDialog::paintEvent(event);
    QPainter painter(this);
    painter.fillRect(kStartSwatch, platform::toQColor(m_preview.startColour()));
    painter.fillRect(kEndSwatch, platform::toQColor(m_preview.endColour()));
}

void FrmShades::barChanged(int index, int value) {
    m_preview.setBar(index, value);
    m_values[static_cast<std::size_t>(index)]->setText(valueLabel(m_preview.bar(index)));
    update(index < 3 ? kStartSwatch : kEndSwatch);
}

void FrmShades::directionChanged(int direction) {
    m_preview.setDirection(direction);
    m_degrees->setText(QString::number(m_preview.angle()));
    m_picture->setPicture(m_preview.picture());
}

void FrmShades::redraw() {
    m_preview.redraw();
    m_picture->setPicture(m_preview.picture());
}

} // namespace effects::ui
