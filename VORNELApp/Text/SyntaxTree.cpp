#include "SyntaxTree.h"

#include <QTextBlock>

#include <algorithm>
#include <cstdlib>
#include <tuple>
#include <utility>

namespace vornel {

namespace {

/// So many ways to read one place are followed at most while parts are looked for.
constexpr uint32_t matchLimit = 256;

constexpr uint32_t characterSize = sizeof(char16_t);

uint32_t bytes(int position)
{
    return static_cast<uint32_t>(position) * characterSize;
}

int position(uint32_t byte)
{
    return static_cast<int>(byte / characterSize);
}

int lengthOf(const QTextDocument *document)
{
    return document->characterCount() - 1; // it ends with a separator
}

} // namespace

SyntaxTree::SyntaxTree(const Grammar &grammar, const QTextDocument *document)
    : m_grammar(&grammar),
      m_document(document),
      m_parser(ts_parser_new()),
      m_cursor(ts_query_cursor_new()),
      m_lines(document),
      m_length(lengthOf(document))
{
    ts_parser_set_language(m_parser.get(), grammar.language());
    ts_query_cursor_set_match_limit(m_cursor.get(), matchLimit);
}

/// What was there before follows from the lengths: a document may count its last separator as changed, too.
void SyntaxTree::follow(int from, int added)
{
    const int length = lengthOf(m_document);
    const int grown = length - m_length;
    const int begin = std::min({from, m_length, length});
    const int newEnd = std::clamp(from + added, begin + std::max(0, grown), length);
    const int oldEnd = newEnd - grown;
    TSInputEdit edit{.start_byte = bytes(begin),
                     .old_end_byte = bytes(oldEnd),
                     .new_end_byte = bytes(newEnd),
                     .start_point = m_lines.pointAt(begin),
                     .old_end_point = m_lines.pointAt(oldEnd),
                     .new_end_point = {}};
    m_lines.follow(begin, oldEnd, newEnd);
    edit.new_end_point = m_lines.pointAt(newEnd);
    if (m_tree != nullptr)
        ts_tree_edit(m_tree.get(), &edit);
    ts_parser_reset(m_parser.get());
    m_length = length;
    m_line.clear();
}

std::optional<TextRange> SyntaxTree::read(std::chrono::microseconds time)
{
    ts_parser_set_timeout_micros(m_parser.get(), static_cast<uint64_t>(time.count()));
    const TSInput input{.payload = this, .read = textAt, .encoding = TSInputEncodingUTF16};
    decltype(m_tree) tree(ts_parser_parse(m_parser.get(), m_tree.get(), input));
    if (tree == nullptr)
        return {};
    const auto former = std::exchange(m_tree, std::move(tree));
    return former == nullptr ? TextRange{0, m_length} : changesSince(former.get(), m_tree.get());
}

/// All changes and what lies between them.
TextRange SyntaxTree::changesSince(const TSTree *former, const TSTree *tree) const
{
    uint32_t count = 0;
    TSRange *const changes = ts_tree_get_changed_ranges(former, tree, &count);
    TextRange range;
    if (count > 0)
        range = {position(changes[0].start_byte), std::min(position(changes[count - 1].end_byte), m_length)};
    std::free(changes); // NOLINT(cppcoreguidelines-no-malloc): the library has allocated it
    return range;
}

/// A line after the other, each with the end of it that a document doesn't write out.
const char *SyntaxTree::textAt(void *self, uint32_t byte, TSPoint /*point*/, uint32_t *size)
{
    auto &tree = *static_cast<SyntaxTree *>(self);
    const int at = position(byte);
    if (at < tree.m_lineBegin || at >= tree.m_lineBegin + tree.m_line.size()) {
        const QTextBlock line = tree.m_document->findBlock(at);
        tree.m_lineBegin = line.position();
        tree.m_line = line.text() + (line.next().isValid() ? QStringLiteral("\n") : QString());
    }
    const qsizetype offset = at - tree.m_lineBegin;
    const qsizetype rest = std::max<qsizetype>(0, tree.m_line.size() - offset);
    *size = bytes(static_cast<int>(rest));
    return rest == 0 ? "" : reinterpret_cast<const char *>(tree.m_line.constData() + offset);
}

QList<ColoredPart> SyntaxTree::parts(TextRange range) const
{
    if (m_tree == nullptr)
        return {};
    QList<ColoredPart> found;
    ts_query_cursor_set_byte_range(m_cursor.get(), bytes(range.begin), bytes(range.end));
    ts_query_cursor_exec(m_cursor.get(), m_grammar->query(), ts_tree_root_node(m_tree.get()));
    TSQueryMatch match{};
    for (uint32_t index = 0; ts_query_cursor_next_capture(m_cursor.get(), &match, &index);) {
        const TSQueryCapture &part = match.captures[index];
        if (const auto role = m_grammar->role(part))
            found.append(
                {{position(ts_node_start_byte(part.node)), position(ts_node_end_byte(part.node))}, *role});
    }
    std::ranges::stable_sort(
        found, {}, [](const ColoredPart &part) { return std::tuple(part.begin, -part.end, part.role); });
    return found;
}

} // namespace vornel
