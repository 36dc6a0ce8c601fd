#pragma once

#include <VORNELCore/Records/HistoryRecords.h>
#include <VORNELCore/Records/SetAsideCopy.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <QByteArray>
#include <QStringList>

#include <vector>

namespace vornel {

/// What lies in the recovery folder, whatever its name and kind. Left out are what is still being moved, and
/// a skill's folder that the next start puts back in its place or needs no more.
class RecoveryFolder
{
public:
    explicit RecoveryFolder(const Workspace &workspace) : m_workspace(workspace) {}

    /// The newest first. Nothing that lies there hides the others: what can't be read has a reason.
    QList<SetAsideCopy> list() const;

    /// Where what has this name stands; throws `integrityFailure` when there is no such thing.
    std::filesystem::path place(const QString &id) const;

    HistoryComparison compare(const QString &id) const;
    std::optional<QByteArray> readFile(const QString &id, const QString &relativePath) const;

    /// Deletes these for good, and passes over those that aren't there.
    void remove(const QStringList &ids) const;

private:
    std::vector<FolderEntry> entries() const;
    SetAsideCopy look(const FolderEntry &entry) const;
    QString refusalOf(const FolderEntry &entry, const QString &slug) const;

    const Workspace &m_workspace;
};

} // namespace vornel
