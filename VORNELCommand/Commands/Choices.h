#pragma once

#include "Command.h"

namespace vornel {

/// The choices typed as "--choose SLUG=CHOICE", by slug.
template <typename Choice>
QHash<QString, Choice> typedChoices(const Session &session)
{
    QHash<QString, Choice> choices;
    for (const QString &typed : session.invocation.values.value(QStringLiteral("choose")))
        choices.insert(typed.section(u'=', 0, 0), caseOf<Choice>(typed.section(u'=', 1)));
    return choices;
}

/// The choice typed as "--prefer CHOICE", if any.
template <typename Choice>
std::optional<Choice> preferredChoice(const Session &session)
{
    const QString prefer = QStringLiteral("prefer");
    if (!session.invocation.has(prefer))
        return std::nullopt;
    return caseOf<Choice>(session.invocation.value(prefer));
}

/// Tells a person how to choose for these skills; nothing for none.
template <typename Choice>
void tellUndecided(const Session &session, const QStringList &slugs)
{
    if (!slugs.isEmpty() && !session.invocation.has(QStringLiteral("json")))
        Terminal::printError(QStringLiteral("À choisir avec --choose IDENTIFIANT=%1 ou --prefer\u00A0: %2")
                                 .arg(alternatives<Choice>(), slugs.join(QStringLiteral(", "))));
}

/// The failure that the user has chosen for a skill that leaves no choice.
inline CommandFailure unknownCollision(const QString &slug)
{
    return {QStringLiteral("collisionNotFound"), QStringLiteral("Collision d’import introuvable : ") + slug};
}

} // namespace vornel
