#include "FileTreeSnapshot.h"

#include "SkillFiles.h"

#include <algorithm>
#include <ranges>

namespace vornel {

bool includes(TreeFilter filter, std::string_view relativePath)
{
    const bool hidden = std::ranges::any_of(std::views::split(relativePath, '/'), [](auto component) {
        return !component.empty() && component.front() == '.';
    });
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
