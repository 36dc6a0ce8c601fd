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
    const auto refuse = [&](std::errc reason) {
        throw fs::filesystem_error("read", fs::path(folder.path) / name, std::make_error_code(reason));
    };
    if (file.kind != FileKind::Regular)
        refuse(std::errc::invalid_argument);
    if (file.size > limit)
        refuse(std::errc::file_too_large);
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
    std::array<char, 64 * 1024> buffer;
    for (std::int64_t left = file.size; left > 0;) {
        const auto wanted = static_cast<std::size_t>(std::min<std::int64_t>(left, buffer.size()));
        const std::size_t count = files.read(file, std::span(buffer).first(wanted));
        if (count == 0)
            return;
        left -= static_cast<std::int64_t>(count);
        sink(QByteArrayView(buffer.data(), static_cast<qsizetype>(count)));
    }
}

} // namespace vornel
