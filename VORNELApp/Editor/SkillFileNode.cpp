#include "SkillFileNode.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// The folder of this name among `siblings`, made if need be.
SkillFileNode &folder(QList<SkillFileNode> &siblings, const QString &name, const QString &path)
{
    const auto isFolder = [&name](const SkillFileNode &node) { return node.children && node.name == name; };
    const auto found = std::ranges::find_if(siblings, isFolder);
    if (found != siblings.end())
        return *found;
    return siblings.emplace_back(SkillFileNode{name, path, QList<SkillFileNode>()});
}

bool isPicture(const QString &suffix)
{
    static const QSet<QString> suffixes{u"png"_s, u"jpg"_s, u"jpeg"_s, u"webp"_s, u"gif"_s};
    return suffixes.contains(suffix);
}

bool isSource(const QString &suffix)
{
    static const QSet<QString> suffixes{
        u"bash"_s, u"c"_s,    u"cc"_s,  u"cpp"_s, u"cs"_s,  u"css"_s,  u"go"_s,  u"h"_s,     u"hpp"_s,
        u"html"_s, u"java"_s, u"js"_s,  u"jsx"_s, u"kt"_s,  u"lua"_s,  u"mjs"_s, u"php"_s,   u"pl"_s,
        u"py"_s,   u"qml"_s,  u"r"_s,   u"rb"_s,  u"rs"_s,  u"sh"_s,   u"sql"_s, u"swift"_s, u"toml"_s,
        u"ts"_s,   u"tsx"_s,  u"vue"_s, u"xml"_s, u"xsd"_s, u"yaml"_s, u"yml"_s, u"zsh"_s,
    };
    return suffixes.contains(suffix);
}

} // namespace

bool SkillFileNode::operator==(const SkillFileNode &other) const
{
    return name == other.name && path == other.path && children == other.children;
}

size_t qHash(const SkillFileNode &node, size_t seed)
{
    return qHashMulti(seed, node.name, node.path, node.children.value_or(QList<SkillFileNode>()));
}

QList<SkillFileNode> skillFileTree(const QStringList &relativeFiles)
{
    QList<SkillFileNode> tree;
    for (const QString &path : relativeFiles) {
        QList<SkillFileNode> *siblings = &tree;
        qsizetype begin = 0;
        for (qsizetype end = path.indexOf(u'/'); end >= 0; end = path.indexOf(u'/', begin)) {
            siblings = &*folder(*siblings, path.mid(begin, end - begin), path.left(end)).children;
            begin = end + 1;
        }
        if (begin < path.size())
            siblings->append({path.mid(begin), path, std::nullopt});
    }
    return tree;
}

QString icon(const SkillFileNode &node)
{
    if (node.children)
        return u"folder"_s;
    const QString suffix = node.name.section(u'.', 1).section(u'.', -1).toLower();
    if (suffix == u"md"_s)
        return u"file-text"_s;
    if (suffix == u"json"_s)
        return u"file-braces"_s;
    if (isSource(suffix))
        return u"file-code"_s;
    return isPicture(suffix) ? u"image"_s : u"file"_s;
}

} // namespace vornel
