#include "Promise.h"

#include <VORNELCore/Library/LocaleText.h>
#include <VORNELCore/Library/TagRules.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Skills/SkillText.h>

using namespace Qt::StringLiterals;
using namespace vornel;
using Fuzz::promise;

namespace {

const QString slug = u"pdf-tools"_s;

bool isOneTrimmedLine(const QString &value)
{
    return value == value.trimmed() && !value.contains(u'\n');
}

/// The manifest that an import makes from a text. It must stay the same when it is written and read.
SkillManifest imported(const SkillText::Metadata &metadata)
{
    SkillManifest manifest;
    manifest.slug = slug;
    manifest.displayName = metadata.name;
    manifest.summary = metadata.summary;
    manifest.tags = TagRules::normalizedTags({metadata.name, metadata.summary});
    manifest.createdAt = manifest.updatedAt = QDateTime::fromSecsSinceEpoch(0, Qt::UTC);
    return manifest;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = Fuzz::bytes(data, size);
    const auto text = textFromUtf8(bytes);
    promise(text.has_value() == QByteArrayView(bytes).isValidUtf8(), "UTF-8, and nothing else, is a text");
    if (!text)
        return 0;
    const SkillText::Metadata metadata = SkillText::frontmatterMetadata(*text, slug);
    promise(!metadata.name.isEmpty() && isOneTrimmedLine(metadata.name), "a name is one trimmed line");
    promise(isOneTrimmedLine(metadata.summary), "a summary is one trimmed line");
    promise(text->contains(metadata.name) || metadata.name == LocaleText::titleFromIdentifier(slug),
            "a name is from the text or the slug");
    promise(text->contains(metadata.summary), "a summary is from the text");
    promise(SkillText::frontmatterMetadata(*text + u"\nname: last"_s, slug).name == u"last"_s,
            "the last name is the one");

    const SkillManifest manifest = imported(metadata);
    const SkillText::Metadata own =
        SkillText::frontmatterMetadata(SkillText::defaultSkillMD(manifest), manifest.slug);
    promise(own.name == manifest.slug && own.summary == manifest.summary,
            "a new text tells what its manifest does");
    promise(RecordJson::decodeDocument<SkillManifest>(RecordJson::document(RecordJson::encode(manifest))) ==
                manifest,
            "an imported manifest can be read");
    return 0;
}
