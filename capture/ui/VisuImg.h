#pragma once

#include "shell/ColourScheme.h"

#include <QImage>
#include <QString>
#include <QWidget>

#include <filesystem>

class QLabel;

namespace capture::ui {

class ScrolledPicture;

// The image viewer: a BMP, PNG or ICO picture at its actual size, with scroll bars when it is
// larger than the view, and its name and size below.
class VisuImg : public QWidget {
    Q_OBJECT
public:
    explicit VisuImg(const shell::ColourScheme& colours, QWidget* parent = nullptr);

    // Shows the picture of the file; a file that cannot be shown is said so and the previous
    // picture stays. False in that case.
    bool open(const std::filesystem::path& path);
    // "Ouvrir": the open dialog, then the chosen picture.
    void askForPicture();
    void bringUp();

    const QImage& picture() const;
    QString caption() const;

private:
    ScrolledPicture* m_picture = nullptr;
    QLabel* m_caption = nullptr;
    QString m_folder;
};

} // namespace capture::ui
