#include "FileSystem.h"

#include <VORNELCore/SerializedForms.h>

#include <unistd.h>

#include <array>

namespace vornel {

namespace fs = std::filesystem;

Descriptor::~Descriptor()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

bool isInside(const fs::path &path, const fs::path &folder)
{
    const std::string inner = standardizedPath(path).native();
    std::string outer = standardizedPath(folder).native();
    if (inner == outer)
        return true;
    if (!outer.ends_with('/'))
        outer += '/';
    return inner.starts_with(outer);
}

QByteArray readFile(const FileSystem &files, const fs::path &path, std::int64_t limit)
{
    const Folder folder = files.openFolder(path.parent_path());
    const File file = files.openFile(folder, path.filename().native());
    if (file.kind != FileKind::Regular)
        throw fs::filesystem_error("read", path, std::make_error_code(std::errc::invalid_argument));

    QByteArray bytes;
    std::array<char, 16 * 1024> buffer;
    while (const std::size_t count = files.read(file, buffer)) {
        bytes.append(buffer.data(), static_cast<qsizetype>(count));
        if (bytes.size() > limit)
            throw fs::filesystem_error("read", path, std::make_error_code(std::errc::file_too_large));
    }
    return bytes;
}

} // namespace vornel
