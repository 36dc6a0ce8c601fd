#pragma once

#include <VORNELCore/Records/WorkspaceModels.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <QList>

namespace vornel {

/// A skill's manifest and the folder that holds it.
struct SkillRecord
{
    SkillManifest manifest;
    std::filesystem::path folder;
};

/// The active skills, in no order. One bad folder makes the whole reading fail: `symlinkUnsupported` for a
/// link, `malformedManifest` or `invalidPath` for its manifest, `integrityFailure` for a doubled identifier
/// or slug and for a folder not named after its slug. Hidden entries and plain files are passed over. The
/// category is written as in the catalog, whatever blanks and capitals the manifest has.
QList<SkillRecord> activeManifests(const Workspace &workspace);

/// The skills in the trash, under the same rules; a folder there is named after the skill's identifier.
QList<SkillRecord> trashedManifests(const Workspace &workspace);

/// The records in the order of their display names, as an overview has them.
QList<SkillRecord> byName(const QList<SkillRecord> &records);

/// The record of this identifier; throws `skillNotFound`.
const SkillRecord &findRecord(const QList<SkillRecord> &records, const QUuid &id);

/// The active record of this identifier; throws `skillNotFound`.
SkillRecord activeRecord(const Workspace &workspace, const QUuid &id);

/// Identifiers in the order of their texts. Operations on several skills go through them in this order.
QList<QUuid> inTextOrder(const QSet<QUuid> &ids);

/// Throws `duplicateSlug` when one of `taken` has this slug, whatever the case.
void ensureUnique(const QString &slug, const QList<SkillRecord> &taken);

} // namespace vornel
