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

/// Since when skills are in the trash: a file for each. The time of its folder won't do, as the folder may
/// change while it is there.
class TrashMoments
{
public:
    explicit TrashMoments(const Workspace &workspace) : m_files(workspace.files), m_config(workspace.config)
    {}

    /// Notes that the skill goes to the trash now. A failure is passed over: the skill goes there all the
    /// same.
    void note(const QUuid &id) const;

    /// Deletes the note of a skill that has left the trash.
    void forget(const QUuid &id) const;

    /// When the skill was moved there; nothing where that wasn't noted.
    std::optional<QDateTime> of(const QUuid &id) const;

    /// The files of skills that are not in the trash, left by interruptions.
    std::vector<std::filesystem::path> strays() const;

private:
    std::filesystem::path placeOf(const QUuid &id) const;

    FileSystem &m_files;
    const Configuration &m_config;
};

} // namespace vornel
