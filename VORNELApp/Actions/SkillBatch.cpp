#include "SkillBatch.h"

#include <VORNELApp/Model/Outcome.h>
#include <VORNELCore/Library/Wording.h>

#include <QCoro/QCoroFuture>
#include <QFutureWatcher>

#include <array>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

struct Words
{
    QString progress;
    QString confirmation;
    QString confirmations; ///< after their number
    QString participle;
};

const Words &words(SkillBatch::Kind kind)
{
    static const std::array all{
        Words{u"Synchronisation"_s, u"À JOUR"_s, u"SYNCHRONISÉES"_s, u"synchronisée"_s},
        Words{u"Restauration"_s, u"RESTAURÉE"_s, u"RESTAURÉES"_s, u"restaurée"_s},
        Words{u"Suppression"_s, u"SUPPRIMÉE"_s, u"SUPPRIMÉES"_s, u"supprimée"_s},
    };
    return all.at(static_cast<std::size_t>(kind));
}

QString reasonOf(const Outcome &failure)
{
    if (failure.isCase(WorkspaceErrorCase::SkillNotFound::name))
        return u"Cette compétence n’est plus là\u00A0: un autre programme l’a déplacée ou supprimée."_s;
    return failure.message;
}

/// "2 compétences sur 3 n’ont pas pu être restaurées :", or, of those that were changed all the same,
/// "2 compétences sur 3 sont restaurées, mais pas chez tous vos assistants :".
QString headline(qsizetype number, int tried, const QString &participle, bool isChanged)
{
    const bool isOne = number == 1;
    const QString agreed = isOne ? participle : participle + u's';
    const QString told = isChanged ? (isOne ? u"est %1, mais pas chez tous vos assistants"_s
                                            : u"sont %1, mais pas chez tous vos assistants"_s)
                                   : (isOne ? u"n’a pas pu être %1"_s : u"n’ont pas pu être %1"_s);
    return u"%1 sur %2 %3\u00A0:"_s.arg(Wording::countedSkills(number), QString::number(tried),
                                        told.arg(agreed));
}

} // namespace

QCoro::Task<> SkillBatch::run(Kind kind, QList<SkillSummary> skills, Operation operation)
{
    begin(kind, skills);
    for (const SkillSummary &skill : skills) {
        try {
            co_await operation(skill.id);
        } catch (const std::exception &error) {
            note(skill, error);
        }
        advance(m_doneCount + 1);
        if (isStopping())
            break;
    }
    end();
}

QCoro::Task<> SkillBatch::synchronize(QList<SkillSummary> skills, CopyRepairing &service)
{
    begin(Kind::synchronisation, skills);
    QList<QUuid> ids;
    for (const SkillSummary &skill : skills)
        ids.append(skill.id);
    const QFuture<QList<SyncOutcome>> pass = service.synchronizeSkills(ids, m_stop.get_token());
    QFutureWatcher<QList<SyncOutcome>> watcher;
    connect(&watcher, &QFutureWatcherBase::progressValueChanged, this, &SkillBatch::advance);
    watcher.setFuture(pass);
    try {
        const QList<SyncOutcome> outcomes = co_await pass;
        for (qsizetype index = 0; index < outcomes.size(); ++index)
            note(skills.at(index), outcomes.at(index).failure);
        m_doneCount = static_cast<int>(outcomes.size());
    } catch (const std::exception &error) { // the library can't be read: none was changed
        for (const SkillSummary &skill : skills)
            note(skill, error);
        m_doneCount = count();
    }
    end();
}

void SkillBatch::advance(int done)
{
    m_doneCount = done;
    Q_EMIT changed();
}

void SkillBatch::note(const SkillSummary &skill, const std::exception_ptr &failure)
{
    if (!failure)
        return;
    try {
        std::rethrow_exception(failure);
    } catch (const std::exception &error) {
        note(skill, error);
    }
}

/// A skill that is restored stays so when an assistant refuses its copy.
void SkillBatch::note(const SkillSummary &skill, const std::exception &error)
{
    const Outcome failure = Outcome::failedWith(error);
    const QString reason = reasonOf(failure);
    const bool isChanged = m_kind == Kind::restoration && failure.isSynchronizationIncomplete();
    (isChanged ? m_incomplete : m_failures).append({skill.displayName, reason});
    m_reasons.insert(skill.id, reason);
}

void SkillBatch::begin(Kind kind, const QList<SkillSummary> &skills)
{
    m_kind = kind;
    m_skills = skills;
    m_doneCount = 0;
    m_reasons.clear();
    m_failures.clear();
    m_incomplete.clear();
    m_isRunning = true;
    m_stop = std::stop_source();
    Q_EMIT changed();
    Q_EMIT reasonsChanged();
}

void SkillBatch::end()
{
    m_isRunning = false;
    Q_EMIT changed();
    Q_EMIT reasonsChanged();
}

void SkillBatch::stop()
{
    if (!m_isRunning)
        return;
    m_stop.request_stop();
    Q_EMIT changed();
}

QString SkillBatch::progressText() const
{
    const int number = std::min(m_doneCount + 1, count());
    return u"%1 %2 sur %3"_s.arg(words(m_kind).progress).arg(number).arg(count());
}

QString SkillBatch::confirmation() const
{
    const qsizetype changed = m_doneCount - m_failures.size();
    if (changed == 0)
        return {};
    return changed == 1 ? words(m_kind).confirmation
                        : QString::number(changed) + u' ' + words(m_kind).confirmations;
}

QString SkillBatch::failureMessage() const
{
    if (m_skills.size() == 1 && !m_reasons.isEmpty())
        return *m_reasons.cbegin();
    return (told(m_failures, false) + told(m_incomplete, true)).join(u'\n');
}

QStringList SkillBatch::told(const QList<Failure> &failures, bool isChanged) const
{
    if (failures.isEmpty())
        return {};
    constexpr qsizetype mostNamed = 3;
    QStringList lines{headline(failures.size(), m_doneCount, words(m_kind).participle, isChanged)};
    for (const Failure &failure : failures.first(std::min(mostNamed, failures.size())))
        lines.append(u"«\u00A0"_s + failure.name + u"\u00A0»\u00A0: "_s + failure.reason);
    if (const qsizetype others = failures.size() - mostNamed; others > 0)
        lines.append(Wording::andOthers(others));
    return lines;
}

void SkillBatch::keepFailures(const QSet<QUuid> &ids)
{
    if (m_reasons.removeIf(
            [&ids](QHash<QUuid, QString>::iterator entry) { return !ids.contains(entry.key()); }) > 0)
        Q_EMIT reasonsChanged();
}

} // namespace vornel
