#include "CategoryEditing.h"

#include "CategoryCatalog.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Library/CategoryRules.h>
#include <VORNELInfrastructure/Skills/PropertyEdit.h>
#include <VORNELInfrastructure/Skills/SchemaVersion.h>
#include <VORNELInfrastructure/Skills/SkillFolderStore.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

void refuseTakenName(const CategoryCatalog &catalog, const QString &name, const QString &exceptID = {})
{
    if (CategoryRules::isTaken(name, catalog.categories, exceptID))
        throw VORNELWorkspaceError::integrityFailure(CategoryRules::takenMessage());
}

QList<SkillRecord> recordsIn(const QString &category, QList<SkillRecord> records)
{
    records.removeIf([&category](const SkillRecord &record) { return record.manifest.category != category; });
    return records;
}

/// Called before the first skill is changed, so that a refusal leaves them all as they are.
void refuseNewerManifests(const QList<SkillRecord> &records)
{
    for (const SkillRecord &record : records)
        refuseNewer(record.manifest);
}

} // namespace

void CategoryEditing::create(const QString &name, const QString &colorHex) const
{
    const QString validName = CategoryRules::validatedCategoryName(name);
    const QString color = CategoryRules::validatedColorHex(colorHex);
    CategoryCatalog catalog = readCategoryCatalog(m_workspace);
    refuseTakenName(catalog, validName);

    QSet<QString> ids;
    for (const SkillCategory &category : catalog.categories)
        ids.insert(category.id);
    catalog.categories.append({CategoryRules::categoryIdentifier(validName, ids), validName, color, false});
    writeCategoryCatalog(catalog, m_workspace);
}

void CategoryEditing::update(const QString &id, const QString &name, const QString &colorHex) const
{
    const QString validName = CategoryRules::validatedCategoryName(name);
    const QString color = CategoryRules::validatedColorHex(colorHex);
    CategoryCatalog catalog = readCategoryCatalog(m_workspace);
    SkillCategory &category = catalog.find(id);
    refuseTakenName(catalog, validName, id);

    category.name = validName;
    category.colorHex = color;
    writeCategoryCatalog(catalog, m_workspace);
}

void CategoryEditing::remove(const QString &id) const
{
    CategoryCatalog catalog = readCategoryCatalog(m_workspace);
    if (catalog.find(id).isProtected)
        throw VORNELWorkspaceError::integrityFailure(u"La catégorie Autre est nécessaire au classement."_s);
    catalog.refuseIfNewer();
    const QList<SkillRecord> active = recordsIn(id, activeManifests(m_workspace));
    QList<SkillRecord> trashed = recordsIn(id, trashedManifests(m_workspace));
    refuseNewerManifests(active + trashed);

    for (const SkillRecord &skill : active)
        setCategory(skill, SkillCategory::otherID);
    for (SkillRecord &skill : trashed)
        rewrite(skill, SkillCategory::otherID);
    catalog.categories.removeIf([&id](const SkillCategory &category) { return category.id == id; });
    writeCategoryCatalog(catalog, m_workspace);
}

void CategoryEditing::assign(const QSet<QUuid> &ids, const QString &category) const
{
    readCategoryCatalog(m_workspace).find(category);
    const QList<SkillRecord> active = activeManifests(m_workspace);
    QList<SkillRecord> changing = active;
    changing.removeIf([&](const SkillRecord &skill) {
        return !ids.contains(skill.manifest.id) || skill.manifest.category == category;
    });
    refuseNewerManifests(changing);
    for (const QUuid &id : inTextOrder(ids)) {
        const SkillRecord &skill = findRecord(active, id);
        if (skill.manifest.category != category)
            setCategory(skill, category);
    }
}

void CategoryEditing::rewrite(SkillRecord &skill, const QString &category) const
{
    skill.manifest.category = category;
    advanceRevision(skill.manifest);
    SkillFolderStore(m_workspace).writeManifest(skill.manifest, skill.folder, Durability::Now);
}

void CategoryEditing::setCategory(SkillRecord skill, const QString &category) const
{
    SkillProperties wanted = SkillProperties::of(skill.manifest);
    wanted.category = category;
    PropertyEdit(m_workspace).revise(skill, wanted);
}

} // namespace vornel
