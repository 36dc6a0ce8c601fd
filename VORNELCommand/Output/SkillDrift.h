#pragma once

#include <VORNELCore/Services/CopyInspecting.h>

#include <QJsonValue>

#include <optional>

namespace vornel {

/// Tells what has made the copies of drifted skills differ. The service is asked for all of them at once,
/// when the first one is needed.
class SkillDrift
{
public:
    explicit SkillDrift(CopyInspecting &copies) : m_copies(copies) {}

    Drift of(const QUuid &id) const;

    /// The skill's copies that aren't right; none where that can't be told.
    QList<CopyInspection> copies(const QUuid &id) const;

    /// The JSON form of any records, in which "drift" stands beside each "syncState" that is "drifted".
    QJsonValue addedTo(const QJsonValue &records) const;

private:
    CopyInspecting &m_copies;
    mutable std::optional<QHash<QUuid, QList<CopyInspection>>> m_wrong;
};

} // namespace vornel
