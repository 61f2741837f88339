#include "capture/ui/VisuImg.h"

#include "capture/CaptureTexts.h"
#include "capture/PictureFile.h"
#include "capture/ui/ScrolledPicture.h"
#include "platform/ApplyScheme.h"
#include "platform/GradientButton.h"
#include "platform/HelpBubbles.h"
#include "platform/MakeButton.h"
#include "platform/Services.h"
#include "platform/TitleButton.h"
#include "platform/WindowStyle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>

namespace capture::ui {

namespace {
constexpr int kWidth = 640;
constexpr int kHeight = 480;
} // namespace

VisuImg::VisuImg(const shell::ColourScheme& colours, QWidget* parent)
    : QWidget(parent)
    , m_folder(QDir::homePath()) {
    platform::setUpWindow(*this, "VisuImg", QString::fromUtf8(kViewerTitle),
                          QSize(kWidth, kHeight));

    m_picture = new ScrolledPicture(QStringLiteral("FraImg"), QStringLiteral("PicImg"), this);
    m_picture->setGeometry(8, 32, kWidth - 16, kHeight - 76);

    m_caption = new QLabel(this);
    m_caption->setObjectName(QStringLiteral("LblImg"));
    m_caption->setGeometry(8, kHeight - 38, kWidth - 240, 28);

    auto* openButton = platform::makeButton(this, "CmdOuvrir", QStringLiteral("Ouvrir"),
                                            QStringLiteral("Ouvrir une image BMP, PNG ou ICO"),
                                            QRect(kWidth - 224, kHeight - 38, 104, 28));
    connect(openButton, &QAbstractButton::clicked, this, &VisuImg::askForPicture);

    auto* close =
        platform::makeButton(this, "CmdFermer", QStringLiteral("Fermer"), QStringLiteral("Fermer"),
                             QRect(kWidth - 112, kHeight - 38, 104, 28));
    connect(close, &QAbstractButton::clicked, this, &QWidget::close);

    platform::applyScheme(*this, colours);
    m_picture->setViewingColour(platform::toQColor(colours[shell::SchemeColour::Viewing]));
}

const QImage& VisuImg::picture() const {
    return m_picture->picture();
}

QString VisuImg::caption() const {
    return m_caption->text();
}

void VisuImg::bringUp() {
    show();
    raise();
    activateWindow();
}

bool VisuImg::open(const std::filesystem::path& path) {
    const LoadedPicture loaded = PictureFile::load(path);
    const QString name = QFile::decodeName(path.c_str());
    if (loaded.picture.isNull()) {
        platform::Message message;
        message.title = QString::fromUtf8(kErrorTitle);
        message.text = name + QLatin1Char('\n') + loaded.error;
        message.icon = platform::MessageIcon::Exclamation;
        platform::dialogs().message(message);
        return false;
    }
    m_picture->setPicture(loaded.picture);
    m_caption->setText(QFileInfo(name).fileName() + QStringLiteral("  -  ") +
                       QString::number(loaded.picture.width()) + QStringLiteral(" x ") +
                       QString::number(loaded.picture.height()) + QStringLiteral(" pixels"));
    m_folder = QFileInfo(name).absolutePath();
    return true;
}

void VisuImg::askForPicture() {
    platform::FileRequest request;
    request.title = QString::fromUtf8(kViewerOpenTitle);
    request.folder = m_folder;
    request.filter = PictureFile::filter();
    const auto choice = platform::dialogs().openFile(request);
    if (choice && !choice->path.isEmpty())
        open(std::filesystem::path(QFile::encodeName(choice->path).toStdString()));
}

} // namespace capture::ui
