#include "AttentionList.h"

#include <VORNELApp/Model/Answer.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// "Claude : copie manquante · Codex : copie modifiée", after what is to be done.
QString lineOf(const QList<CopyInspection> &inspections)
{
    QStringList states;
    for (const CopyInspection &inspection : inspections)
        states.append(inspection.assistant() + u"\u00A0: "_s + inspection.stateText());
    return (QStringList{u"Mise à jour nécessaire"_s} + states).join(u" · "_s);
}

} // namespace

AttentionList::AttentionList(QObject *parent) : SkillList(Destination::needsAttention, parent)
{
    m_start.setSingleShot(true);
    connect(&m_start, &QTimer::timeout, this, &AttentionList::lookAtNext);
}

void AttentionList::complete(SkillEntry &entry) const
{
    const QList<CopyInspection> inspections = m_inspections.value(entry.id);
    entry.line = lineOf(inspections);
    if (const QString reasons = WrongCopies::problem(inspections); !reasons.isEmpty())
        entry.failure = reasons; // which tell more than that a synchronisation failed
    entry.hasFailed = entry.skill.syncState == SyncState::failed || !entry.failure.isEmpty();
    for (const CopyInspection &inspection : inspections) {
        if (inspection.isUnreadable)
            entry.unreadable.append(QVariant::fromValue(inspection));
    }
    entry.isStale = !m_current.contains(entry.id);
}

void AttentionList::renew()
{
    m_current.clear();
}

void AttentionList::look(QUuid id)
{
    m_wanted.removeOne(id);
    m_wanted.append(id);
    if (!std::exchange(m_isLooking, true)) // and not before the row that asks is complete
        m_start.start();
}

void AttentionList::lookAtNext()
{
    if (m_wanted.isEmpty()) {
        m_isLooking = false;
        return;
    }
    const QUuid id = m_wanted.takeLast();
    QCoro::connect(answerOf(model()->inspector().inspectCopies(id)), this,
                   [this, id](const Answer<QList<CopyInspection>> &answer) {
                       show(id, answer.value.value_or(QList<CopyInspection>()));
                   });
}

void AttentionList::show(const QUuid &id, const QList<CopyInspection> &inspections)
{
    m_inspections.insert(id, inspections);
    m_current.insert(id);
    refresh();
    lookAtNext();
}

QVariantList AttentionList::ids() const
{
    QVariantList ids;
    for (const SkillEntry &entry : entries())
        ids.append(QVariant::fromValue(entry.id));
    return ids;
}

} // namespace vornel
