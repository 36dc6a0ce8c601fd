#include "WorkspaceModels.h"

#include "SerializedForms.h"

#include <VORNELCore/Library/Wording.h>

using namespace Qt::StringLiterals;

namespace vornel {

const QString SkillCategory::otherID = u"other"_s;

const QList<SkillCategory> &SkillCategory::defaults()
{
    static const QList<SkillCategory> categories{
        {u"development"_s, u"Développement"_s, u"8A61E6"_s, false},
        {u"quality"_s, u"Qualité"_s, u"63DE91"_s, false},
        {u"operations"_s, u"Opérations"_s, u"FF571A"_s, false},
        {u"design"_s, u"Design"_s, u"D152F0"_s, false},
        {u"knowledge"_s, u"Connaissance"_s, u"21D6D1"_s, false},
        {otherID, u"Autre"_s, u"FFB347"_s, true},
    };
    return categories;
}

SkillSummary::SkillSummary(const SkillManifest &manifest, SyncState state)
    : id(manifest.id),
      slug(manifest.slug),
      displayName(manifest.displayName),
      summary(manifest.summary),
      category(manifest.category),
      tags(manifest.tags),
      maturity(manifest.maturity),
      syncState(state),
      revision(manifest.revision),
      updatedAt(manifest.updatedAt)
{}

QString SkillSummary::maturityText() const
{
    return Wording::maturity(maturity);
}

QString WorkspaceOverview::workspaceText() const
{
    return pathText(workspaceURL);
}

size_t qHash(const SkillCategory &category, size_t seed)
{
    return qHashMulti(seed, category.id, category.name, category.colorHex, category.isProtected);
}

size_t qHash(const SkillManifest &manifest, size_t seed)
{
    return qHashMulti(seed, manifest.schemaVersion, manifest.id, manifest.slug, manifest.displayName,
                      manifest.summary, manifest.category, manifest.tags, manifest.maturity,
                      manifest.revision, manifest.createdAt, manifest.updatedAt);
}

size_t qHash(const SkillSummary &summary, size_t seed)
{
    return qHashMulti(seed, summary.id, summary.slug, summary.displayName, summary.summary, summary.category,
                      summary.tags, summary.maturity, summary.syncState, summary.revision, summary.updatedAt);
}

size_t qHash(const SkillDetail &detail, size_t seed)
{
    return qHashMulti(seed, detail.manifest, detail.skillMD, detail.relativeFiles, detail.contentRevision,
                      detail.syncState);
}

size_t qHash(const CreateSkillRequest &request, size_t seed)
{
    return qHashMulti(seed, request.slug, request.displayName, request.summary, request.category,
                      request.tags, request.maturity, request.skillMD.has_value(),
                      request.skillMD.value_or(QString()));
}

size_t qHash(const WorkspaceOverview &overview, size_t seed)
{
    return qHashMulti(seed, hash_value(overview.workspaceURL), overview.skills, overview.trashedSkills,
                      overview.categories);
}

} // namespace vornel
