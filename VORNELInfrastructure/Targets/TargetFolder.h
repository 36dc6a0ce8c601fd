#pragma once

#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>
#include <VORNELInfrastructure/Workspace/Workspace.h>

#include <exception>
#include <optional>

namespace vornel {

/// An assistant's folder, open for a look at the copies in it. It holds none where no folder is, or none that
/// may be seen; that is a failure where failures concern one skill. May be asked from several threads.
class TargetFolder
{
public:
    TargetFolder(const Workspace &workspace, TargetKind kind);

    TargetKind kind() const { return m_kind; }

    /// Whether copies in it may be looked at, as far as the folder itself is concerned.
    bool isUsable() const { return m_failure == nullptr; }

    /// What stands under this name, if anything. Throws `symlinkUnsupported` when the assistant's folder is a
    /// link.
    std::optional<FileKind> kindOf(const std::string &name) const;

    /// The content that counts of the copy of this name; nothing where no copy is. Throws what `kindOf` and
    /// the walk over the copy throw.
    std::optional<FileTreeSnapshot> snapshot(const std::string &name) const;

private:
    const FileSystem &m_files;
    TargetKind m_kind;
    std::optional<Folder> m_folder;
    std::exception_ptr m_failure; ///< why the folder may not be looked at, thrown when it has to be
};

} // namespace vornel
