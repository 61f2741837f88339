// orvanne-icons: the icon conversions of Orvanne, for scripts.
#include "cli/Command.h"

#include <array>
#include <iostream>
#include <string>
#include <vector>

namespace {

using cli::Command;

// Commands that take several input files take as many as the command line holds.
constexpr std::size_t kManyInputs = static_cast<std::size_t>(-1);

const std::array kCommands{
    Command{"info",
            "info FICHIER",
            "Décrit les images d'un fichier ICO ou CUR (et le point actif de chaque image d'un "
            "curseur) et celle que l'éditeur prend en 32×32.",
            {},
            1,
            1,
            cli::runInfo},
    Command{"to-ico",
            "to-ico ENTRÉE SORTIE [--index N]",
            "Ouvre l'icône N (1 par défaut) de ENTRÉE comme l'éditeur d'icônes et l'enregistre "
            "comme lui dans SORTIE (32×32, 24 bits, 3262 octets).",
            {"--index"},
            2,
            2,
            cli::runToIco},
    Command{"to-bmp",
            "to-bmp ENTRÉE... SORTIE [--size 32|48] [--background RRGGBB]",
            "Écrit l'icône telle que le navigateur la montre, sur son fond (00D2D2 par défaut), "
            "dans un fichier BMP 24 bits. Avec plusieurs ENTRÉES, SORTIE est un dossier où "
            "chacune devient NOM.bmp.",
            {"--size", "--background"},
            2,
            kManyInputs,
            cli::runToBmp},
    Command{"list",
            "list FICHIER",
            "Compte les icônes d'un fichier ICO, CUR, ANI, EXE, DLL ou ICL et décrit chacune : "
            "ses images (avec leur point actif pour un curseur) et, dans un exécutable, le nom ou "
            "le numéro de sa ressource.",
            {},
            1,
            1,
            cli::runList},
    Command{"extract",
            "extract FICHIER... DOSSIER [--index N] [--png | --keep-cursors]",
            "Écrit chaque icône des fichiers (ou l'icône N) dans DOSSIER, en fichier ICO complet "
            "NOM_N.ico nommé d'après le fichier et le numéro de l'icône. --png écrit plutôt "
            "chaque image de chaque icône en PNG : NOM_N_LxH_BITS.png. --keep-cursors écrit tels "
            "quels, en fichiers CUR avec leur point actif, les curseurs et les images curseurs "
            "d'un curseur animé : NOM_N.cur.",
            {"--index"},
            2,
            kManyInputs,
            cli::runExtract,
            {"--png", "--keep-cursors"}},
    Command{"to-png",
            "to-png ENTRÉE... SORTIE [--index N] [--size S]",
            "Écrit une image de l'icône N (1 par défaut) de ENTRÉE, telle qu'elle est enregistrée, "
            "dans un fichier PNG RGBA qui garde son alpha : la plus proche de S pixels, la plus "
            "grande par défaut. Avec plusieurs ENTRÉES, SORTIE est un dossier où chacune devient "
            "NOM.png.",
            {"--index", "--size"},
            2,
            kManyInputs,
            cli::runToPng},
    Command{"thumbnail",
            "thumbnail --size N ENTRÉE SORTIE.png",
            "Écrit la vignette de N×N pixels au plus de la première icône de ENTRÉE (ICO, CUR, "
            "ANI, EXE, DLL ou ICL) dans un fichier PNG, avec son alpha.",
            {"--size"},
            2,
            2,
            cli::runThumbnail},
    Command{"create",
            "create SORTIE.ico IMAGE.png... [--png CÔTÉS] [--bmp CÔTÉS]",
            "Fait une icône de plusieurs tailles des images PNG (de 1 à 256 pixels de côté, une "
            "par taille), dans l'ordre donné, chacune en 32 bits avec son alpha : en PNG si son "
            "plus grand côté est dans --png (256 par défaut), en bitmap avec son masque sinon ou "
            "s'il est dans --bmp. CÔTÉS : des nombres séparés par des virgules, 256,128 par "
            "exemple.",
            {"--png", "--bmp"},
            2,
            kManyInputs, // the command counts its images itself
            cli::runCreate},
};

void printUsage(std::ostream& out) {
    out << "Usage : orvanne-icons COMMANDE ARGUMENTS...\n"
           "        orvanne-icons --help | --version\n\nCommandes :\n";
    for (const Command& c : kCommands)
        out << "  " << c.synopsis << "\n      " << c.summary << "\n";
    out << "\nCode de sortie : 0 en cas de succès, 1 si l'entrée est refusée ou la sortie "
           "impossible à écrire, 2 pour une erreur d'utilisation. Avec plusieurs entrées, "
           "chacune est traitée même si une autre est refusée, et le code est 1 si l'une l'a "
           "été.\n";
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
    cli::Console console;
    const std::string hint = " Voir « orvanne-icons --help ».";
    if (words.empty())
        return console.fail(cli::kUsage, "il manque la commande." + hint);
    if (words[0] == "--help" || words[0] == "-h") {
        printUsage(console.out());
        return cli::kSuccess;
    }
    if (words[0] == "--version") {
        console.out() << "orvanne-icons " ORVANNE_VERSION "\n";
        return cli::kSuccess;
    }
    for (const Command& c : kCommands) {
        if (words[0] != c.name)
            continue;
        const std::string usage = std::string(" Usage : orvanne-icons ") + c.synopsis;
        std::string error;
        const std::optional<cli::Arguments> args = cli::Arguments::parse(
            std::vector<std::string>(words.begin() + 1, words.end()), c.valueOptions, c.flags,
            error);
        if (!args)
            return console.fail(cli::kUsage, error + usage);
        const std::size_t count = args->positional().size();
        if (count < c.minPositional || count > c.maxPositional)
            return console.fail(cli::kUsage, "nombre d'arguments incorrect." + usage);
        return c.run(*args, console);
    }
    return console.fail(cli::kUsage, "commande inconnue « " + words[0] + " »." + hint);
}
