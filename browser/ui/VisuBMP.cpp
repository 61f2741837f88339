#include "browser/ui/VisuBMP.h"

#include "browser/BmpViewer.h"
#include "browser/FolderTree.h"
#include "platform/ApplyScheme.h"
#include "platform/GradientButton.h"
#include "platform/GradientPanel.h"
#include "platform/HelpBubbles.h"
#include "platform/HelpViewer.h"
#include "platform/MakeButton.h"
#include "platform/TitleButton.h"
#include "platform/WindowKeys.h"
#include "platform/WindowStyle.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QListWidget>
#include <QPainter>
#include <QStyle>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace browser::ui {

namespace {

constexpr int kPathRole = Qt::UserRole + 1;
// A bitmap this viewer shows is a small picture; anything larger is not decoded.
constexpr qint64 kMaxBitmapBytes = 16 * 1024 * 1024;

// The picture box: the bitmap at its own size from the top-left corner, cut to the box.
class PictureBox : public QWidget {
public:
    PictureBox(const QImage& picture, QWidget* parent)
        : QWidget(parent)
        , m_picture(picture) {
        setObjectName(QStringLiteral("Picture1"));
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), palette().color(QPalette::Base));
        painter.drawImage(0, 0, m_picture);
    }

private:
    const QImage& m_picture;
};

// The bitmap at `path` (the file system's bytes, so that any name opens). Only a regular file
// is read, opening never waits on a pipe, and a large file is not decoded.
std::optional<QImage> readBitmap(const QByteArray& path) {
    const int fd = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (fd < 0)
        return std::nullopt;
    QFile file;
    struct stat info {};
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode) || info.st_size > kMaxBitmapBytes ||
        !file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        return std::nullopt;
    }
    QImageReader reader(&file, "bmp");
    reader.setAllocationLimit(64);
    QImage image = reader.read();
    if (image.isNull())
        return std::nullopt;
    return image;
}

} // namespace

VisuBMP::VisuBMP(const QString& folder, const shell::ColourScheme& colours, QWidget* parent)
    : QDialog(parent) {
    platform::setUpWindow(*this, "VisuBMP", QStringLiteral("Visualisation des fichiers BMP"),
                          QSize(420, 236), 24);
    auto* close = platform::makeButton(this, "CmdFermer", QStringLiteral("X"),
                                       QStringLiteral("Fermer"), QRect(width() - 26, 4, 22, 22));
    connect(close, &QAbstractButton::clicked, this, &QDialog::accept);
    // Return belongs to the file list (it shows the file); Escape closes.
    platform::setWindowKeys(*this,
                            {nullptr, close, [] {
                                 platform::HelpViewer::showPage(QStringLiteral("visualiseur.html"));
                             }});

    m_frame = new platform::GradientPanel(this);
    m_frame->setObjectName(QStringLiteral("Forme1"));
    m_frame->setGeometry(8, 34, 78, 68);
    m_view = new PictureBox(m_picture, m_frame);
    QPalette palette = m_view->palette();
    palette.setColor(QPalette::Base, platform::toQColor(colours[shell::SchemeColour::Viewing]));
    m_view->setPalette(palette);

    const struct {
        const char* name;
        const char* caption;
        const char* help;
        int side;
    } sizes[] = {{"Cmd32", "32x32", "Visualisation en 32x32", 32},
                 {"Cmd48", "48x48", "Visualisation en 48x48", 48}};
    int top = 108;
    for (const auto& size : sizes) {
        auto* button = platform::makeButton(this, size.name, QString::fromLatin1(size.caption),
                                            QString::fromUtf8(size.help), QRect(8, top, 78, 24));
        connect(button, &QAbstractButton::clicked, this,
                [this, side = size.side] { setSide(side); });
        top += 28;
    }

    m_drives = new QComboBox(this);
    m_drives->setObjectName(QStringLiteral("Drive1"));
    m_drives->setGeometry(92, 34, 160, 22);
    m_volumes = mountedVolumes();
    for (const Volume& volume : m_volumes)
        m_drives->addItem(style()->standardIcon(QStyle::SP_DriveHDIcon), volume.text(),
                          volume.root);
    connect(m_drives, &QComboBox::activated, this, &VisuBMP::driveChosen);

    m_folders = new QListWidget(this);
    m_folders->setObjectName(QStringLiteral("Dir1"));
    m_folders->setGeometry(92, 60, 160, 168);
    m_folders->setIconSize(QSize(16, 16));
    m_folders->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_folders->setTextElideMode(Qt::ElideRight);
    connect(m_folders, &QListWidget::itemClicked, this, &VisuBMP::folderClicked);
    connect(m_folders, &QListWidget::itemActivated, this, &VisuBMP::folderClicked);

    m_files = new QListWidget(this);
    m_files->setObjectName(QStringLiteral("File1"));
    m_files->setGeometry(258, 34, 154, 194);
    connect(m_files, &QListWidget::itemClicked, this, &VisuBMP::fileClicked);
    connect(m_files, &QListWidget::currentItemChanged, this, &VisuBMP::fileClicked);

    platform::applyScheme(*this, colours);
    setSide(32);
    openFolder(folder.isEmpty() ? QDir::homePath() : folder);
}

void VisuBMP::setSide(int side) {
    const BmpViewer::Place place = BmpViewer::place(side);
    m_view->setGeometry(place.left, place.top, place.side, place.side);
}

void VisuBMP::openFolder(const QString& folder) {
    const QString clean = QDir::cleanPath(QDir(folder).absolutePath());
    if (!QFileInfo(clean).isDir() || !QDir(clean).isReadable())
        return;
    m_folder = clean;
    m_folders->clear();
    const auto items = folderItems(clean);
    for (const FolderItem& entry : items) {
        auto* item = new QListWidgetItem(
            style()->standardIcon(entry.open ? QStyle::SP_DirOpenIcon : QStyle::SP_DirClosedIcon),
            QString(entry.depth * 2, QLatin1Char(' ')) + entry.name, m_folders);
        item->setData(kPathRole, entry.path);
    }
    m_folders->setCurrentRow(currentItem(items));
    const int drive = m_drives->findData(volumeOf(clean, m_volumes));
    if (drive >= 0)
        m_drives->setCurrentIndex(drive);
    fillFiles();
}

void VisuBMP::driveChosen(int index) {
    // A drive that cannot be read leaves the lists on the previous one.
    const QString before = m_folder;
    if (index >= 0)
        openFolder(m_drives->itemData(index).toString());
    if (m_folder == before)
        m_drives->setCurrentIndex(m_drives->findData(volumeOf(m_folder, m_volumes)));
}

void VisuBMP::folderClicked(QListWidgetItem* item) {
    if (item != nullptr)
        openFolder(item->data(kPathRole).toString());
}

void VisuBMP::fillFiles() {
    const QSignalBlocker quiet(m_files);
    m_files->clear();
    const std::filesystem::path folder(QFile::encodeName(m_folder).toStdString());
    for (const std::filesystem::path& name : BmpViewer::files(folder)) {
        auto* item = new QListWidgetItem(
            QFile::decodeName(QByteArray::fromStdString(name.native())), m_files);
        item->setData(kPathRole, QByteArray::fromStdString((folder / name).native()));
    }
}

void VisuBMP::fileClicked(QListWidgetItem* item) {
    if (item == nullptr)
        return;
    // A file that cannot be read as a bitmap leaves the picture as it was.
    if (auto image = readBitmap(item->data(kPathRole).toByteArray())) {
        m_picture = std::move(*image);
        m_view->update();
    }
}

} // namespace browser::ui
