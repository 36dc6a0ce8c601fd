#include "CopyReplacement.h"

using namespace Qt::StringLiterals;

namespace vornel {

CopyReplacement::CopyReplacement(CopyInspecting &inspector, const Operations &operations)
    : m_operations(operations), m_copies(inspector)
{
    connect(&m_copies, &SkillCopies::looked, this, &CopyReplacement::judge);
    connect(&m_copies, &SkillCopies::changed, this, &CopyReplacement::closeSettled);
}

void CopyReplacement::save(const QString &text)
{
    begin(Saving, u"Enregistrer"_s, Step::Looking, text);
    m_copies.look();
}

void CopyReplacement::synchronize()
{
    begin(Synchronising, u"Synchroniser"_s, Step::Looking);
    m_copies.look();
}

void CopyReplacement::bringBack(const QString &verb)
{
    begin(Returning, verb, Step::Looking);
    m_copies.look();
}

void CopyReplacement::synchronize(const QUuid &id)
{
    m_copies.setSkillID(id);
    synchronize();
}

void CopyReplacement::show()
{
    begin(Synchronising, u"Synchroniser"_s, Step::Asking);
}

void CopyReplacement::show(const QUuid &id)
{
    m_copies.setSkillID(id);
    begin(Synchronising, u"Synchroniser"_s, Step::Opening);
    m_copies.look();
}

void CopyReplacement::begin(Purpose purpose, const QString &verb, Step step, const QString &newText)
{
    m_purpose = purpose;
    m_verb = verb;
    m_newText = newText;
    m_step = step;
    Q_EMIT changed();
}

void CopyReplacement::judge()
{
    if (!isLooking() || m_operations.isWorking()) // the owner looks again when the work ends
        return;
    const bool isInVain = m_purpose == Synchronising && m_copies.hasUnreadable();
    if (isInVain || m_copies.hasDrifted() || !m_copies.problem().isEmpty())
        setStep(Step::Asking);
    else if (m_step == Step::Looking)
        agree();
    else
        decline();
}

/// What was set aside meanwhile, or put right by another program, needs no question any more.
void CopyReplacement::closeSettled()
{
    if (isAsking() && !m_copies.hasFailed() && !m_copies.hasDrifted() && m_copies.problem().isEmpty())
        decline();
}

void CopyReplacement::agree()
{
    if (m_step == Step::Idle)
        return;
    setStep(Step::Idle);
    Q_EMIT agreed(m_purpose);
}

void CopyReplacement::decline()
{
    if (m_step == Step::Idle)
        return;
    setStep(Step::Idle);
    Q_EMIT declined();
}

void CopyReplacement::setStep(Step step)
{
    m_step = step;
    Q_EMIT changed();
}

} // namespace vornel
