#pragma once

#include "ImportModels.h"

namespace vornel {

/// A skill that an assistant has in its folder and the library doesn't.
struct NewSkill
{
    Q_GADGET
    Q_PROPERTY(vornel::TargetKind target MEMBER target)
    Q_PROPERTY(QString slug MEMBER slug)
    Q_PROPERTY(bool isTrashed MEMBER isTrashed)

public:
    TargetKind target = TargetKind::claude;
    QString slug;
    bool isTrashed = false; ///< whether the trash holds a skill of this slug

    bool operator==(const NewSkill &) const = default;
};

} // namespace vornel
