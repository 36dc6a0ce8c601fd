#pragma once

#include "Mentions.h"

#include <VORNELCore/Records/SkillProblem.h>
#include <VORNELInfrastructure/Skills/SkillFolderStore.h>

#include <QByteArray>
#include <QList>
#include <QSet>

namespace vornel {

/// Checks what the files of one skill say of each other. Large ones are not looked into.
class FileCheck
{
public:
    /// `text` is what "SKILL.md" holds.
    FileCheck(const SkillFolderStore &store, const FileTreeSnapshot &tree, const QString &text);

    QList<SkillProblem> run();

private:
    QByteArray bytesOf(const QString &path) const;
    void check(const QString &path, const QByteArray &bytes);
    void checkLinks(const QString &path, const QByteArray &text);
    void add(ProblemSeverity severity, const QString &rule, const QString &path, qint64 line,
             const QString &message);

    const SkillFolderStore &m_store;
    const FileTreeSnapshot &m_tree;
    const QByteArray m_text;
    QSet<QString> m_paths; ///< of files and folders, and "." for the skill's own
    Mentions m_mentions;
    QList<SkillProblem> m_problems;
};

} // namespace vornel
