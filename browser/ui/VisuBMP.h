#pragma once

#include "browser/Volumes.h"
#include "shell/ColourScheme.h"

#include <QDialog>
#include <QImage>

#include <vector>

class QComboBox;
class QListWidget;
class QListWidgetItem;

namespace browser::ui {

// The BMP viewer: a drive list, a folder list and a list of BMP files; the file clicked is
// shown at 32×32 or 48×48, centred on the same point at both sizes. A drive or a file that
// cannot be read changes nothing and says nothing.
class VisuBMP : public QDialog {
    Q_OBJECT
public:
    VisuBMP(const QString& folder, const shell::ColourScheme& colours, QWidget* parent = nullptr);

    void openFolder(const QString& folder);
    QString folder() const { return m_folder; }
    QImage picture() const { return m_picture; }
    void setSide(int side);

private:
    void driveChosen(int index);
    void folderClicked(QListWidgetItem* item);
    void fileClicked(QListWidgetItem* item);
    void fillFiles();

    std::vector<Volume> m_volumes;
    QString m_folder;
    QImage m_picture;
    QComboBox* m_drives = nullptr;
    QListWidget* m_folders = nullptr;
    QListWidget* m_files = nullptr;
    QWidget* m_frame = nullptr;
    QWidget* m_view = nullptr;
};

} // namespace browser::ui
