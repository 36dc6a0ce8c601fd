#include "SkillChecks.h"

#include <iterator>

namespace vornel {

namespace {

int countErrors(const QList<SkillProblem> &problems, const QString &slug)
{
    return static_cast<int>(std::ranges::count_if(problems, [&slug](const SkillProblem &problem) {
        return problem.slug == slug && problem.severity == ProblemSeverity::error;
    }));
}

} // namespace

SkillChecks::SkillChecks(SkillChecking &checking, QObject *parent)
    : QObject(parent), m_checking(checking), m_looking(this, [this](const Problems &answer) { take(answer); })
{}

void SkillChecks::follow(const QList<SkillSummary> &skills)
{
    m_skills = skills;
    QSet<QUuid> present;
    for (const SkillSummary &skill : skills)
        present.insert(skill.id);
    if (m_found.removeIf([&present](const auto &found) { return !present.contains(found.key()); }) > 0)
        Q_EMIT changed();
    if (m_asked.isEmpty())
        checkNext();
}

QSet<QUuid> SkillChecks::faulty() const
{
    QSet<QUuid> ids;
    for (const auto &[id, found] : m_found.asKeyValueRange()) {
        if (found.errors > 0)
            ids.insert(id);
    }
    return ids;
}

void SkillChecks::checkNext()
{
    constexpr qsizetype mostAtOnce = 16;
    QList<QUuid> ids;
    for (const SkillSummary &skill : std::as_const(m_skills)) {
        const Found found = m_found.value(skill.id);
        const bool isKnown = found.revision == skill.revision && found.state == skill.syncState;
        if (isKnown || ids.size() == mostAtOnce)
            continue;
        m_asked.append(skill);
        ids.append(skill.id);
    }
    if (!ids.isEmpty())
        m_looking.ask([this, ids] { return answerOf(m_checking.checkSkills(ids)); });
}

/// Without an answer, as when one of the skills has gone meanwhile, the next overview asks anew.
void SkillChecks::take(const Problems &answer)
{
    const QList<SkillSummary> asked = std::exchange(m_asked, {});
    if (!answer.value)
        return;
    bool isNews = false;
    for (const SkillSummary &skill : asked) {
        const Found found{skill.revision, skill.syncState, countErrors(*answer.value, skill.slug)};
        isNews |= std::exchange(m_found[skill.id], found).errors != found.errors;
    }
    if (isNews)
        Q_EMIT changed();
    checkNext();
}

} // namespace vornel
