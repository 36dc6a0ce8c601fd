#include "AttentionList.h"

#include <VORNELApp/Model/Answer.h>
#include <VORNELCore/Library/Wording.h>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// What is to be done, and why: "Claude a modifié 2 fichiers · Codex : copie manquante".
QString lineOf(const QList<CopyInspection> &inspections, bool isEditedByHand)
{
    QStringList parts{u"Mise à jour nécessaire"_s, isEditedByHand ? u"modifiée à la main"_s : QString(),
                      Wording::copies(inspections)};
    parts.removeAll(QString());
    return parts.join(u" · "_s);
}

} // namespace

AttentionList::AttentionList(QObject *parent) : SkillList(Destination::needsAttention, parent)
{
    m_start.setSingleShot(true);
    connect(&m_start, &QTimer::timeout, this, &AttentionList::lookAtNext);
    connect(this, &SkillList::modelChanged, this,
            [this] { connect(&model()->handEdits(), &HandEdits::changed, this, [this] { refresh(); }); });
}

void AttentionList::complete(SkillEntry &entry) const
{
    const QList<CopyInspection> inspections = m_inspections.value(entry.id);
    entry.line = lineOf(inspections, model()->handEdits().contains(entry.id));
    entry.canAdopt = std::ranges::any_of(inspections, &CopyInspection::isAdoptable);
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
