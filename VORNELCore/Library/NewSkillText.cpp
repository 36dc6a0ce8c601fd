#include "NewSkillText.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// Characters that have to be escaped in YAML, even between quotes.
const QRegularExpression &unprintable()
{
    static const QRegularExpression pattern(uR"([\p{Cc}\x{2028}\x{2029}\x{FEFF}\x{FFFE}\x{FFFF}])"_s);
    return pattern;
}

bool isReadPlainly(const QString &value)
{
    static const QRegularExpression syntax(uR"(\A[,\[\]{}#&*!|>'"%@`]|\A[-?:](?:\s|\z)|:(?:\s|\z)|\s#)"_s);
    static const QRegularExpression notAText( // but null, a truth value, a number or a time
        uR"(\A(?:~|null|true|false|yes|no|on|off|y|n|=|<<|[-+]?\.(?:inf|nan)|[-+]?[.\d][-+.:\w]*|\d[-\d]+[ tz\d:.+-]*)\z)"_s,
        QRegularExpression::CaseInsensitiveOption);
    return !value.isEmpty() && value == value.trimmed() && !value.contains(unprintable()) &&
           !value.contains(syntax) && !value.contains(notAText);
}

QString yamlValue(const QString &value)
{
    if (isReadPlainly(value))
        return value;
    QString escaped;
    for (const QChar c : value) {
        if (unprintable().match(c).hasMatch())
            escaped += u"\\u%1"_s.arg(int{c.unicode()}, 4, 16, QChar(u'0'));
        else
            escaped += (c == u'"' || c == u'\\' ? u"\\"_s : QString()) + c;
    }
    return u'"' + escaped + u'"';
}

} // namespace

QString newSkillText(const QString &name, const QString &description, const QString &title)
{
    return u"---\nname: "_s + name + u"\ndescription: "_s + description + u"\n---\n\n# "_s + title +
           u"\n\nDécrivez ici le fonctionnement de cette compétence."_s;
}

QString readableSkillText(const CreateSkillRequest &request)
{
    return newSkillText(yamlValue(request.slug), yamlValue(request.summary), request.displayName.trimmed());
}

} // namespace vornel
