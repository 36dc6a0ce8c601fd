#include "ImportModels.h"

#include "SerializedForms.h"

#include <algorithm>

namespace vornel {

QString ImportCandidate::sourceText() const
{
    return pathText(sourceURL);
}

QVariant ImportCollision::choiceValue() const
{
    return choice ? QVariant::fromValue(*choice) : QVariant();
}

int ImportPlan::unresolvedCollisionCount() const
{
    return static_cast<int>(std::ranges::count_if(
        collisions, [](const ImportCollision &collision) { return !collision.choice.has_value(); }));
}

size_t qHash(const ImportCandidate &candidate, size_t seed)
{
    return qHashMulti(seed, candidate.id, candidate.slug, candidate.source, candidate.digest,
                      candidate.classification, hash_value(candidate.sourceURL));
}

size_t qHash(const ImportCollision &collision, size_t seed)
{
    return qHashMulti(seed, collision.id, collision.slug, collision.claude, collision.codex,
                      collision.choice.has_value(), collision.choice.value_or(CollisionChoice::claude));
}

size_t qHash(const BlockedImport &blocked, size_t seed)
{
    return qHashMulti(seed, blocked.source, blocked.name, blocked.reason);
}

size_t qHash(const ImportPlan &plan, size_t seed)
{
    return qHashMulti(seed, plan.id, plan.revision, plan.candidates, plan.collisions, plan.blocked);
}

} // namespace vornel
