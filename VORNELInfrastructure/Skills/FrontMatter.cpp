#include "FrontMatter.h"

#include "YamlFields.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

constexpr qsizetype longestHead = 65'536;

/// Cuts the first line off.
QStringView takeLine(QStringView &text)
{
    const qsizetype end = text.indexOf(u'\n');
    const QStringView line = end < 0 ? text : text.first(end);
    text = text.sliced(std::min(text.size(), line.size() + 1));
    return line;
}

bool isMark(QStringView line)
{
    return line.startsWith(u"---") && line.sliced(3).trimmed().isEmpty();
}

/// What stands before the next mark; nothing where none comes soon.
std::optional<QStringView> untilMark(QStringView text)
{
    for (QStringView rest = text; !rest.isEmpty() && text.size() - rest.size() <= longestHead;) {
        const qsizetype before = text.size() - rest.size();
        if (isMark(takeLine(rest)))
            return text.first(before);
    }
    return std::nullopt;
}

} // namespace

const FrontMatter::Field *FrontMatter::find(QStringView name) const
{
    const auto found = std::ranges::find(fields, name, &Field::name);
    return found == fields.end() ? nullptr : &*found;
}

FrontMatter readFrontMatter(const QString &text)
{
    FrontMatter head;
    QStringView rest(text);
    if (rest.startsWith(QChar::ByteOrderMark))
        rest = rest.sliced(1);
    head.isPresent = isMark(takeLine(rest));
    if (!head.isPresent)
        return head;
    const std::optional<QStringView> yaml = untilMark(rest);
    if (!yaml) {
        head.failure = {
            1, u"aucune seconde ligne «\u00A0---\u00A0» ne le ferme\u00A0; ajoutez-la après ses champs"_s};
        return head;
    }
    readYamlFields(*yaml, head);
    if (head.failure)
        head.fields.clear();
    return head;
}

} // namespace vornel
