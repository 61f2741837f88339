#include "browser/ui/IcoWinPanel.h"

#include "browser/WindowsFiles.h"
#include "platform/GradientButton.h"
#include "platform/HelpBubbles.h"

#include <QFile>

namespace browser::ui {

namespace {

constexpr int kColumns = 4;
constexpr int kButtonWidth = 92;
constexpr int kButtonHeight = 20;
constexpr int kGap = 4;

} // namespace

IcoWinPanel::IcoWinPanel(const std::vector<std::filesystem::path>& folders, QWidget* parent)
    : platform::GradientPanel(parent) {
    setObjectName(QStringLiteral("IcoWinMnu"));
    const QStringList& names = WindowsFiles::names();
    const int rows = (static_cast<int>(names.size()) + kColumns - 1) / kColumns;
    setFixedSize(kGap + kColumns * (kButtonWidth + kGap),
                 kGap + (rows + 1) * (kButtonHeight + kGap));
    for (int i = 0; i < names.size(); ++i) {
        const QString& name = names[i];
        auto* button = new platform::GradientButton(WindowsFiles::caption(name), this);
        button->setObjectName(QStringLiteral("IcoWinOpts%1").arg(i));
        button->setGeometry(kGap + (i % kColumns) * (kButtonWidth + kGap),
                            kGap + (i / kColumns) * (kButtonHeight + kGap), kButtonWidth,
                            kButtonHeight);
        const auto file = WindowsFiles::find(name, folders);
        if (!file) {
            // A disabled button gets no mouse moves: its bubble is set once, for good.
            button->setEnabled(false);
            button->setToolTip(missingText(name));
            continue;
        }
        platform::setHelpText(*button,
                              QFile::decodeName(QByteArray::fromStdString(file->native())));
        connect(button, &QAbstractButton::clicked, this, [this, path = *file] {
            hide();
            emit chosen(path);
        });
    }
    auto* close = new platform::GradientButton(QStringLiteral("Fermer"), this);
    close->setObjectName(QStringLiteral("CmdFerMnu"));
    close->setGeometry(width() - kGap - kButtonWidth, kGap + rows * (kButtonHeight + kGap),
                       kButtonWidth, kButtonHeight);
    platform::setHelpText(*close, QStringLiteral("Fermer la liste des fichiers"));
    connect(close, &QAbstractButton::clicked, this, &QWidget::hide);
}

QString IcoWinPanel::missingText(const QString& name) {
    return WindowsFiles::caption(name) +
           QStringLiteral(" est introuvable : ni dans le dossier Windows de Wine "
                          "($WINEPREFIX ou ~/.wine), ni parmi les bibliothèques de Wine");
}

} // namespace browser::ui
