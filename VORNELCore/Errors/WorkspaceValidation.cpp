#include "WorkspaceValidation.h"

#include "VORNELWorkspaceError.h"

#include <algorithm>
#include <string_view>

namespace vornel::WorkspaceValidation {

void validateSlug(QStringView slug)
{
    const auto isSlugCharacter = [](QChar c) {
        return (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9') || c == u'-';
    };

    if (slug.isEmpty())
        throw VORNELWorkspaceError::invalidPath(PathViolation::empty);
    if (slug.size() > longestSlug || slug.startsWith(u'-') || slug.endsWith(u'-') || slug.contains(u"--") ||
        !std::ranges::all_of(slug, isSlugCharacter))
        throw VORNELWorkspaceError::invalidPath(PathViolation::invalidSlug);
}

void validateRelativePath(QUtf8StringView path)
{
    const std::string_view text(path.data(), static_cast<size_t>(path.size()));
    const auto hasComponent = [text](std::string_view name) {
        for (std::size_t at = text.find(name); at != std::string_view::npos; at = text.find(name, at + 1)) {
            const std::size_t end = at + name.size();
            if ((at == 0 || text[at - 1] == '/') && (end == text.size() || text[end] == '/'))
                return true;
        }
        return false;
    };

    if (text.empty())
        throw VORNELWorkspaceError::invalidPath(PathViolation::empty);
    if (text.starts_with('/'))
        throw VORNELWorkspaceError::invalidPath(PathViolation::absolute);
    if (text.find('\0') != std::string_view::npos)
        throw VORNELWorkspaceError::invalidPath(PathViolation::nullByte);
    if (hasComponent(".."))
        throw VORNELWorkspaceError::invalidPath(PathViolation::parentTraversal);
    if (hasComponent(".vornel"))
        throw VORNELWorkspaceError::invalidPath(PathViolation::reserved);
}

} // namespace vornel::WorkspaceValidation
