#include "AttentionList.h"

#include <QCoro/QCoroFuture>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// "Claude : copie manquante · Codex : copie modifiée", after what is to be done.
QString lineOf(const QList<TargetInspection> &inspections)
{
    QStringList states;
    for (const TargetInspection &inspection : inspections)
        states.append(inspection.assistant() + u"\u00A0: "_s + inspection.stateText());
    return (QStringList{u"Mise à jour nécessaire"_s} + states).join(u" · "_s);
}

QString failureOf(const QList<TargetInspection> &inspections)
{
    QStringList reasons;
    for (const TargetInspection &inspection : inspections) {
        if (!inspection.reason.isEmpty())
            reasons.append(inspection.assistant() + u"\u00A0: "_s + inspection.reason);
    }
    return reasons.join(u"  "_s);
}

} // namespace

AttentionList::AttentionList(QObject *parent) : SkillList(Destination::needsAttention, parent)
{
    m_start.setSingleShot(true);
    connect(&m_start, &QTimer::timeout, this, &AttentionList::begin);
}

void AttentionList::complete(SkillEntry &entry) const
{
    const QList<TargetInspection> inspections = m_inspections.value(entry.id);
    entry.line = lineOf(inspections);
    if (const QString reasons = failureOf(inspections); !reasons.isEmpty())
        entry.failure = reasons; // which tell more than that a synchronisation failed
    entry.hasFailed = entry.skill.syncState == SyncState::failed || !entry.failure.isEmpty();
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

void AttentionList::begin()
{
    const QPointer<AttentionList> self(this);
    lookAtWanted(self);
}

QCoro::Task<> AttentionList::lookAtWanted(QPointer<AttentionList> self)
{
    while (!self.isNull() && !self->m_wanted.isEmpty()) {
        const QUuid id = self->m_wanted.takeLast();
        const bool isThere = co_await inspect(self, id);
        if (!isThere)
            co_return;
        self->refresh();
    }
    if (!self.isNull())
        self->m_isLooking = false;
}

void AttentionList::survey()
{
    QList<QUuid> ids;
    for (const SkillEntry &entry : entries())
        ids.append(entry.id);
    const QPointer<AttentionList> self(this);
    if (!m_isSurveying)
        lookAtAll(self, ids);
}

QCoro::Task<> AttentionList::lookAtAll(QPointer<AttentionList> self, QList<QUuid> ids)
{
    self->setSurveying(true);
    int edited = 0;
    for (const QUuid &id : ids) {
        const bool isThere = co_await inspect(self, id);
        if (!isThere)
            co_return;
        edited += self->editedCopies(id);
    }
    self->refresh();
    self->m_editedCopies = edited;
    self->m_surveyed = QSet<QUuid>(ids.begin(), ids.end());
    self->setSurveying(false);
    Q_EMIT self->surveyed();
}

/// Tells whether the list is still there.
QCoro::Task<bool> AttentionList::inspect(QPointer<AttentionList> self, QUuid id)
{
    QList<TargetInspection> inspections;
    try {
        inspections = co_await self->model()->inspector().inspectTargets(id);
    } catch (const std::exception &) {
        inspections.clear(); // a skill that can't be read has no copies to compare
    }
    if (self.isNull())
        co_return false;
    self->m_inspections.insert(id, inspections);
    self->m_current.insert(id);
    co_return true;
}

void AttentionList::synchronizeSurveyed()
{
    model()->synchronizeSkills(m_surveyed);
}

void AttentionList::setSurveying(bool isSurveying)
{
    m_isSurveying = isSurveying;
    Q_EMIT isSurveyingChanged();
}

int AttentionList::editedCopies(const QUuid &id) const
{
    return static_cast<int>(
        std::ranges::count_if(m_inspections.value(id), [](const TargetInspection &inspection) {
            return !inspection.differences.isEmpty();
        }));
}

} // namespace vornel
