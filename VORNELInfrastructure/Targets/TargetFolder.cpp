#include "TargetFolder.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>

namespace vornel {

namespace fs = std::filesystem;

namespace {

std::optional<Folder> openTarget(const FileSystem &files, const fs::path &root)
{
    refuseLinkedRoot(files, root);
    if (files.kindAt(root) != FileKind::Directory)
        return std::nullopt;
    Folder folder = files.openFolder(root);
    files.kindAt(folder, "."); // throws when its entries may not be looked at
    return folder;
}

} // namespace

TargetFolder::TargetFolder(const Workspace &workspace, TargetKind kind)
    : m_files(workspace.files), m_kind(kind)
{
    const fs::path &root = workspace.config.target(kind);
    try {
        m_folder = openTarget(m_files, root);
    } catch (const VORNELWorkspaceError &) {
        m_failure = std::current_exception();
    } catch (const fs::filesystem_error &error) {
        const bool isLibrarysMatter = workspace.failureScope == FailureScope::Library;
        if (isLibrarysMatter && error.code() != std::errc::permission_denied)
            throw;
        if (!isLibrarysMatter)
            m_failure = std::make_exception_ptr(fs::filesystem_error("open", root, error.code()));
    }
}

std::optional<FileKind> TargetFolder::kindOf(const std::string &name) const
{
    if (m_failure)
        std::rethrow_exception(m_failure);
    return m_folder ? m_files.kindAt(*m_folder, name) : std::nullopt;
}

std::optional<FileTreeSnapshot> TargetFolder::snapshot(const std::string &name, FileDigests *known) const
try {
    if (m_failure)
        std::rethrow_exception(m_failure);
    if (!m_folder)
        return std::nullopt;
    return SecureFileTree::snapshot(m_files, *m_folder, name, TreeFilter::excludingManifest, known);
} catch (const fs::filesystem_error &error) {
    if (error.code() == std::errc::no_such_file_or_directory && !kindOf(name))
        return std::nullopt;
    throw;
}

} // namespace vornel
