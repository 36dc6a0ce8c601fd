#pragma once

#include "Grammar.h"
#include "LineStarts.h"

#include <chrono>

namespace vornel {

/// A part of a document's text, from one position to another.
struct TextRange
{
    int begin = 0;
    int end = 0;
};

struct ColoredPart : TextRange
{
    Grammar::Role role = Grammar::Plain;
};

/// What the text of a document is made of, by a grammar. It follows each edit, and reads only what the edit
/// concerns.
class SyntaxTree
{
public:
    SyntaxTree(const Grammar &grammar, const QTextDocument *document);

    /// Takes over that the document has changed: from this position on, so many characters are new.
    void follow(int from, int added);

    /// Goes on reading for about so long. Returns where the text is made of something else than before, or
    /// nothing as long as there is more to read.
    std::optional<TextRange> read(std::chrono::microseconds time);

    /// The parts that reach into this range, each before those within it; according to what was read last.
    QList<ColoredPart> parts(TextRange range) const;

private:
    template <auto function>
    struct Deletion
    {
        void operator()(auto *object) const { function(object); }
    };

    static const char *textAt(void *self, uint32_t byte, TSPoint point, uint32_t *size);
    TextRange changesSince(const TSTree *former, const TSTree *tree) const;

    const Grammar *m_grammar;
    const QTextDocument *m_document;
    std::unique_ptr<TSParser, Deletion<ts_parser_delete>> m_parser;
    std::unique_ptr<TSTree, Deletion<ts_tree_delete>> m_tree; ///< null before all was read once
    std::unique_ptr<TSQueryCursor, Deletion<ts_query_cursor_delete>> m_cursor;
    LineStarts m_lines;
    int m_length;        ///< of the text
    int m_lineBegin = 0; ///< of the line that the parser reads
    QString m_line;      ///< with its end
};

} // namespace vornel
