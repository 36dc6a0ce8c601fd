#pragma once

#include <VORNELCore/Records/WorkspaceModels.h>

namespace vornel {

/// The newest form of manifests, catalogs and "workspace.json" that this program knows.
inline constexpr qint64 currentSchema = 1;

/// Throws `integrityFailure` for a document that a newer version wrote: writing it would drop the fields that
/// this version doesn't know. `what` names the document in French, in the masculine.
void refuseNewer(qint64 schemaVersion, const QString &what);
void refuseNewer(const SkillManifest &manifest);

} // namespace vornel
