#include "CommandLine.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QRegularExpression>

#include <algorithm>

namespace vornel {

namespace {

const QStringList commonOptions{QStringLiteral("workspace"), QStringLiteral("claude"),
                                QStringLiteral("codex")};
const QStringList commonFlags{QStringLiteral("json"), QStringLiteral("help"), QStringLiteral("version")};

void addOptions(QCommandLineParser &parser, const QStringList &options, const QStringList &flags)
{
    for (const QString &option : options)
        parser.addOption({option, {}, QStringLiteral("value")});
    for (const QString &flag : flags)
        parser.addOption(QCommandLineOption(flag == u"help" ? QStringList{flag, QStringLiteral("h")}
                                                            : QStringList{flag}));
}

void parse(QCommandLineParser &parser, const QStringList &arguments)
{
    if (parser.parse(QStringList{QString()} + arguments))
        return;
    const QStringList unknown = parser.unknownOptionNames();
    if (unknown.isEmpty())
        throw UsageError(QStringLiteral("Une option n’a pas de valeur, ou en a une de trop."));
    throw UsageError(u"Option inconnue : " + unknown.first());
}

/// The words before the first option that is not common to all, which begin with the command.
QStringList leadingWords(const QStringList &arguments, QString &request)
{
    QCommandLineParser parser;
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    addOptions(parser, commonOptions, commonFlags);
    parse(parser, arguments);
    for (const QString &flag : {QStringLiteral("help"), QStringLiteral("version")}) {
        if (parser.isSet(flag))
            request = flag;
    }
    return parser.positionalArguments();
}

const CommandSyntax &findCommand(const QStringList &words, const QList<CommandSyntax> &commands)
{
    const auto isNamed = [&words](const CommandSyntax &command) {
        const QStringList name = command.name.split(u' ');
        return words.mid(0, name.size()) == name;
    };
    const auto found = std::ranges::find_if(commands, isNamed);
    if (words.isEmpty())
        throw UsageError(QStringLiteral("Aucune commande n’est donnée."));
    if (found == commands.end())
        throw UsageError(u"Commande inconnue : " + words.first());
    return *found;
}

/// Refuses a value that its option can't have. Options without a shape take any text.
void checkValue(const QString &option, const QString &value)
{
    static const QHash<QString, QRegularExpression> shapes{
        {QStringLiteral("choose"), QRegularExpression(QStringLiteral(R"(\A[^=]+=(claude|codex)\z)"))},
        {QStringLiteral("expect"), QRegularExpression(QStringLiteral(R"(\A\d{1,18}\z)"))},
        {QStringLiteral("maturity"),
         QRegularExpression(QStringLiteral(R"(\A(draft|ready|active|obsolete)\z)"))},
        {QStringLiteral("prefer"), QRegularExpression(QStringLiteral(R"(\A(claude|codex)\z)"))},
    };
    const auto shape = shapes.find(option);
    if (shape != shapes.end() && !shape->match(value).hasMatch())
        throw UsageError(u"Valeur incorrecte pour --" + option + u" : " + value);
    if (value.isEmpty() && commonOptions.contains(option))
        throw UsageError(u"L’option --" + option + u" demande un dossier.");
}

void check(const Invocation &invocation, const CommandSyntax &command)
{
    for (const QString &option : command.requiredOptions) {
        if (!invocation.has(option))
            throw UsageError(u"Il manque l’option --" + option + u'.');
    }
    for (auto option = invocation.values.begin(); option != invocation.values.end(); ++option) {
        for (const QString &value : option.value())
            checkValue(option.key(), value);
    }
    const qsizetype count = invocation.operands.size();
    const bool takesAll = invocation.has(QStringLiteral("all"));
    if (count < (takesAll ? 0 : command.minOperands))
        throw UsageError(u"Il manque un argument à la commande " + command.name + u'.');
    if (count > (takesAll ? 0 : command.maxOperands))
        throw UsageError(u"Argument de trop : " + invocation.operands.last());
}

} // namespace

QString Invocation::value(const QString &option, const QString &otherwise) const
{
    return has(option) ? values.value(option).last() : otherwise;
}

Invocation parseCommandLine(const QStringList &arguments, const QList<CommandSyntax> &commands)
{
    QString request;
    const QStringList words = leadingWords(arguments, request);
    if (!request.isEmpty())
        return {request, {}, {}};
    const CommandSyntax &command = findCommand(words, commands);

    const QStringList options = commonOptions + command.requiredOptions + command.options;
    const QStringList flags = commonFlags + command.flags;
    QCommandLineParser parser;
    addOptions(parser, options, flags);
    parse(parser, arguments);
    for (const QString &flag : {QStringLiteral("help"), QStringLiteral("version")}) {
        if (parser.isSet(flag))
            return {flag, {}, {}};
    }

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
    return QStringLiteral(R"(Usage : vornelctl [OPTIONS] COMMANDE …

Options communes
  --workspace DOSSIER   le workspace (sinon VORNEL_WORKSPACE_PATH, sinon ~/VORNEL)
  --claude DOSSIER      les skills de Claude (sinon VORNEL_CLAUDE_SKILLS_PATH, sinon ~/.claude/skills)
  --codex DOSSIER       les skills de Codex (sinon VORNEL_CODEX_SKILLS_PATH, sinon ~/.codex/skills)
  --json                un document JSON sur la sortie standard
  --help, --version     cette aide, la version
  --                    fin des options

Consulter
  status                                    l’état du workspace ; code 1 si une copie est à réparer
  list [--search TEXTE] [--category ID] [--maturity draft|ready|active|obsolete]
  show SKILL

Importer
  scan                                      ce que contiennent les deux dossiers
  import [--choose SLUG=claude|codex]… [--prefer claude|codex]

Écrire
  create SLUG --name NOM [--summary TEXTE] [--category ID] [--tags a,b] [--maturity M] [--file FICHIER]
  save SKILL --expect RÉVISION --file FICHIER
  sync SKILL… | sync --all

Classer
  assign CATÉGORIE SKILL…
  category create NOM COULEUR
  category update ID NOM COULEUR
  category delete ID

Corbeille
  trash SKILL…
  restore SKILL
  delete SKILL
  empty-trash

SKILL est un identifiant ou un slug. FICHIER « - » est l’entrée standard.
Codes de sortie : 0 réussite, 1 copie à réparer (status), 2 échec, 64 usage incorrect.
)");
}

} // namespace vornel
