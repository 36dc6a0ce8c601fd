#include "CommandSyntax.h"

#include <QRegularExpression>

#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

const QRegularExpression &optionPattern()
{
    static const QRegularExpression pattern(uR"((\[)?--([a-z-]+)(?: ([^][ )…]+))?[])]?…?)"_s);
    return pattern;
}

} // namespace

bool fits(const QString &value, const QString &form)
{
    if (form.contains(u'=')) // "IDENTIFIANT=claude|codex"
        return value.indexOf(u'=') > 0 && fits(value.section(u'=', 1), form.section(u'=', 1));
    if (form.contains(u'|'))
        return form.split(u'|').contains(value);
    static const QRegularExpression count(uR"(\A\d{1,9}\z)"_s);
    static const QRegularExpression days(uR"(\A\d{1,9}[dj]?\z)"_s);
    bool isNumber = true;
    if (form == u"RÉVISION")
        value.toLongLong(&isNumber);
    if (form == u"NOMBRE")
        isNumber = count.match(value).hasMatch();
    if (form == u"DURÉE")
        isNumber = days.match(value).hasMatch();
    return isNumber && !(form == u"DOSSIER" && value.isEmpty());
}

QList<OptionSyntax> optionsOf(const QString &usage)
{
    QList<OptionSyntax> options;
    for (const QRegularExpressionMatch &match : optionPattern().globalMatch(usage)) {
        const QString form = match.captured(3);
        options.append({match.captured(2), form, !form.isEmpty() && match.captured(1).isEmpty()});
    }
    return options;
}

const QList<CommonOption> &commonOptions()
{
    static const QList<CommonOption> all{
        {u"--workspace DOSSIER"_s, u"Le workspace, sinon VORNEL_WORKSPACE_PATH, sinon ~/VORNEL."_s},
        {u"--claude DOSSIER"_s,
         u"Les compétences de Claude, sinon VORNEL_CLAUDE_SKILLS_PATH, sinon ~/.claude/skills."_s},
        {u"--codex DOSSIER"_s,
         u"Les compétences de Codex, sinon VORNEL_CODEX_SKILLS_PATH, sinon ~/.codex/skills."_s},
        {u"--json"_s, u"Écrit un document JSON sur la sortie standard."_s},
        {u"-h, --help"_s, u"Affiche cette aide."_s},
        {u"-v, --version"_s, u"Affiche la version."_s},
        {u"--"_s, u"Met fin aux options."_s},
    };
    return all;
}

CommandSyntax::CommandSyntax(QString itsSection, QString itsUsage, QString itsMeaning)
    : section(std::move(itsSection)),
      usage(std::move(itsUsage)),
      meaning(std::move(itsMeaning)),
      options(optionsOf(usage))
{
    static const QRegularExpression gaps(u"[ ()]+(?:\\|[ ()]*)?"_s);
    for (const QString &word : QString(usage).remove(optionPattern()).split(gaps, Qt::SkipEmptyParts)) {
        const bool isOptional = word.startsWith(u'[');
        const bool isOfTheName = word.front().isLower() && !word.contains(u'|');
        (isOfTheName ? name : operands).append(isOptional ? word.sliced(1, word.size() - 2) : word);
        requiredOperands += isOfTheName || isOptional ? 0 : 1;
    }
    static const QRegularExpression alternative(uR"(\| --([a-z-]+))"_s);
    standIn = alternative.match(usage).captured(1);
}

} // namespace vornel
