#include "FileSystem.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/SerializedForms.h>

#include <unistd.h>

#include <algorithm>
#include <string_view>

namespace vornel {

namespace fs = std::filesystem;

namespace {

bool isWithin(std::string_view path, std::string_view folder)
{
    return path.starts_with(folder) &&
           (path.size() == folder.size() || path[folder.size()] == '/' || folder == "/");
}

} // namespace

Descriptor::~Descriptor()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

bool isInside(const fs::path &path, const fs::path &folder)
{
    return isWithin(standardizedPath(path).native(), standardizedPath(folder).native());
}

const fs::path &FileSystem::rootOf(const fs::path &path) const
{
    const auto root = std::ranges::find_if(
        m_roots, [&path](const fs::path &folder) { return isWithin(path.native(), folder.native()); });
    if (root == m_roots.end())
        throw VORNELWorkspaceError::invalidPath(PathViolation::outsideRoot);
    return *root;
}

Folder FileSystem::openFolder(const fs::path &path) const
{
    const fs::path above = rootOf(path).parent_path();
    for (const fs::path &name : path) {
        if (name == "." || name == "..")
            throw VORNELWorkspaceError::invalidPath(PathViolation::outsideRoot);
    }
    const std::size_t length = above == "/" ? 1 : above.native().size() + 1;
    return openBelow(openAbove(above), path.native().substr(length));
}

std::optional<FileKind> FileSystem::kindAt(const fs::path &path) const
try {
    const bool isRoot = path == rootOf(path);
    return kindAt(isRoot ? openAbove(path.parent_path()) : openFolder(path.parent_path()), path.filename());
} catch (const fs::filesystem_error &error) {
    if (error.code() == std::errc::no_such_file_or_directory || error.code() == std::errc::not_a_directory)
        return std::nullopt;
    throw;
}

} // namespace vornel
