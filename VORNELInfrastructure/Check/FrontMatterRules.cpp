#include "FrontMatterRules.h"

#include <VORNELCore/Library/LocaleText.h>
#include <VORNELCore/Records/SkillFiles.h>

#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

SkillProblem problem(const QString &rule, qint64 line, const QString &message,
                     ProblemSeverity severity = ProblemSeverity::error)
{
    return {.rule = rule,
            .severity = severity,
            .path = QString::fromLatin1(SkillFiles::text),
            .line = line,
            .message = message};
}

/// As much of a text as a message has room for.
QString quoted(const QString &text)
{
    constexpr int most = 80;
    return u"«\u00A0"_s + LocaleText::truncated(text, most) + u"\u00A0»"_s;
}

/// The characters of a text, as assistants count them: code points, without blanks around.
qsizetype length(const QString &text)
{
    return text.trimmed().toUcs4().size();
}

bool isBlank(const FrontMatter::Field *field)
{
    return field == nullptr || field->text.value_or(QString()).trimmed().isEmpty();
}

qint64 lineOf(const FrontMatter::Field *field)
{
    return field == nullptr ? 1 : field->line;
}

QList<SkillProblem> nameProblems(const FrontMatter::Field *name, const QString &slug)
{
    static const QRegularExpression form(uR"(\A(?=.{1,64}\z)[a-z0-9]+(?:-[a-z0-9]+)*\z)"_s);
    const QString line = u"«\u00A0name: "_s + slug + u"\u00A0»"_s;
    if (isBlank(name))
        return {problem(u"name-missing"_s, lineOf(name),
                        u"Le nom manque, ou n’est pas un texte. Écrivez dans l’en-tête "_s + line + u'.')};
    const QString &text = *name->text;
    if (!form.match(text).hasMatch())
        return {problem(
            u"name-invalid"_s, name->line,
            u"Le nom "_s + quoted(text) +
                u" n’est pas un identifiant\u00A0: 1 à 64 lettres de a à z, chiffres et tirets simples "
                "entre eux. Prenez-en un, qui soit aussi le nom du dossier."_s)};
    if (text != slug)
        return {problem(u"name-differs"_s, name->line,
                        u"Le nom "_s + quoted(text) + u" n’est pas celui du dossier. Écrivez "_s + line +
                            u", ou donnez cet identifiant à la compétence."_s)};
    return {};
}

QList<SkillProblem> descriptionProblems(const FrontMatter::Field *description)
{
    constexpr qsizetype most = 1024;
    if (isBlank(description))
        return {problem(
            u"description-missing"_s, lineOf(description),
            u"La description manque, ou n’est pas un texte. Dites dans le champ description ce que fait "
            "la compétence, et quand s’en servir."_s)};
    const qsizetype count = length(*description->text);
    if (count <= most)
        return {};
    return {problem(
        u"description-too-long"_s, description->line,
        u"La description compte %1 caractères, et les assistants en acceptent 1\u00A0024. Raccourcissez-la, "
        "et placez le détail dans le texte."_s.arg(count))};
}

QList<SkillProblem> compatibilityProblems(const FrontMatter::Field *compatibility)
{
    constexpr qsizetype most = 500;
    const qsizetype count = isBlank(compatibility) ? 0 : length(*compatibility->text);
    if (count <= most)
        return {};
    return {problem(u"compatibility-too-long"_s, compatibility->line,
                    u"Le champ compatibility compte %1 caractères, et les assistants en acceptent 500. "
                    "Raccourcissez-le."_s.arg(count))};
}

QList<SkillProblem> unknownFields(const FrontMatter &head)
{
    static const QStringList known{u"name"_s,          u"description"_s, u"license"_s,
                                   u"compatibility"_s, u"metadata"_s,    u"allowed-tools"_s};
    QList<SkillProblem> problems;
    for (const FrontMatter::Field &field : head.fields) {
        if (!known.contains(field.name))
            problems.append(
                problem(u"field-unknown"_s, field.line,
                        u"Le champ "_s + quoted(field.name) +
                            u" n’est pas prévu. Vérifiez son orthographe, retirez-le, ou placez-le sous "
                            "metadata."_s,
                        ProblemSeverity::hint));
    }
    return problems;
}

} // namespace

QList<SkillProblem> frontMatterProblems(const FrontMatter &head, const QString &slug)
{
    if (!head.isPresent)
        return {problem(
            u"front-matter-missing"_s, 1,
            u"Le texte n’a pas d’en-tête. Placez tout au début une ligne «\u00A0---\u00A0», les champs name "
            "et description, puis une seconde ligne «\u00A0---\u00A0»."_s)};
    if (head.failure)
        return {problem(u"front-matter-invalid"_s, head.failure->line,
                        u"L’en-tête ne peut pas être lu\u00A0: "_s + head.failure->reason + u'.')};
    return nameProblems(head.find(u"name"), slug) + descriptionProblems(head.find(u"description")) +
           compatibilityProblems(head.find(u"compatibility")) + unknownFields(head);
}

} // namespace vornel
