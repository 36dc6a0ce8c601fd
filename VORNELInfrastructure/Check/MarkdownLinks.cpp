#include "MarkdownLinks.h"

#include <QUrl>

#include <cmark.h>

#include <memory>

namespace vornel {

namespace {

constexpr qsizetype largestChecked = 262'144;

/// The path that a link leads to; empty where it leads to no file beside the text.
QString relativePath(const char *target)
{
    const QUrl url(QString::fromUtf8(target));
    const QString path = url.path(QUrl::FullyDecoded);
    return url.isRelative() && url.host().isEmpty() && !path.startsWith(u'/') ? path : QString();
}

bool isLink(cmark_node *node)
{
    return cmark_node_get_type(node) == CMARK_NODE_LINK || cmark_node_get_type(node) == CMARK_NODE_IMAGE;
}

} // namespace

QList<MarkdownLink> markdownLinks(QByteArrayView text)
{
    if (text.size() > largestChecked)
        return {};
    const std::unique_ptr<cmark_node, decltype(&cmark_node_free)> document(
        cmark_parse_document(text.data(), static_cast<std::size_t>(text.size()), CMARK_OPT_DEFAULT),
        cmark_node_free);
    const std::unique_ptr<cmark_iter, decltype(&cmark_iter_free)> walk(cmark_iter_new(document.get()),
                                                                       cmark_iter_free);
    QList<MarkdownLink> links;
    for (cmark_event_type event = cmark_iter_next(walk.get()); event != CMARK_EVENT_DONE;
         event = cmark_iter_next(walk.get())) {
        cmark_node *node = cmark_iter_get_node(walk.get());
        if (event != CMARK_EVENT_ENTER || !isLink(node))
            continue;
        if (const QString path = relativePath(cmark_node_get_url(node)); !path.isEmpty())
            links.append({path, cmark_node_get_start_line(node)});
    }
    return links;
}

} // namespace vornel
