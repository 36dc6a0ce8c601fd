#include "Promise.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Library/CategoryRules.h>
#include <VORNELInfrastructure/Categories/CategoryCatalog.h>

#include <algorithm>

using namespace vornel;
using Fuzz::promise;

namespace {

bool isAccepted(const CategoryCatalog &catalog)
{
    try {
        catalog.check();
        return true;
    } catch (const VORNELWorkspaceError &error) {
        promise(error.as<WorkspaceErrorCase::IntegrityFailure>() != nullptr,
                "a refusal is an integrity failure");
        return false;
    }
}

void checkCategory(const CategoryCatalog &catalog, const SkillCategory &category)
{
    promise(std::ranges::count(catalog.categories, category.id, &SkillCategory::id) == 1,
            "identifiers are unique");
    // A name that another program wrote may have spaces around it, which tell it from another one.
    promise(category.name != category.name.trimmed() ||
                !CategoryRules::isTaken(category.name, catalog.categories, category.id),
            "names are unique, whatever their case");
    const QString name = CategoryRules::validatedCategoryName(category.name);
    promise(!name.isEmpty() && CategoryRules::validatedCategoryName(name) == name, "names can be kept");
    const QString color = CategoryRules::validatedColorHex(category.colorHex);
    promise(color.size() == 6 && CategoryRules::validatedColorHex(color) == color, "colours can be kept");
    QSet<QString> existing;
    for (const SkillCategory &other : catalog.categories)
        existing.insert(other.id);
    promise(!existing.contains(CategoryRules::categoryIdentifier(name, existing)), "a new identifier is new");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    auto catalog = Fuzz::checkedRecord<CategoryCatalog>(Fuzz::bytes(data, size));
    if (!catalog || !isAccepted(*catalog))
        return 0;
    promise(catalog->find(SkillCategory::otherID).isProtected, "the last resort can't be deleted");
    for (const SkillCategory &category : std::as_const(catalog->categories))
        checkCategory(*catalog, category);
    const auto again =
        RecordJson::decodeDocument<CategoryCatalog>(RecordJson::document(RecordJson::encode(*catalog)));
    promise(again && again->categories == catalog->categories && isAccepted(*again),
            "what was accepted still is");
    return 0;
}
