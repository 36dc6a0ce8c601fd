#pragma once

#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <QDateTime>
#include <QObject>

#include <optional>
#include <vector>

namespace vornel {

/// What is noted of a skill that goes to the trash.
struct TrashEvent
{
    Q_GADGET
    Q_PROPERTY(QDateTime trashedAt MEMBER trashedAt)

public:
    QDateTime trashedAt;
};

/// Since when skills are in the trash: a file of each, apart from its folder, which may change there.
class TrashMoments
{
public:
    explicit TrashMoments(const Workspace &workspace) : m_files(workspace.files), m_config(workspace.config)
    {}

    /// Notes that the skill goes to the trash now. What can't be noted doesn't keep it from going there.
    void note(const QUuid &id) const;

    /// Forgets it once it has left the trash.
    void forget(const QUuid &id) const;

    /// Nothing where nothing was noted.
    std::optional<QDateTime> of(const QUuid &id) const;

    /// The files of skills that are not in the trash, as interruptions leave them.
    std::vector<std::filesystem::path> strays() const;

private:
    std::filesystem::path placeOf(const QUuid &id) const;

    FileSystem &m_files;
    const Configuration &m_config;
};

} // namespace vornel
