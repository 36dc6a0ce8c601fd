#pragma once

#include <VORNELCore/Records/WorkspaceModels.h>

namespace vornel {

/// The text of a new skill: a head with a name and a description, a title, and a line to begin with.
QString newSkillText(const QString &name, const QString &description, const QString &title);

/// The same for what the user gives, with a head that a reader of YAML understands: a value stands between
/// quotes where it would not be read back as the same text without them.
QString readableSkillText(const CreateSkillRequest &request);

} // namespace vornel
