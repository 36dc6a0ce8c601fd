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
    begin(Saving, {u"Enregistrer"_s, u"Votre version"_s}, Step::Looking, text);
    m_copies.look();
}

void CopyReplacement::synchronize()
{
    beginSynchronizing(Step::Looking);
    m_copies.look();
}

void CopyReplacement::bringBack(const QString &verb, const QString &newVersion)
{
    begin(Returning, {verb, newVersion}, Step::Looking);
    m_copies.look();
}

void CopyReplacement::change(const QString &verb)
{
    begin(Changing, {verb, u"Votre version"_s}, Step::Looking);
    m_copies.look();
}

void CopyReplacement::synchronize(const QUuid &id)
{
    m_copies.setSkillID(id);
    synchronize();
}

void CopyReplacement::show()
{
    beginSynchronizing(Step::Asking);
}

void CopyReplacement::show(const QUuid &id)
{
    m_copies.setSkillID(id);
    beginSynchronizing(Step::Opening);
    m_copies.look();
}

void CopyReplacement::beginSynchronizing(Step step)
{
    begin(Synchronising, {u"Synchroniser"_s, u"La version de VORNEL"_s}, step);
}

void CopyReplacement::begin(Purpose purpose, const Words &words, Step step, const QString &newText)
{
    m_purpose = purpose;
    m_words = words;
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
