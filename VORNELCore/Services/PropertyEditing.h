#pragma once

#include <VORNELCore/Records/SkillProperties.h>

#include <QFuture>

#include <optional>

namespace vornel {

/// What skills are called, how they are classified, and how large they are.
class PropertyEditing
{
public:
    virtual ~PropertyEditing() = default;

    /// Makes the next revision of each of these active skills that the change concerns, and returns them all
    /// in their order. Another slug renames the skill's folder and its copies, whatever these hold. May fail
    /// with `notBootstrapped` and, before anything is changed, with `skillNotFound`, `revisionConflict` where
    /// one isn't at the expected revision, `invalidPath` or `duplicateSlug` for a slug that can't be given,
    /// `integrityFailure` for a blank name, an unknown category, a slug for several skills, or a copy's place
    /// that is taken. Throws `partialSync` where a copy couldn't be renamed.
    virtual QFuture<QList<SkillDetail>> setProperties(QList<QUuid> ids, PropertyChange change,
                                                      std::optional<qint64> expectedRevision) = 0;

    /// What the properties of these skills would be after a change, in their order; changes nothing. Fails as
    /// the change would before anything is changed.
    virtual QFuture<QList<SkillProperties>> reviewProperties(QList<QUuid> ids, PropertyChange change) = 0;

    /// The bytes of an active skill's files, without what VORNEL adds to them. May fail with
    /// `notBootstrapped`, `skillNotFound` or what keeps its folder from being read.
    virtual QFuture<qint64> sizeOf(QUuid id) = 0;
};

} // namespace vornel
