#include "cli/SourceInput.h"

#include "cli/Input.h"

namespace cli {

std::optional<icon::IconSource> openSource(const QString& path, Console& console) {
    std::shared_ptr<const icon::MappedFile> file = readInput(path, console);
    if (!file)
        return std::nullopt;
    std::optional<icon::IconSource> source = icon::IconSource::fromFile(std::move(file));
    if (source && source->iconsLeftOut() > 0)
        console.warn(QStringLiteral("%1 contient %2 icônes de plus que les %3 lues : elles sont "
                                    "ignorées.")
                         .arg(quoted(path))
                         .arg(source->iconsLeftOut())
                         .arg(source->count()));
    if (!source)
        console.fail(kRefused,
                     QStringLiteral("%1 n'est ni une icône, ni un curseur, ni un curseur animé, "
                                    "ni un exécutable ou une bibliothèque lisible.")
                         .arg(quoted(path)));
    return source;
}

QString kindName(icon::IconSource::Kind kind) {
    switch (kind) {
    case icon::IconSource::Kind::Icon:
        return QStringLiteral("icône (ICO)");
    case icon::IconSource::Kind::Cursor:
        return QStringLiteral("curseur (CUR)");
    case icon::IconSource::Kind::Pe:
        return QStringLiteral("exécutable ou bibliothèque 32/64 bits (PE)");
    case icon::IconSource::Kind::Ne:
        return QStringLiteral("exécutable ou bibliothèque 16 bits (NE)");
    case icon::IconSource::Kind::AnimatedCursor:
        return QStringLiteral("curseur animé (ANI)");
    }
    return {};
}

Index indexOption(const Arguments& args, const icon::IconSource& source, const QString& path,
                  Console& console) {
    const std::optional<QString> text = args.option(QStringLiteral("--index"));
    if (!text)
        return {};
    bool ok = false;
    const int n = text->toInt(&ok);
    if (!ok || n < 1)
        return {std::nullopt,
                console.fail(kUsage, QStringLiteral("--index attend un numéro d'icône à partir "
                                                    "de 1, pas « %1 ».")
                                         .arg(*text))};
    if (n > source.count())
        return {std::nullopt,
                console.fail(kRefused, QStringLiteral("%1 n'a pas d'icône n°%2 (%3 en tout).")
                                           .arg(quoted(path))
                                           .arg(n)
                                           .arg(source.count()))};
    return {n, 0};
}

} // namespace cli
