#include "CategoryCatalog.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Library/CategoryRules.h>
#include <VORNELCore/Library/LocaleText.h>
#include <VORNELCore/Records/RecordJson.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>
#include <VORNELInfrastructure/Skills/SchemaVersion.h>
#include <VORNELInfrastructure/Skills/SkillRecords.h>
#include <VORNELInfrastructure/Workspace/Locating.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// A name that this catalog accepts for a category that is only named by manifests.
QString nameForUnknownCategory(const QString &id, const CategoryCatalog &catalog)
{
    const QString title =
        LocaleText::truncated(CategoryRules::legacyCategoryName(id), SkillCategory::longestName).trimmed();
    const QString base = title.isEmpty() ? u"Catégorie"_s : title;
    QString name = base;
    for (int number = 2; CategoryRules::isTaken(name, catalog.categories); ++number) {
        const QString suffix = u' ' + QString::number(number);
        name = LocaleText::truncated(base, SkillCategory::longestName - static_cast<int>(suffix.size())) +
               suffix;
    }
    return name;
}

/// No program makes a longer one; with any text of a manifest, the catalog could grow too large to be read.
constexpr qsizetype longestIdentifier = 1000;

CategoryCatalog initialCatalog(const Workspace &workspace)
{
    CategoryCatalog catalog{1, SkillCategory::defaults()};
    QList<SkillRecord> records = activeManifests(workspace);
    records += trashedManifests(workspace);
    for (const SkillRecord &record : records) {
        const QString &id = record.manifest.category;
        if (!catalog.contains(id) && id.size() <= longestIdentifier)
            catalog.categories.append({id, nameForUnknownCategory(id, catalog), u"FFB347"_s, false});
    }
    return catalog;
}

} // namespace

bool CategoryCatalog::contains(const QString &id) const
{
    return std::ranges::find(categories, id, &SkillCategory::id) != categories.end();
}

SkillCategory &CategoryCatalog::find(const QString &id)
{
    const auto found = std::ranges::find(categories, id, &SkillCategory::id);
    if (found == categories.end())
        throw VORNELWorkspaceError::integrityFailure(u"Catégorie introuvable."_s);
    return *found;
}

void CategoryCatalog::check() const
{
    QSet<QString> ids;
    QSet<QString> names;
    bool hasProtectedOther = false;
    for (const SkillCategory &category : categories) {
        ids.insert(category.id);
        names.insert(LocaleText::caseless(category.name));
        hasProtectedOther |= category.id == SkillCategory::otherID && category.isProtected;
    }
    if (ids.size() != categories.size() || names.size() != categories.size() || !hasProtectedOther)
        throw VORNELWorkspaceError::integrityFailure(u"Le catalogue de catégories contient des doublons."_s);
    for (const SkillCategory &category : categories) {
        CategoryRules::validatedCategoryName(category.name);
        CategoryRules::validatedColorHex(category.colorHex);
    }
}

void CategoryCatalog::refuseIfNewer() const
{
    refuseNewer(schemaVersion, u"le catalogue de catégories"_s);
}

namespace {

CategoryCatalog decodedCatalog(const Workspace &workspace)
{
    QByteArray document;
    try {
        document = readFile(workspace.files, workspace.config.categories(), SkillFiles::sizeLimit);
    } catch (const std::exception &) {
        throw VORNELWorkspaceError::integrityFailure(u"Le catalogue de catégories ne peut pas être lu."_s);
    }
    const auto catalog = RecordJson::decodeDocument<CategoryCatalog>(document);
    if (!catalog)
        throw VORNELWorkspaceError::integrityFailure(u"Le catalogue de catégories est invalide."_s);
    catalog->check();
    return *catalog;
}

} // namespace

CategoryCatalog readCategoryCatalog(const Workspace &workspace)
{
    return locating(workspace, OwnFile{workspace.config.categories()},
                    [&workspace] { return decodedCatalog(workspace); });
}

void writeCategoryCatalog(const CategoryCatalog &catalog, const Workspace &workspace)
{
    catalog.refuseIfNewer();
    const QByteArray document = RecordJson::document(RecordJson::encode(catalog));
    if (document.size() > SkillFiles::sizeLimit)
        throw VORNELWorkspaceError::integrityFailure(u"Le catalogue de catégories est invalide."_s);
    replaceFile(workspace.files, workspace.config.categories(), document, Durability::Now);
}

void prepareCategoryCatalog(const Workspace &workspace)
{
    if (workspace.files.kindAt(workspace.config.categories()))
        readCategoryCatalog(workspace);
    else
        writeCategoryCatalog(initialCatalog(workspace), workspace);
}

} // namespace vornel
