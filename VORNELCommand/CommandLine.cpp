#include "CommandLine.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

const QStringList commonOptions{u"workspace"_s, u"claude"_s, u"codex"_s};
const QStringList commonFlags{u"json"_s, u"help"_s, u"version"_s};

void addOptions(QCommandLineParser &parser, const QStringList &options, const QStringList &flags)
{
    for (const QString &option : options)
        parser.addOption({option, {}, u"value"_s});
    for (const QString &flag : flags) {
        const bool isCommand = flag == u"help"_s || flag == u"version"_s;
        parser.addOption(
            QCommandLineOption(isCommand ? QStringList{flag, flag.first(1)} : QStringList{flag}));
    }
}

void parse(QCommandLineParser &parser, const QStringList &arguments)
{
    if (parser.parse(QStringList{QString()} + arguments))
        return;
    const QStringList unknown = parser.unknownOptionNames();
    if (unknown.isEmpty())
        throw UsageError(u"Une option n’a pas de valeur, ou en a une de trop."_s);
    throw UsageError(u"Option inconnue\u00A0: "_s + unknown.first());
}

const CommandSyntax &findCommand(const QStringList &words, const QList<CommandSyntax> &commands)
{
    const auto isNamed = [&words](const CommandSyntax &command) {
        const QStringList name = command.name.split(u' ');
        return words.mid(0, name.size()) == name;
    };
    const auto found = std::ranges::find_if(commands, isNamed);
    if (words.isEmpty())
        throw UsageError(u"Aucune commande n’est donnée."_s);
    if (found == commands.end() && words.first() == u"category")
        throw UsageError(u"La commande category demande create, update ou delete."_s);
    if (found == commands.end())
        throw UsageError(u"Commande inconnue\u00A0: "_s + words.first());
    return *found;
}

/// Refuses a value that its option can't have. Options without a shape take any text.
void checkValue(const QString &option, const QString &value)
{
    static const QHash<QString, QRegularExpression> shapes{
        {u"choose"_s, QRegularExpression(uR"(\A[^=]+=(claude|codex)\z)"_s)},
        {u"maturity"_s, QRegularExpression(uR"(\A(draft|ready|active|obsolete)\z)"_s)},
        {u"prefer"_s, QRegularExpression(uR"(\A(claude|codex)\z)"_s)},
    };
    const auto shape = shapes.find(option);
    if (shape != shapes.end() && !shape->match(value).hasMatch())
        throw UsageError(u"Valeur incorrecte pour --"_s + option + u" : "_s + value);
    bool isNumber = true;
    if (option == u"expect")
        value.toLongLong(&isNumber);
    if (!isNumber)
        throw UsageError(u"Valeur incorrecte pour --expect\u00A0: "_s + value);
    if (value.isEmpty() && commonOptions.contains(option))
        throw UsageError(u"L’option --"_s + option + u" demande un dossier."_s);
}

void check(const Invocation &invocation, const CommandSyntax &command)
{
    for (const QString &option : command.requiredOptions) {
        if (!invocation.has(option))
            throw UsageError(u"Il manque l’option --"_s + option + u'.');
    }
    const QStringList known =
        commonOptions + commonFlags + command.requiredOptions + command.options + command.flags;
    for (auto option = invocation.values.begin(); option != invocation.values.end(); ++option) {
        if (!known.contains(option.key()))
            throw UsageError(u"Option inconnue\u00A0: "_s + option.key());
        for (const QString &value : option.value())
            checkValue(option.key(), value);
    }
    const qsizetype count = invocation.operands.size();
    const bool takesAll = invocation.has(u"all"_s);
    if (count < (takesAll ? 0 : command.minOperands))
        throw UsageError(u"Il manque un argument à la commande "_s + command.name + u'.');
    if (count > (takesAll ? 0 : command.maxOperands))
        throw UsageError(u"Argument de trop\u00A0: "_s + invocation.operands.last());
}

} // namespace

QString Invocation::value(const QString &option, const QString &otherwise) const
{
    return has(option) ? values.value(option).last() : otherwise;
}

Invocation parseCommandLine(const QStringList &arguments, const QList<CommandSyntax> &commands)
{
    QStringList options = commonOptions;
    QStringList flags = commonFlags;
    for (const CommandSyntax &command : commands) {
        options += command.requiredOptions + command.options;
        flags += command.flags;
    }
    options.removeDuplicates();
    flags.removeDuplicates();
    QCommandLineParser parser;
    addOptions(parser, options, flags);
    parse(parser, arguments);
    for (const QString &flag : {u"help"_s, u"version"_s}) {
        if (parser.isSet(flag))
            return {flag, {}, {}};
    }

    const CommandSyntax &command = findCommand(parser.positionalArguments(), commands);
    Invocation invocation{
        command.name, parser.positionalArguments().mid(command.name.split(u' ').size()), {}};
    for (const QString &name : options + flags) {
        if (parser.isSet(name))
            invocation.values.insert(name, parser.values(name));
    }
    check(invocation, command);
    return invocation;
}

QString usageText()
{
    return uR"(Usage : vornelctl [OPTIONS] COMMANDE …

Options communes
  --workspace DOSSIER   le workspace (sinon VORNEL_WORKSPACE_PATH, sinon ~/VORNEL)
  --claude DOSSIER      les skills de Claude (sinon VORNEL_CLAUDE_SKILLS_PATH, sinon ~/.claude/skills)
  --codex DOSSIER       les skills de Codex (sinon VORNEL_CODEX_SKILLS_PATH, sinon ~/.codex/skills)
  --json                un document JSON sur la sortie standard
  -h, --help            cette aide
  -v, --version         la version
  --                    fin des options

Consulter
  status                                    l’état du workspace ; code 1 si une copie est à réparer
  list [--search TEXTE] [--category ID] [--maturity draft|ready|active|obsolete] [--trash]
  show SKILL
  diff SKILL                                ce que chaque copie a en plus (+), en moins (-) ou de modifié (~) ;
                                            code 1 si une copie diffère

Importer
  scan                                      ce que contiennent les deux dossiers
  import [--choose SLUG=claude|codex]… [--prefer claude|codex] [--except SLUG]… [--replace]

Écrire
  create SLUG --name NOM [--summary TEXTE] [--category ID] [--tags a,b] [--maturity M] [--file FICHIER]
         [--replace]
  save SKILL --expect RÉVISION --file FICHIER
  sync SKILL… | sync --all
  set-aside SKILL claude|codex              garde dans .vornel/recovery une copie qui ne peut pas être lue, et en
                                            installe une nouvelle

Classer
  assign CATÉGORIE SKILL…
  category create NOM COULEUR
  category update ID NOM COULEUR
  category delete ID

Corbeille
  trash SKILL…
  restore SKILL [--replace]
  delete SKILL
  empty-trash

SKILL est un identifiant ou un slug. FICHIER « - » est l’entrée standard.
--replace remplace les dossiers que VORNEL n’a pas installés ; ils sont gardés dans l’historique.
Codes de sortie : 0 réussite, 1 copie à réparer (status, diff), 2 échec, 64 usage incorrect.
)"_s;
}

} // namespace vornel
