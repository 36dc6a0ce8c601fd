#include "CategoryRules.h"

#include "LocaleText.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel::CategoryRules {

bool isTooLong(const QString &name)
{
    return LocaleText::characterCount(name.trimmed()) > SkillCategory::longestName;
}

bool isTaken(const QString &name, const QList<SkillCategory> &categories, const QString &exceptID)
{
    const QString wanted = LocaleText::caseless(name.trimmed());
    return std::ranges::any_of(categories, [&](const SkillCategory &category) {
        return category.id != exceptID && LocaleText::caseless(category.name) == wanted;
    });
}

QString takenMessage()
{
    return u"Une catégorie porte déjà ce nom."_s;
}

QString validatedCategoryName(const QString &name)
{
    QString trimmed = name.trimmed();
    if (trimmed.isEmpty() || isTooLong(trimmed))
        throw VORNELWorkspaceError::integrityFailure(
            u"Le nom de la catégorie doit contenir entre 1 et 40 caractères."_s);
    return trimmed;
}

QString validatedColorHex(const QString &color)
{
    static const QRegularExpression shape(uR"(\A[#\s]*([0-9A-F]{6})[#\s]*\z)"_s);
    const QRegularExpressionMatch match = shape.match(color.toUpper());
    if (!match.hasMatch())
        throw VORNELWorkspaceError::integrityFailure(u"La couleur est invalide."_s);
    return match.captured(1);
}

QString categoryIdentifier(const QString &name, const QSet<QString> &existing)
{
    static const QRegularExpression otherCharacters(u"[^a-z0-9]+"_s);
    static const QRegularExpression outerHyphens(uR"(\A-|-\z)"_s);
    constexpr qsizetype longestBase = 40;

    QString base = LocaleText::folded(name).replace(otherCharacters, u"-"_s);
    base = base.remove(outerHyphens).left(longestBase);
    if (base.isEmpty())
        base = u"categorie"_s;

    QString id = base;
    for (int number = 2; existing.contains(id); ++number)
        id = base + u'-' + QString::number(number);
    return id;
}

QString normalizedCategory(const QString &category)
{
    const QString id = category.trimmed().toLower();
    return id.isEmpty() ? SkillCategory::otherID : id;
}

QString legacyCategoryName(const QString &category)
{
    return LocaleText::titleFromIdentifier(category);
}

} // namespace vornel::CategoryRules
