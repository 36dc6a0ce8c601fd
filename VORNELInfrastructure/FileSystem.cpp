#include "FileSystem.h"

#include <VORNELCore/SerializedForms.h>

#include <unistd.h>

#include <algorithm>
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

QByteArray readFile(const FileSystem &files, const Folder &folder, const std::string &name,
                    std::int64_t limit)
{
    const File file = files.openFile(folder, name);
    if (file.size > limit)
        throw fs::filesystem_error("read", fs::path(folder.path) / name,
                                   std::make_error_code(std::errc::file_too_large));
    QByteArray content;
    content.reserve(file.size);
    readWhole(files, file, [&content](QByteArrayView bytes) { content.append(bytes); });
    return content;
}

QByteArray readFile(const FileSystem &files, const fs::path &path, std::int64_t limit)
{
    return readFile(files, files.openFolder(path.parent_path()), path.filename().native(), limit);
}

void readWhole(const FileSystem &files, const File &file, const std::function<void(QByteArrayView)> &sink)
{
    std::array<char, 64UL * 1024> buffer;
    for (std::int64_t offset = 0; offset < file.size;) {
        const auto left = static_cast<std::size_t>(file.size - offset);
        const std::size_t count =
            files.read(file, offset, std::span(buffer).first(std::min(left, buffer.size())));
        if (count == 0)
            return;
        offset += static_cast<std::int64_t>(count);
        sink(QByteArrayView(buffer.data(), static_cast<qsizetype>(count)));
    }
}

} // namespace vornel
