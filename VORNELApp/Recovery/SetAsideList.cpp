#include "SetAsideList.h"

#include <VORNELCore/Library/LocaleText.h>
#include <VORNELCore/Library/Wording.h>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// The identifier of a row: its own for each name.
QUuid rowOf(const QString &copyID)
{
    return QUuid::createUuidV5(QUuid(), copyID);
}

} // namespace

SetAsideList::SetAsideList(QObject *parent)
    : SkillList(Destination::trash, parent),
      m_looking(this, [this](const Answer<Copies> &answer) { show(answer); })
{}

QString SetAsideList::summary() const
{
    qint64 size = 0;
    for (const SetAsideCopy &copy : m_copies)
        size += copy.size;
    const QString counted =
        m_copies.size() == 1 ? u"1 copie"_s : QString::number(m_copies.size()) + u" copies"_s;
    return counted + u", "_s + Wording::fileSize(size);
}

QString SetAsideList::copyID(QUuid row) const
{
    const auto found =
        std::ranges::find_if(m_copies, [&row](const SetAsideCopy &copy) { return rowOf(copy.id) == row; });
    return found == m_copies.end() ? QString() : found->id;
}

QList<SkillEntry> SetAsideList::found() const
{
    const QString wanted = LocaleText::folded(model()->searchText().trimmed());
    QList<SkillEntry> entries;
    for (const SetAsideCopy &copy : m_copies) {
        const SkillEntry entry = entryOf(copy);
        if (LocaleText::folded(entry.skill.displayName + u' ' + copy.id).contains(wanted))
            entries.append(entry);
    }
    return entries;
}

SkillEntry SetAsideList::entryOf(const SetAsideCopy &copy) const
{
    SkillEntry entry;
    entry.id = rowOf(copy.id);
    const QList<SkillSummary> active = model()->skills(Destination::library);
    const auto skill = std::ranges::find(active, copy.slug, &SkillSummary::slug);
    entry.canAdopt = skill != active.end() && copy.reason.isEmpty();
    if (skill != active.end())
        entry.skill = *skill;
    else
        entry.skill.displayName = copy.shownName();
    entry.skill.slug = copy.slug;
    entry.category = model()->category(entry.skill.category);
    entry.line = copy.contentText();
    if (!copy.originText().isEmpty())
        entry.line = (copy.origin == VersionOrigin::library ? u"Dossier de "_s : u"Copie de "_s) +
                     copy.originText() + u" · "_s + entry.line;
    entry.date = copy.momentText();
    entry.failure = copy.reason;
    return entry;
}

/// They are as they were where only somebody else's change was read, and nothing came of it.
void SetAsideList::renew()
{
    const auto former = std::exchange(m_overview, model()->overview());
    if (former == m_overview && !model()->isWorking() && m_problem.isEmpty())
        return;
    m_looking.ask([this] { return answerOf(model()->recovery().setAsideCopies()); });
}

void SetAsideList::show(const Answer<Copies> &answer)
{
    m_copies = answer.value.value_or(m_copies);
    m_problem = answer.outcome.message;
    refresh();
}

} // namespace vornel
