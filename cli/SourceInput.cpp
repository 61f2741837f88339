#include "cli/SourceInput.h"

#include "cli/Input.h"

#include <charconv>

namespace cli {

std::optional<icon::IconSource> openSource(const std::string& path, Console& console) {
    std::shared_ptr<const icon::MappedFile> file = readInput(path, console);
    if (!file)
        return std::nullopt;
    std::optional<icon::IconSource> source = icon::IconSource::fromFile(std::move(file));
    if (source && source->iconsLeftOut() > 0)
        console.warn(quoted(path) + " contient " + std::to_string(source->iconsLeftOut()) +
                     " icônes de plus que les " + std::to_string(source->count()) +
                     " lues : elles sont ignorées.");
    if (!source)
        console.fail(kRefused, quoted(path) + " n'est ni une icône, ni un curseur, ni un curseur "
                                              "animé, ni un exécutable ou une bibliothèque lisible.");
    return source;
}

std::string kindName(icon::IconSource::Kind kind) {
    switch (kind) {
    case icon::IconSource::Kind::Icon:
        return "icône (ICO)";
    case icon::IconSource::Kind::Cursor:
        return "curseur (CUR)";
    case icon::IconSource::Kind::Pe:
        return "exécutable ou bibliothèque 32/64 bits (PE)";
    case icon::IconSource::Kind::Ne:
        return "exécutable ou bibliothèque 16 bits (NE)";
    case icon::IconSource::Kind::AnimatedCursor:
        return "curseur animé (ANI)";
    }
    return {};
}

std::optional<int> parseNumber(const std::string& text) {
    const auto space = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
    std::size_t first = 0, last = text.size();
    while (first < last && space(text[first]))
        ++first;
    while (last > first && space(text[last - 1]))
        --last;
    if (first < last && text[first] == '+')
        ++first;
    int value = 0;
    const char* end = text.data() + last;
    const auto [stop, error] = std::from_chars(text.data() + first, end, value);
    if (first == last || error != std::errc() || stop != end)
        return std::nullopt;
    return value;
}

Index indexOption(const Arguments& args, const icon::IconSource& source, const std::string& path,
                  Console& console) {
    const std::optional<std::string> text = args.option("--index");
    if (!text)
        return {};
    const std::optional<int> n = parseNumber(*text);
    if (!n || *n < 1)
        return {std::nullopt,
                console.fail(kUsage, "--index attend un numéro d'icône à partir de 1, pas « " +
                                         *text + " ».")};
    if (*n > source.count())
        return {std::nullopt,
                console.fail(kRefused, quoted(path) + " n'a pas d'icône n°" + std::to_string(*n) +
                                           " (" + std::to_string(source.count()) + " en tout).")};
    return {*n, 0};
}

} // namespace cli
