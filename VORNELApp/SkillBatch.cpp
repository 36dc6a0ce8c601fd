#include "SkillBatch.h"

#include <VORNELCore/ErrorMessage.h>
#include <VORNELCore/VORNELWorkspaceError.h>
#include <VORNELCore/Wording.h>

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

QString reasonOf(const std::exception &error)
{
    const auto *known = dynamic_cast<const VORNELWorkspaceError *>(&error);
    if (known != nullptr && known->caseName() == u"skillNotFound"_s)
        return u"Cette compétence n’est plus là\u00A0: un autre programme l’a déplacée ou supprimée."_s;
    return errorMessage(error);
}

} // namespace

QCoro::Task<> SkillBatch::run(Kind kind, QList<SkillSummary> skills, Operation operation)
{
    begin(kind, skills);
    for (const SkillSummary &skill : skills) {
        try {
            co_await operation(skill.id);
        } catch (const std::exception &error) {
            m_failures.append({skill.displayName, reasonOf(error)});
            m_reasons.insert(skill.id, m_failures.last().reason);
        }
        ++m_doneCount;
        if (m_isStopping)
            break;
        Q_EMIT changed();
    }
    end();
}

void SkillBatch::begin(Kind kind, const QList<SkillSummary> &skills)
{
    m_kind = kind;
    m_skills = skills;
    m_doneCount = 0;
    m_reasons.clear();
    m_failures.clear();
    m_isRunning = true;
    m_isStopping = false;
    Q_EMIT changed();
    Q_EMIT reasonsChanged();
}

void SkillBatch::end()
{
    m_isRunning = false;
    m_isStopping = false;
    Q_EMIT changed();
    Q_EMIT reasonsChanged();
}

void SkillBatch::stop()
{
    if (!m_isRunning)
        return;
    m_isStopping = true;
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
    if (m_failures.isEmpty())
        return {};
    if (m_skills.size() == 1)
        return m_failures.first().reason;
    const bool isOne = m_failures.size() == 1;
    QStringList lines{u"%1 sur %2 n’%3 pas pu être %4%5\u00A0:"_s.arg(
        Wording::countedSkills(m_failures.size()), QString::number(m_skills.size()),
        isOne ? u"a"_s : u"ont"_s, words(m_kind).participle, isOne ? QString() : u"s"_s)};
    constexpr qsizetype mostNamed = 3;
    for (const Failure &failure : m_failures.first(std::min(mostNamed, m_failures.size())))
        lines.append(u"«\u00A0"_s + failure.name + u"\u00A0»\u00A0: "_s + failure.reason);
    if (m_failures.size() > mostNamed)
        lines.append(u"et %1 de plus"_s.arg(m_failures.size() - mostNamed));
    return lines.join(u'\n');
}

void SkillBatch::keepFailures(const QSet<QUuid> &ids)
{
    if (m_reasons.removeIf(
            [&ids](QHash<QUuid, QString>::iterator entry) { return !ids.contains(entry.key()); }) > 0)
        Q_EMIT reasonsChanged();
}

} // namespace vornel
