#include "TextProperties.h"

#include "FrontMatter.h"
#include "SkillFolderStore.h"

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// A field's text on one line; nothing where it has none.
std::optional<QString> fieldText(const FrontMatter &head, QStringView name)
{
    const FrontMatter::Field *field = head.find(name);
    const QString text = field != nullptr ? field->text.value_or(QString()).simplified() : QString();
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

} // namespace

PropertyChange withTextProperties(const Workspace &workspace, const SkillRecord &skill, PropertyChange change)
{
    if (!change.isFromText)
        return change;
    const QString text = SkillFolderStore(workspace).readSkillMD(skill.folder, skill.manifest.slug);
    const FrontMatter head = readFrontMatter(text);
    if (!change.displayName)
        change.displayName = fieldText(head, u"name");
    if (!change.summary)
        change.summary = fieldText(head, u"description");
    return change;
}

} // namespace vornel
