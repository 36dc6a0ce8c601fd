#include "TargetFolder.h"

#include "SecureFileTree.h"

#include <VORNELCore/VORNELWorkspaceError.h>

namespace vornel {

namespace {

std::optional<Folder> openTarget(const FileSystem &files, const std::filesystem::path &root)
try {
    refuseLinkedRoot(files, root);
    if (files.kindAt(root) != FileKind::Directory)
        return std::nullopt;
    return files.openFolder(root);
} catch (const std::filesystem::filesystem_error &error) {
    if (error.code() == std::errc::permission_denied)
        return std::nullopt;
    throw;
}

} // namespace

TargetFolder::TargetFolder(const Workspace &workspace, TargetKind kind)
    : m_files(workspace.files), m_kind(kind)
{
    try {
        m_folder = openTarget(m_files, workspace.config.target(kind));
    } catch (const VORNELWorkspaceError &) {
        m_failure = std::current_exception();
    }
}

std::optional<FileKind> TargetFolder::kindOf(const std::string &name) const
{
    if (m_failure)
        std::rethrow_exception(m_failure);
    return m_folder ? m_files.kindAt(*m_folder, name) : std::nullopt;
}

std::optional<FileTreeSnapshot> TargetFolder::snapshot(const std::string &name) const
try {
    if (m_failure)
        std::rethrow_exception(m_failure);
    if (!m_folder)
        return std::nullopt;
    return SecureFileTree::snapshot(m_files, *m_folder, name, TreeFilter::excludingManifest);
} catch (const std::filesystem::filesystem_error &error) {
    if (error.code() == std::errc::no_such_file_or_directory && !kindOf(name))
        return std::nullopt;
    throw;
}

} // namespace vornel
