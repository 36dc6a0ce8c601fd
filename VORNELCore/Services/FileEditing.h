#pragma once

#include <VORNELCore/Records/PathChange.h>
#include <VORNELCore/Records/WorkspaceModels.h>

#include <QFile>
#include <QFuture>

#include <memory>
#include <optional>

namespace vornel {

/// Changes the files of skills, opens them for other programs, and makes skills of the files of others.
class FileEditing
{
public:
    virtual ~FileEditing() = default;

    /// Makes these changes, one after the other, the next revision of an active skill, and installs it as a
    /// save does; none where nothing changes. Nothing is written unless all of them can be. May fail with
    /// `notBootstrapped`, `skillNotFound`, `revisionConflict`, `invalidPath` for a path out of the folder,
    /// `integrityFailure` for one that no skill may have or that is taken or missing, `missingSkillFile` for
    /// a blank "SKILL.md", what a walk over the skill throws, `partialSync` or a file-system error.
    virtual QFuture<SkillDetail> changeFiles(QUuid id, QList<PathChange> changes,
                                             qint64 expectedRevision) = 0;

    /// The folders of an active skill that hold no file, by path.
    virtual QFuture<QStringList> emptyFolders(QUuid id) = 0;

    /// Opens a file of an active skill for another program, to be changed where it stands, or only read where
    /// its permissions say so. May fail with `skillNotFound`, `invalidPath` for a path out of the folder,
    /// `symlinkUnsupported` for a link on the way, or a file-system error.
    virtual QFuture<std::shared_ptr<QFile>> openFile(QUuid id, QString relativePath) = 0;

    /// Makes a new skill with the files and properties of an active one; without a name of its own it gets
    /// that of the other, and " (copie)". May fail with `skillNotFound` and as `createSkill` does.
    virtual QFuture<SkillDetail> duplicateSkill(QUuid id, QString slug,
                                                std::optional<QString> displayName) = 0;
};

} // namespace vornel
