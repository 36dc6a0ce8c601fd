#include "Session.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

CommandFailure unknownSkill(const QString &typed)
{
    return {u"skillNotFound"_s, u"Skill introuvable : "_s + typed};
}

QUuid findSkill(const QString &typed, const QList<SkillSummary> &skills)
{
    const auto found = std::ranges::find(skills, typed, &SkillSummary::slug);
    if (found != skills.end())
        return found->id;
    if (const auto id = uuidFromText(typed))
        return *id;
    throw unknownSkill(typed);
}

QUuid activeSkill(const Session &session, const QString &typed)
{
    return findSkill(typed, session.overview.skills);
}

QString slugOf(const QUuid &id, const QList<SkillSummary> &skills)
{
    const auto found = std::ranges::find(skills, id, &SkillSummary::id);
    return found == skills.end() ? uuidText(id) : found->slug;
}

std::optional<qint64> expectedRevision(const Session &session)
{
    const QString option = u"expect"_s;
    if (!session.invocation.has(option))
        return std::nullopt;
    return session.invocation.value(option).toLongLong();
}

QList<QUuid> activeSkills(const Session &session, const QStringList &typed)
{
    QList<QUuid> ids;
    for (const QString &skill : typed) {
        const QUuid id = activeSkill(session, skill);
        if (!ids.contains(id))
            ids.append(id);
    }
    return ids;
}

} // namespace vornel
