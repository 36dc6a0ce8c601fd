#include "SkillSelection.h"

#include "DragPayload.h"

#include <VORNELCore/Library/Wording.h>

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

QSet<QUuid> identifiers(const QList<SkillSummary> &skills)
{
    QSet<QUuid> ids;
    ids.reserve(skills.size());
    for (const SkillSummary &skill : skills)
        ids.insert(skill.id);
    return ids;
}

} // namespace

SkillSelection::SkillSelection(QObject *parent) : QObject(parent)
{
    connect(this, &SkillSelection::modelChanged, this, &SkillSelection::follow);
}

void SkillSelection::follow()
{
    connect(m_model, &AppModel::overviewChanged, this, &SkillSelection::dropMissing);
    for (const auto changed : {&AppModel::overviewChanged, &AppModel::searchTextChanged,
                               &AppModel::selectedCategoryChanged, &AppModel::selectedMaturityChanged})
        connect(m_model, changed, this, &SkillSelection::followShown);
    connect(m_model, &AppModel::checksChanged, this, &SkillSelection::followShown);
    connect(m_model->filters(), &LibraryFilters::changed, this, &SkillSelection::followShown);
}

QList<SkillSummary> SkillSelection::held() const
{
    QList<SkillSummary> skills = m_model->skills(m_destination);
    skills.removeIf([this](const SkillSummary &skill) { return !m_held.contains(skill.id); });
    return skills;
}

QString SkillSelection::countText() const
{
    const auto counted = [](qsizetype count, const QString &one, const QString &several) {
        return QString::number(count) + (count == 1 ? one : several);
    };
    const QString text = counted(count(), u" sélectionnée"_s, u" sélectionnées"_s);
    const qsizetype hidden = m_ids.size() - m_shown.size();
    return hidden == 0 ? text : text + u" · "_s + counted(hidden, u" masquée"_s, u" masquées"_s);
}

QVariantList SkillSelection::ids() const
{
    QVariantList ids;
    for (const SkillSummary &skill : held())
        ids.append(QVariant::fromValue(skill.id));
    return ids;
}

QStringList SkillSelection::slugs() const
{
    QStringList slugs;
    for (const SkillSummary &skill : held())
        slugs.append(skill.slug);
    return slugs;
}

QVariant SkillSelection::only() const
{
    const QList<SkillSummary> skills = held();
    return skills.size() == 1 ? QVariant::fromValue(skills.first()) : QVariant();
}

void SkillSelection::toggle(QUuid id)
{
    QSet<QUuid> ids = m_ids;
    if (!ids.remove(id))
        ids.insert(id);
    change(true, ids);
}

void SkillSelection::selectAll()
{
    add(identifiers(m_model->shownSkills(m_destination)));
}

QString SkillSelection::payload(QUuid id) const
{
    return DragPayload::encode(carried(id));
}

bool SkillSelection::accepts(const QString &text)
{
    return !DragPayload::decode({text}).isEmpty();
}

void SkillSelection::drop(const QString &text, const QString &category)
{
    const QSet<QUuid> ids = DragPayload::decode({text});
    if (!ids.isEmpty())
        m_model->assignSkills(ids, category);
}

void SkillSelection::assign(const QString &category)
{
    m_model->assignSkills(m_held, category);
}

void SkillSelection::holdThese(const QVariantList &ids)
{
    m_held.clear();
    for (const QVariant &id : ids)
        m_held.insert(id.toUuid());
}

QString SkillSelection::heldNames() const
{
    constexpr qsizetype mostNames = 3;
    QStringList names;
    for (const SkillSummary &skill : held())
        names.append(skill.displayName);
    const qsizetype others = names.size() - mostNames;
    if (others <= 0)
        return names.join(u", "_s);
    return names.first(mostNames).join(u", "_s) + u' ' + Wording::andOthers(others);
}

void SkillSelection::trash()
{
    m_model->moveSkillsToTrash(m_held);
}

void SkillSelection::restore()
{
    m_model->restoreSkills(m_held);
}

void SkillSelection::deletePermanently()
{
    m_model->deleteSkillsPermanently(m_held);
}

void SkillSelection::copyPaths() const
{
    QStringList paths;
    for (const QString &slug : slugs())
        paths.append(m_model->folder(slug).toLocalFile());
    QGuiApplication::clipboard()->setText(paths.join(u'\n'));
}

void SkillSelection::change(bool isSelecting, const QSet<QUuid> &ids)
{
    if (isSelecting == m_isSelecting && ids == m_ids)
        return;
    m_isSelecting = isSelecting;
    m_ids = ids;
    compareWithShown();
    Q_EMIT changed();
}

void SkillSelection::dropMissing()
{
    if (m_ids.isEmpty())
        return;
    const QSet<QUuid> kept = m_ids & identifiers(m_model->skills(m_destination));
    change(!kept.isEmpty(), kept);
}

void SkillSelection::followShown()
{
    const QSet<QUuid> before = m_shown;
    compareWithShown();
    if (m_shown != before)
        Q_EMIT changed();
}

void SkillSelection::compareWithShown()
{
    const QSet<QUuid> all = m_isSelecting ? identifiers(m_model->shownSkills(m_destination)) : QSet<QUuid>();
    m_shown = all & m_ids;
    const bool holdsAll = !all.isEmpty() && m_shown.size() == all.size();
    if (std::exchange(m_holdsAll, holdsAll) != holdsAll)
        Q_EMIT holdsAllChanged();
}

QSet<QUuid> SkillSelection::carried(const QUuid &id) const
{
    return m_shown.contains(id) ? m_shown : QSet<QUuid>{id};
}

} // namespace vornel
