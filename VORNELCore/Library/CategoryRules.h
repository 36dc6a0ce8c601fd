#pragma once

#include <VORNELCore/Records/WorkspaceModels.h>

#include <QSet>
#include <QString>

/// What a category's name, colour and identifier may be.
namespace vornel::CategoryRules {

/// Whether a name, trimmed, has more characters than a category's may have.
bool isTooLong(const QString &name);

/// Whether a category other than `exceptID` has this name, trimmed and without regard to case.
bool isTaken(const QString &name, const QList<SkillCategory> &categories, const QString &exceptID = {});

/// What the user reads about a name that is taken.
QString takenMessage();

/// The name, trimmed; throws `integrityFailure` unless it has 1 to 40 characters.
QString validatedCategoryName(const QString &name);

/// Six upper-case hexadecimal digits from a colour with or without "#"; throws `integrityFailure`.
QString validatedColorHex(const QString &color);

/// A new identifier made from the name: "Équipe & Outils" gives "equipe-outils", or "equipe-outils-2" when
/// that exists.
QString categoryIdentifier(const QString &name, const QSet<QString> &existing);

/// A category identifier as a manifest names it, trimmed and in lower case; "other" when it is empty.
QString normalizedCategory(const QString &category);

/// A name for an identifier that has none: "mes-outils" gives "Mes Outils".
QString legacyCategoryName(const QString &category);

} // namespace vornel::CategoryRules
