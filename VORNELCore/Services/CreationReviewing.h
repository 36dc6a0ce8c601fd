#pragma once

#include <VORNELCore/Records/WorkspaceModels.h>

#include <QFuture>

namespace vornel {

/// Looks at what the user gives to create a skill, and changes nothing.
class CreationReviewing
{
public:
    virtual ~CreationReviewing() = default;

    /// The manifest that a creation would write. Fails as the creation does before it writes anything.
    virtual QFuture<SkillManifest> reviewCreation(CreateSkillRequest request) = 0;
};

} // namespace vornel
