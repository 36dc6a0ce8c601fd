#include "CommandLine.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

const QStringList requests{u"help"_s, u"version"_s}; ///< flags that stand for a command

QList<OptionSyntax> sharedOptions()
{
    QList<OptionSyntax> options;
    for (const CommonOption &option : commonOptions())
        options += optionsOf(option.usage);
    return options;
}

/// Makes the options of all commands known to the parser: which command is meant isn't known yet, since
/// options may come before its name.
void addOptions(QCommandLineParser &parser, const QList<CommandSyntax> &commands)
{
    QList<OptionSyntax> options = sharedOptions();
    for (const CommandSyntax &command : commands)
        options += command.options;
    QStringList known;
    for (const OptionSyntax &option : options) {
        if (known.contains(option.name))
            continue;
        known.append(option.name);
        QStringList names{option.name};
        if (requests.contains(option.name))
            names.append(option.name.first(1));
        parser.addOption(QCommandLineOption(names, {}, option.form));
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
    if (words.isEmpty())
        throw UsageError(u"Aucune commande n’est donnée."_s);
    QStringList continuations;
    for (const CommandSyntax &command : commands) {
        if (words.first(std::min(words.size(), command.name.size())) == command.name)
            return command;
        if (command.name.first() == words.first())
            continuations.append(command.name.last());
    }
    if (!continuations.isEmpty())
        throw UsageError(u"La commande "_s + words.first() + u" demande "_s + continuations.join(u" ou "_s) +
                         u'.');
    throw UsageError(u"Commande inconnue\u00A0: "_s + words.first());
}

void checkOperands(const Invocation &invocation, const CommandSyntax &command)
{
    const QStringList &typed = invocation.operands;
    const QStringList forms = invocation.has(command.standIn) ? QStringList() : command.operands;
    const bool isLastRepeated = !forms.isEmpty() && forms.last().endsWith(u'…');
    if (typed.size() < std::min(command.requiredOperands, forms.size()))
        throw UsageError(u"Il manque un argument à la commande "_s + invocation.command + u'.');
    if (typed.size() > forms.size() && !isLastRepeated)
        throw UsageError(u"Argument de trop\u00A0: "_s + typed.last());
    for (qsizetype index = 0; index < typed.size(); ++index) {
        if (typed.at(index).isEmpty() || !fits(typed.at(index), forms.at(std::min(index, forms.size() - 1))))
            throw UsageError(u"Valeur incorrecte\u00A0: "_s + typed.at(index));
    }
}

void checkOptions(const Invocation &invocation, const QList<OptionSyntax> &options)
{
    for (auto typed = invocation.values.begin(); typed != invocation.values.end(); ++typed) {
        const auto option = std::ranges::find(options, typed.key(), &OptionSyntax::name);
        if (option == options.end())
            throw UsageError(u"Option inconnue\u00A0: "_s + typed.key());
        for (const QString &value : typed.value()) {
            if (!fits(value, option->form))
                throw UsageError(u"Valeur incorrecte pour --"_s + typed.key() + u"\u00A0: "_s + value);
        }
    }
}

/// The lines of the help for one command or option.
QString entry(const QString &usage, const QString &meaning)
{
    constexpr qsizetype width = 90;
    static const QRegularExpression gaps(u" (?=\\[|--)"_s);
    QString text;
    QString line = u" "_s;
    for (const QString &part : usage.split(gaps)) {
        if (line.size() + 1 + part.size() > width) {
            text += line + u'\n';
            line = QString(9, u' ');
        }
        line += u' ' + part;
    }
    return text + line + u"\n      "_s + meaning + u'\n';
}

} // namespace

QString Invocation::value(const QString &option, const QString &otherwise) const
{
    return has(option) ? values.value(option).last() : otherwise;
}

Invocation parseCommandLine(const QStringList &arguments, const QList<CommandSyntax> &commands)
{
    QCommandLineParser parser;
    addOptions(parser, commands);
    parse(parser, arguments);
    for (const QString &request : requests) {
        if (parser.isSet(request))
            return {request, {}, {}};
    }

    const QStringList words = parser.positionalArguments();
    const CommandSyntax &command = findCommand(words, commands);
    Invocation invocation{command.name.join(u' '), words.sliced(command.name.size()), {}};
    for (const QString &option : parser.optionNames())
        invocation.values.insert(option, parser.values(option));
    for (const OptionSyntax &option : command.options) {
        if (option.isRequired && !invocation.has(option.name))
            throw UsageError(u"Il manque l’option --"_s + option.name + u'.');
    }
    checkOptions(invocation, sharedOptions() + command.options);
    checkOperands(invocation, command);
    return invocation;
}

QString usageText(const QList<CommandSyntax> &commands)
{
    QString text = u"Usage\u00A0: vornelctl [OPTIONS] COMMANDE …\n\nOptions communes\n"_s;
    for (const CommonOption &option : commonOptions())
        text += entry(option.usage, option.meaning);
    QString section;
    for (const CommandSyntax &command : commands) {
        if (section != command.section)
            text += u'\n' + command.section + u'\n';
        section = command.section;
        text += entry(command.usage, command.meaning);
    }
    return text +
           u"\nSKILL est l’identifiant d’une compétence, ou son UUID\u00A0; CATÉGORIE, l’identifiant d’une "
           "catégorie\u00A0;\nID, le nom d’une copie mise de côté, ou son début.\nFICHIER ou SOURCE "
           "«\u00A0-\u00A0» "
           "est l’entrée standard, et pour export, la sortie standard.\n"
           "--replace remplace les dossiers que VORNEL n’a pas installés\u00A0; ils sont gardés dans "
           "l’historique.\nCodes de sortie\u00A0: 0 réussite, 1 copie à réparer (status, diff), erreurs dans "
           "une compétence (check), dossiers différents (compare) ou conflits à régler (merge), 2 échec, 64 "
           "usage "
           "incorrect.\n"_s;
}

} // namespace vornel
