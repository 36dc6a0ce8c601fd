#include "FailedCopies.h"

#include <QCoro/QCoroFuture>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

void FailedCopies::follow(const QList<SkillSummary> &skills,
                          const std::shared_ptr<TargetInspecting> &inspector)
{
    if (inspector != nullptr &&
        std::ranges::find(skills, SyncState::failed, &SkillSummary::syncState) != skills.end())
        ask(this, inspector->failedCopies());
    else
        show({});
}

QCoro::Task<> FailedCopies::ask(QPointer<FailedCopies> self, QFuture<Copies> failed)
{
    Copies copies;
    try {
        copies = co_await failed;
    } catch (const std::exception &) {
        copies.clear(); // the skills' state says it, without the reason
    }
    if (!self.isNull())
        self->show(copies);
}

void FailedCopies::show(const Copies &copies)
{
    if (m_copies == copies)
        return;
    m_copies = copies;
    Q_EMIT changed();
}

QString FailedCopies::problem(const QUuid &id) const
{
    return problem(m_copies.value(id));
}

QString FailedCopies::problem(const QList<TargetInspection> &copies)
{
    QStringList reasons;
    for (const TargetInspection &copy : copies) {
        if (!copy.reason.isEmpty())
            reasons.append(copy.assistant() + u"\u00A0: "_s + copy.reason + u" ("_s + copy.shownPath() +
                           u')');
    }
    return reasons.join(u'\n');
}

} // namespace vornel
