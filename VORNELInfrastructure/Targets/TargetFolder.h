#pragma once

#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <exception>
#include <optional>

namespace vornel {

/// A target, open for a look at the copies in it. Where there is no folder, it holds no copies. Nor does it
/// where the folder may not be read; with `FailureScope::Skill`, that makes each question about a copy fail.
/// May be asked from several threads.
class TargetFolder
{
public:
    TargetFolder(const Workspace &workspace, TargetKind kind);

    TargetKind kind() const { return m_kind; }

    /// Whether the folder itself can be read, or is missing.
    bool isUsable() const { return m_failure == nullptr; }

    /// What stands under this name, if anything. Throws `symlinkUnsupported` when the target is a link.
    std::optional<FileKind> kindOf(const std::string &name) const;

    /// The content of the copy of this name, as it is compared; nothing where there is no copy. Throws what
    /// `kindOf` and the walk over the copy throw. A file whose digest is known isn't read.
    std::optional<FileTreeSnapshot> snapshot(const std::string &name, FileDigests *known = nullptr) const;

private:
    const FileSystem &m_files;
    TargetKind m_kind;
    std::optional<Folder> m_folder;
    std::exception_ptr m_failure; ///< why the folder can't be read; thrown when a copy is asked for
};

} // namespace vornel
