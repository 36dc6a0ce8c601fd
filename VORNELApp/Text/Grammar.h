#pragma once

#include <QList>
#include <QString>

#include <tree_sitter/api.h>

#include <memory>
#include <optional>

namespace vornel {

/// How the files of a type are written, and what of them has a colour.
class Grammar
{
public:
    /// What a part of a text is. Where a part is several things, the last of them counts.
    enum Role { Plain, Comment, String, Constant, Keyword, Name };

    /// That of a file with this path and this first line; null where none is known.
    static const Grammar *of(const QString &path, const QString &firstLine);

    /// `patterns` is a query that names what is to be coloured, as tree-sitter's own highlighting does.
    Grammar(const TSLanguage *language, const QByteArray &patterns);

    /// Whether this version of the library can read both.
    bool isUsable() const { return m_query != nullptr; }

    const TSLanguage *language() const { return m_language; }
    const TSQuery *query() const { return m_query.get(); }

    /// What a part is that the query has found; nothing where this doesn't matter.
    std::optional<Role> role(const TSQueryCapture &part) const;

private:
    struct Deletion
    {
        void operator()(TSQuery *query) const { ts_query_delete(query); }
    };

    const TSLanguage *m_language;
    std::unique_ptr<TSQuery, Deletion> m_query;
    QList<std::optional<Role>> m_roles; ///< of what the query finds, by the number of its name
};

} // namespace vornel
