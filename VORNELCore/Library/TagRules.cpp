#include "TagRules.h"

#include "LocaleText.h"

#include <algorithm>

namespace vornel::TagRules {

QStringList normalizedTags(const QStringList &tags)
{
    QStringList kept;
    for (const QString &tag : tags) {
        const QString normalized = tag.trimmed().toLower();
        if (!normalized.isEmpty() && !kept.contains(normalized))
            kept.append(normalized);
    }
    std::ranges::stable_sort(kept, LocaleText::comesBefore);
    return kept;
}

} // namespace vornel::TagRules
