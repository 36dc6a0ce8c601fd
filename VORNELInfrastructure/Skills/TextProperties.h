#pragma once

#include "SkillRecords.h"

#include <VORNELCore/Records/SkillProperties.h>

namespace vornel {

/// The change with the name and the description that the head of the skill's "SKILL.md" gives, where it asks
/// for them; what it says itself goes before. A head that can't be read gives nothing.
PropertyChange withTextProperties(const Workspace &workspace, const SkillRecord &skill,
                                  PropertyChange change);

} // namespace vornel
