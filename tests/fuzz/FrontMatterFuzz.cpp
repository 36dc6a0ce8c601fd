#include "Promise.h"

#include <VORNELCore/Library/NewSkillText.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Skills/FrontMatter.h>

using namespace Qt::StringLiterals;
using namespace vornel;
using Fuzz::promise;

namespace {

void checkLines(const FrontMatter &head, qint64 last)
{
    const auto isInside = [last](qint64 line) { return line >= 1 && line <= last; };
    for (const FrontMatter::Field &field : head.fields) {
        promise(isInside(field.line), "a field has a line of the text");
        promise(head.find(field.name) == &field, "a name stands for one field");
    }
    promise(!head.failure || (isInside(head.failure->line) && head.fields.isEmpty()),
            "a failure has a line of the text, and leaves no fields");
}

/// A text that VORNEL writes for a new skill is read as what was put into it.
void checkWritten(const QString &summary)
{
    const CreateSkillRequest request{u"demo"_s, u"Démo"_s, summary, {}, {}, Maturity::draft, {}};
    const FrontMatter head = readFrontMatter(readableSkillText(request));
    const FrontMatter::Field *field = head.find(u"description");
    promise(field != nullptr && field->text == summary, "what is written into a head is read from it");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto text = textFromUtf8(Fuzz::bytes(data, size));
    if (!text)
        return 0;
    const FrontMatter head = readFrontMatter(*text);
    promise(head.isPresent || (head.fields.isEmpty() && !head.failure), "what isn't there holds nothing");
    checkLines(head, text->count(u'\n') + 1);
    for (const FrontMatter::Field &field : head.fields) {
        if (field.text)
            checkWritten(*field.text);
    }
    return 0;
}
