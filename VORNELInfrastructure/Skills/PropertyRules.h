#pragma once

#include <VORNELCore/Records/SkillProperties.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

namespace vornel {

/// Properties as a manifest holds them: the name trimmed, the category and tags in their usual form. Throws
/// `invalidPath` for a slug that is none, `integrityFailure` for a blank name or an unknown category.
SkillProperties validProperties(const Workspace &workspace, SkillProperties properties);

/// The properties after a change, valid in the same way.
SkillProperties changedProperties(const Workspace &workspace, SkillProperties properties,
                                  const PropertyChange &change);

} // namespace vornel
