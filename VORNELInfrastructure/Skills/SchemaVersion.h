#pragma once

#include <VORNELCore/Records/WorkspaceModels.h>

namespace vornel {

/// The newest form of manifests, catalogs and "workspace.json" that this program knows.
inline constexpr qint64 currentSchema = 1;

/// Throws `integrityFailure` for what a newer version wrote: this one would write it without what it doesn't
/// know of. `what` names it in French, in the masculine.
void refuseNewer(qint64 schemaVersion, const QString &what);
void refuseNewer(const SkillManifest &manifest);

} // namespace vornel
