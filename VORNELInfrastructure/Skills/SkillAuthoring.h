#pragma once

#include "SkillFolderStore.h"
#include "SkillRecords.h"

#include <VORNELCore/Records/WorkspaceModels.h>
#include <VORNELInfrastructure/History/SkillHistory.h>
#include <VORNELInfrastructure/Targets/TargetSynchronizer.h>
#include <VORNELInfrastructure/Tree/ComposedTree.h>

#include <functional>
#include <optional>

namespace vornel {

/// Creates, loads and edits skills.
class SkillAuthoring
{
public:
    explicit SkillAuthoring(const Workspace &workspace) : m_workspace(workspace), m_store(workspace) {}

    /// The manifest of a new skill. Throws where the request is refused: `invalidPath`, `duplicateSlug`, or
    /// `integrityFailure` for a blank name or an unknown category.
    SkillManifest newManifest(const CreateSkillRequest &request) const;

    /// The manifest of a new active skill that a folder is to become, named as an import would name it.
    /// Throws what `newManifest` does, `missingSkillFile`, and a `filesystem_error` for a text that isn't
    /// UTF-8.
    SkillManifest manifestFor(const std::filesystem::path &folder, const QString &slug) const;

    SkillDetail create(const CreateSkillRequest &request) const;

    /// Adds a skill with a manifest of `newManifest`, and installs it. `make` makes the folder, all but the
    /// manifest, at the path that it is given.
    SkillDetail add(const SkillManifest &manifest,
                    const std::function<void(const std::filesystem::path &)> &make) const;

    SkillDetail load(const QUuid &id) const;

    /// The active skill; throws `revisionConflict` when it isn't at the expected revision.
    SkillRecord recordAt(const QUuid &id, std::optional<qint64> expectedRevision) const;

    /// Throws what `recordAt` does, and `missingSkillFile` when the text is blank.
    SkillDetail save(const QUuid &id, qint64 expectedRevision, const QString &skillMD) const;

    /// Makes the skill's next revision, and installs it everywhere but in the targets that are left alone.
    /// `compose` says what the folder is to hold, given all that it holds; the manifest is made anew.
    SkillDetail revise(SkillRecord skill,
                       const std::function<ComposedTree(const FileTreeSnapshot &former)> &compose,
                       const QSet<TargetKind> &leftAlone = {}) const;

    /// Makes a revision of the skill's folder as it stands, and installs it in the same way.
    SkillDetail reviseInPlace(SkillRecord skill, const QSet<TargetKind> &leftAlone) const;

    /// Installs the canonical folder in both targets, where their copies differ.
    SkillDetail synchronize(const QUuid &id) const;
    SkillDetail synchronize(const SkillRecord &skill) const;

    /// Puts a fresh copy into one target, and what stands there into the recovery folder.
    SkillDetail setAside(const QUuid &id, TargetKind target) const;

private:
    /// The place of the skill's folder, for a commit that replaces it. Whatever fails, the skill stands whole
    /// there or, on a volume that can't exchange two folders, in the recovery folder.
    CommitPlace placeOf(const SkillRecord &skill, const FormerFolder &former) const;

    /// Removes the folder that was replaced, unless it is kept already or no longer what was read of it.
    void settle(const std::filesystem::path &left, const SkillManifest &manifest,
                const FileTreeSnapshot &asRead) const;
    SkillDetail install(const SkillRecord &skill, const FileTreeSnapshot &tree, TargetCopies copies) const;
    void keepRevision(const SkillRecord &skill) const;

    const Workspace &m_workspace;
    SkillFolderStore m_store;
};

} // namespace vornel
