#pragma once

#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <QObject>

#include <vector>

namespace vornel {

/// What is noted of a skill while it gets another slug.
struct RenameEvent
{
    Q_GADGET
    Q_PROPERTY(QString from MEMBER from)
    Q_PROPERTY(QString to MEMBER to)

public:
    QString from;
    QString to;
};

/// Which skills are getting another slug: a file for each.
class RenameNotes
{
public:
    struct Note
    {
        QUuid id;
        RenameEvent event;
    };

    explicit RenameNotes(const Workspace &workspace) : m_files(workspace.files), m_config(workspace.config) {}

    void add(const Note &note) const;
    void remove(const QUuid &id) const;

    /// All that are there; one that can't be read has no slugs.
    std::vector<Note> all() const;

private:
    std::filesystem::path placeOf(const QUuid &id) const;

    FileSystem &m_files;
    const Configuration &m_config;
};

} // namespace vornel
