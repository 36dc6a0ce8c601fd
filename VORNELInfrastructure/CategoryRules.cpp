#include "CategoryRules.h"

#include <VORNELCore/LocaleText.h>
#include <VORNELCore/VORNELWorkspaceError.h>
#include <VORNELCore/WorkspaceModels.h>

#include <QRegularExpression>

namespace vornel::CategoryRules {

QString validatedCategoryName(const QString &name)
{
    QString trimmed = name.trimmed();
    if (trimmed.isEmpty() || LocaleText::characterCount(trimmed) > longestName)
        throw VORNELWorkspaceError::integrityFailure(
            QStringLiteral("Le nom de la catégorie doit contenir entre 1 et 40 caractères."));
    return trimmed;
}

QString validatedColorHex(const QString &color)
{
    static const QRegularExpression shape(QStringLiteral(R"(\A[#\s]*([0-9A-F]{6})[#\s]*\z)"));
    const QRegularExpressionMatch match = shape.match(color.toUpper());
    if (!match.hasMatch())
        throw VORNELWorkspaceError::integrityFailure(QStringLiteral("La couleur est invalide."));
    return match.captured(1);
}

QString categoryIdentifier(const QString &name, const QSet<QString> &existing)
{
    static const QRegularExpression otherCharacters(QStringLiteral("[^a-z0-9]+"));
    static const QRegularExpression outerHyphens(QStringLiteral(R"(\A-|-\z)"));
    constexpr qsizetype longestBase = 40;

    QString base = LocaleText::folded(name).replace(otherCharacters, QStringLiteral("-"));
    base = base.remove(outerHyphens).left(longestBase);
    if (base.isEmpty())
        base = QStringLiteral("categorie");

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
