#pragma once

#include <QStringView>
#include <QUtf8StringView>

/// Checks of texts that are about to become paths. They touch no file.
namespace vornel::WorkspaceValidation {

/// The most characters of a slug.
constexpr qsizetype longestSlug = 80;

/// Accepts 1 to 80 characters of "a-z", "0-9" and single inner "-". Throws `invalidPath(empty)` or
/// `invalidPath(invalidSlug)`.
void validateSlug(QStringView slug);

/// Accepts a path that stays below its folder and out of ".vornel". Throws `invalidPath` with the first
/// violation among `empty`, `absolute`, `nullByte`, `parentTraversal`, `reserved`.
void validateRelativePath(QUtf8StringView path);

} // namespace vornel::WorkspaceValidation
