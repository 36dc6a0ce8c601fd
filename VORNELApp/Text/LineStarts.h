#pragma once

#include <QTextDocument>

#include <tree_sitter/api.h>

#include <vector>

namespace vornel {

/// Where the lines of a document begin. It is told of each edit after the document has changed, so that until
/// then it knows where they began before.
class LineStarts
{
public:
    explicit LineStarts(const QTextDocument *document);

    /// The line of a character and its place in it, counted in bytes of UTF-16.
    TSPoint pointAt(int position) const;

    /// Takes over that the text from `begin` to `oldEnd` now reaches to `newEnd`.
    void follow(int begin, int oldEnd, int newEnd);

private:
    const QTextDocument *m_document;
    std::vector<int> m_starts{0};
};

} // namespace vornel
