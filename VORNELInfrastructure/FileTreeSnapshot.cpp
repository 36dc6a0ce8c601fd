#include "FileTreeSnapshot.h"

#include "SkillFiles.h"

namespace vornel {

bool includes(TreeFilter filter, std::string_view relativePath)
{
    const bool hidden = relativePath.starts_with('.') || relativePath.find("/.") != std::string_view::npos;
    const std::string_view name = relativePath.substr(relativePath.rfind('/') + 1);
    return !hidden && (filter == TreeFilter::all || name != SkillFiles::manifest);
}

QStringList FileTreeSnapshot::relativeFiles() const
{
    QStringList files;
    for (const Entry &entry : entries) {
        if (entry.kind == Entry::Kind::file)
            files.append(QString::fromStdString(entry.relativePath));
    }
    return files;
}

} // namespace vornel
