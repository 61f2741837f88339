#include "browser/PickerState.h"

#include <QFile>

namespace browser {

namespace {

QString shown(const std::filesystem::path& path) {
    return QFile::decodeName(QByteArray::fromStdString(path.native()));
}

} // namespace

PickerState PickerState::startingOn(const std::filesystem::path& library) {
    PickerState state;
    state.file = library;
    state.lastFolder = library.parent_path();
    return state;
}

QString PickerState::fileName() const {
    return shown(file.filename());
}

void PickerState::choose(const std::filesystem::path& chosen) {
    file = chosen;
    lastFolder = chosen.parent_path();
}

namespace picker {

QString openTitle() {
    return QStringLiteral("Orvanne®") + QStringLiteral(" - Ouvrir");
}

QString openFilter() {
    return QStringLiteral("Tous les fichiers (*.*)|*.*|") +
           QStringLiteral("Curseurs animés (*.ani)|*.ani|") +
           QStringLiteral("Librairies de liens dynamiques (*.dll)|*.dll|") +
           QStringLiteral("Fichiers exécutables (*.exe)|*.exe|") +
           QStringLiteral("Librairies d'icônes (*.icl)|*.icl");
}

QString infoText(int number) {
    return QStringLiteral("Icône n°") + QString::number(number) + QStringLiteral(" sélectionnée");
}

QString windowTitle(const QString& name, int count) {
    return QStringLiteral("Orvanne® - Visualisation DLL... - ") + name + QStringLiteral(" - ") +
           QString::number(count) + QStringLiteral(" icônes");
}

QString noIconText(const QString& name) {
    return name + QStringLiteral(" ne contient pas d'icône");
}

std::optional<PickerCells> openIcons(const std::filesystem::path& file) {
    std::optional<icon::IconSource> source = icon::IconSource::open(file);
    if (!source || source->count() == 0)
        return std::nullopt;
    return PickerCells(std::move(*source));
}

int takenIcon(const std::filesystem::path& file, const icon::IconSource& source, int selected) {
    const QString name = shown(file.filename()).toLower();
    if (name.endsWith(QLatin1String(".ani")) ||
        source.kind() == icon::IconSource::Kind::AnimatedCursor)
        return 1;
    return selected;
}

} // namespace picker

} // namespace browser
