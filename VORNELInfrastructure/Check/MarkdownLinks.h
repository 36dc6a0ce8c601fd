#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>

namespace vornel {

/// A link or an image of a Markdown text that leads to a file by a relative path.
struct MarkdownLink
{
    QString path; ///< as it is typed, decoded, without what follows "#" or "?"
    qint64 line;  ///< in the text, from 1
};

/// Those in a text, outside of code. Absolute paths, addresses and anchors are passed over, and texts above
/// 256 KiB: the parser may take a time that grows with the square of their size.
QList<MarkdownLink> markdownLinks(QByteArrayView text);

} // namespace vornel
