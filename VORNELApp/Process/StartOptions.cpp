#include "StartOptions.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

const QString usage = u"Usage\u00A0: vornel\n\n"
                      "Ouvre la bibliothèque de vos compétences.\n\n"
                      "  -h, --help     affiche cette aide\n"
                      "  -v, --version  affiche la version\n"_s;
const QString noScreen = u"Aucun écran n’est disponible. "
                         "La ligne de commande reste possible\u00A0: vornelctl status\n"_s;

bool hasScreen()
{
    return std::ranges::any_of(std::array{"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"},
                               [](const char *variable) { return !qEnvironmentVariableIsEmpty(variable); });
}

} // namespace

StartOptions::StartOptions(const QStringList &arguments)
{
    const QHash<QString, bool StartOptions::*> known{
        {u"-h"_s, &StartOptions::showsHelp},
        {u"--help"_s, &StartOptions::showsHelp},
        {u"-v"_s, &StartOptions::showsVersion},
        {u"--version"_s, &StartOptions::showsVersion},
        {u"--gallery"_s, &StartOptions::showsGallery},
        {u"--end-after-first-frame"_s, &StartOptions::endsAfterFirstFrame}};
    for (const QString &argument : arguments) {
        if (const auto option = known.find(argument); option != known.end())
            this->*option.value() = true;
        else if (unknown.isNull())
            unknown = argument;
    }
}

std::optional<int> StartOptions::answer() const
{
    if (!unknown.isNull()) {
        const QString mistake = u"Argument inconnu\u00A0: "_s + unknown + u"\n\n"_s + usage;
        std::fputs(qUtf8Printable(mistake), stderr);
        return 64;
    }
    if (showsHelp || showsVersion) {
        const QString version = QStringLiteral("vornel " VORNEL_VERSION "\n");
        std::fputs(qUtf8Printable(showsHelp ? usage : version), stdout);
        return EXIT_SUCCESS;
    }
    if (!hasScreen()) {
        std::fputs(qUtf8Printable(noScreen), stderr);
        return EXIT_FAILURE;
    }
    return std::nullopt;
}

} // namespace vornel
