#include "WrongCopies.h"

#include <VORNELCore/Library/Wording.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

// Without an answer, the skills' state says it, without the reason or the cause.
WrongCopies::WrongCopies(QObject *parent)
    : QObject(parent),
      m_looking(this, [this](const Answer<Copies> &answer) { show(answer.value.value_or(Copies())); })
{}

void WrongCopies::follow(const QList<SkillSummary> &skills, CopyInspecting &inspector)
{
    const auto isWrong = [](const SkillSummary &skill) {
        return skill.syncState == SyncState::failed || skill.syncState == SyncState::drifted;
    };
    if (std::ranges::any_of(skills, isWrong))
        return m_looking.ask([&inspector] { return answerOf(inspector.wrongCopies()); });
    m_looking.forget();
    show({});
}

void WrongCopies::show(const Copies &copies)
{
    if (m_copies == copies)
        return;
    m_copies = copies;
    Q_EMIT changed();
}

QString WrongCopies::problem(const QUuid &id) const
{
    return problem(m_copies.value(id));
}

QString WrongCopies::problem(const QList<CopyInspection> &copies)
{
    QStringList reasons;
    for (const CopyInspection &copy : copies) {
        if (!copy.reason.isEmpty())
            reasons.append(copy.failureText());
    }
    return reasons.join(u'\n');
}

QString WrongCopies::stateText(const SkillSummary &skill) const
{
    return Wording::syncState(skill.syncState, worstDrift(m_copies.value(skill.id)));
}

} // namespace vornel
