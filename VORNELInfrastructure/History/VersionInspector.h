#pragma once

#include "SkillHistory.h"

#include <VORNELCore/Records/HistoryRecords.h>
#include <VORNELInfrastructure/Skills/SkillRecords.h>

#include <QByteArray>

namespace vornel {

/// A version, and when it was made or replaced (UTC, in whole seconds).
struct DatedVersion
{
    KeptVersion version;
    QDateTime date;
    bool isCertain; ///< whether that is known; otherwise the date only serves to be shown
};

/// The versions of a skill, the newest first.
std::vector<DatedVersion> datedVersions(const Workspace &workspace, const QUuid &id);

/// Looks at the versions of active and trashed skills. Does and throws what `HistoryKeeping` says.
class VersionInspector
{
public:
    explicit VersionInspector(const Workspace &workspace) : m_workspace(workspace), m_history(workspace) {}

    QList<HistoryEntry> history(const QUuid &id) const;
    HistoryComparison compare(const QUuid &id, const QString &entry,
                              const std::optional<QString> &other) const;
    std::optional<QByteArray> readFile(const QUuid &id, const QString &entry,
                                       const QString &relativePath) const;

    /// What a version of a skill holds.
    FileTreeSnapshot contentOf(const SkillRecord &skill, const QString &entry) const;

private:
    SkillRecord record(const QUuid &id) const;
    std::filesystem::path folderOf(const SkillRecord &skill, const QString &entry) const;
    HistoryEntry entryOf(const QUuid &id, const DatedVersion &dated) const;
    FileTreeSnapshot presentContent(const SkillRecord &skill) const;

    const Workspace &m_workspace;
    SkillHistory m_history;
};

} // namespace vornel
