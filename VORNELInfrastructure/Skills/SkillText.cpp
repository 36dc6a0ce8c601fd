#include "SkillText.h"

#include <VORNELCore/Library/LocaleText.h>
#include <VORNELCore/Library/NewSkillText.h>

#include <QStringTokenizer>

using namespace Qt::StringLiterals;

namespace vornel::SkillText {

Metadata frontmatterMetadata(const QString &text, const QString &slug)
{
    constexpr QLatin1String nameKey("name:");
    constexpr QLatin1String descriptionKey("description:");
    Metadata found;
    for (const QStringView line : qTokenize(text, u'\n')) {
        if (line.startsWith(nameKey))
            found.name = line.sliced(nameKey.size()).trimmed().toString();
        else if (line.startsWith(descriptionKey))
            found.summary = line.sliced(descriptionKey.size()).trimmed().toString();
    }
    if (found.name.isEmpty())
        found.name = LocaleText::titleFromIdentifier(slug);
    return found;
}

QString defaultSkillMD(const SkillManifest &manifest)
{
    return newSkillText(manifest.slug, manifest.summary, manifest.displayName);
}

} // namespace vornel::SkillText
