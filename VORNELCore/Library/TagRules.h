#pragma once

#include <QStringList>

/// What the tags of a skill may be.
namespace vornel::TagRules {

/// The tags trimmed, in lower case, each once, without empty ones, in the user's alphabetical order.
QStringList normalizedTags(const QStringList &tags);

} // namespace vornel::TagRules
