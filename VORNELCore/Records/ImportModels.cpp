#include "ImportModels.h"

#include "SerializedForms.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

QString assistantName(TargetKind kind)
{
    return kind == TargetKind::claude ? u"Claude"_s : u"Codex"_s;
}

QString ImportCandidate::sourceText() const
{
    return pathText(sourceURL);
}

QVariant ImportCollision::choiceValue() const
{
    return choice ? QVariant::fromValue(*choice) : QVariant();
}

QString BlockedImport::reasonText() const
{
    static const QHash<QString, QString> sentences{
        {u"symlinkUnsupported"_s, u"contient un lien symbolique"_s},
        {u"invalidPath"_s, u"porte un nom qui n’est pas un identifiant valide"_s},
        {u"missingSkillFile"_s, u"ne contient pas de fichier SKILL.md"_s},
        {u"unsafeContent"_s, u"contient un élément qui ne peut pas être importé"_s},
        {u"unreadable"_s, u"ne peut pas être lu"_s},
    };
    return sentences.value(reason, reason);
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
