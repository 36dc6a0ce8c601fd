#include "WorkspaceValidation.h"

#include "VORNELWorkspaceError.h"

#include <algorithm>
#include <ranges>
#include <string_view>

namespace vornel::WorkspaceValidation {

void validateSlug(QStringView slug)
{
    constexpr qsizetype longestSlug = 80;
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
        return std::ranges::any_of(std::views::split(text, '/'),
                                   [name](auto component) { return std::ranges::equal(component, name); });
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
