#include "Grammar.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <map>
#include <string_view>

using namespace Qt::StringLiterals;

extern "C" {
const TSLanguage *tree_sitter_bash();
const TSLanguage *tree_sitter_css();
const TSLanguage *tree_sitter_html();
const TSLanguage *tree_sitter_json();
const TSLanguage *tree_sitter_python();
const TSLanguage *tree_sitter_toml();
const TSLanguage *tree_sitter_tsx();
const TSLanguage *tree_sitter_yaml();
}

namespace vornel {

namespace {

struct FileType
{
    const TSLanguage *(*language)();
    QStringList packages; ///< those whose queries tell what is coloured
    QStringList suffixes;
    QStringList interpreters = {}; ///< of scripts, without a version
};

const QList<FileType> &fileTypes()
{
    static const QList<FileType> types{
        {tree_sitter_bash, {u"tree-sitter-bash"_s}, {u"sh"_s, u"bash"_s}, {u"sh"_s, u"bash"_s, u"dash"_s}},
        {tree_sitter_css, {u"tree-sitter-css"_s}, {u"css"_s}},
        {tree_sitter_html, {u"tree-sitter-html"_s}, {u"html"_s, u"htm"_s}},
        {tree_sitter_json, {u"tree-sitter-json"_s}, {u"json"_s, u"jsonc"_s, u"jsonl"_s}},
        {tree_sitter_python, {u"tree-sitter-python"_s}, {u"py"_s, u"pyi"_s}, {u"python"_s}},
        {tree_sitter_toml, {u"@tree-sitter-grammars/tree-sitter-toml"_s}, {u"toml"_s}},
        {tree_sitter_tsx, // which is JavaScript, too
         {u"tree-sitter-javascript"_s, u"tree-sitter-typescript"_s},
         {u"js"_s, u"jsx"_s, u"mjs"_s, u"cjs"_s, u"ts"_s, u"tsx"_s, u"mts"_s, u"cts"_s},
         {u"node"_s, u"bun"_s}},
        {tree_sitter_yaml, {u"@tree-sitter-grammars/tree-sitter-yaml"_s}, {u"yaml"_s, u"yml"_s}},
    };
    return types;
}

/// Whether a line that begins a script names one of these programs: "#!/usr/bin/env python3.11".
bool names(const QString &line, const QStringList &interpreters)
{
    static const QRegularExpression separators(u"[\\s/]+"_s);
    static const QRegularExpression version(u"[\\d.]+$"_s);
    QStringList words = line.left(200).split(separators);
    return std::ranges::any_of(words,
                               [&](QString &word) { return interpreters.contains(word.remove(version)); });
}

const FileType *typeOf(const QString &path, const QString &firstLine)
{
    const QString name = path.section(u'/', -1);
    const qsizetype dot = name.lastIndexOf(u'.');
    const QString suffix = dot > 0 ? name.mid(dot + 1).toLower() : QString();
    const bool isScript = dot <= 0 && firstLine.startsWith(u"#!"_s);
    const auto found = std::ranges::find_if(fileTypes(), [&](const FileType &type) {
        return isScript ? names(firstLine, type.interpreters) : type.suffixes.contains(suffix);
    });
    return found == fileTypes().end() ? nullptr : &*found;
}

QByteArray patternsOf(const FileType &type)
{
    QByteArray patterns;
    for (const QString &package : type.packages) {
        QFile file(u":/grammars/%1/queries/highlights.scm"_s.arg(package));
        if (file.open(QFile::ReadOnly))
            patterns += file.readAll() + '\n';
    }
    return patterns;
}

/// The role that this name or one that it belongs to stands for: that of "string" for "string.special".
std::optional<Grammar::Role> roleNamed(const QByteArray &name)
{
    static const QHash<QByteArray, Grammar::Role> roles{
        {"attribute", Grammar::Constant},
        {"boolean", Grammar::Constant},
        {"comment", Grammar::Comment},
        {"constant", Grammar::Constant},
        {"constructor", Grammar::Name},
        {"embedded", Grammar::Plain},
        {"escape", Grammar::Constant},
        {"function", Grammar::Name},
        {"keyword", Grammar::Keyword},
        {"label", Grammar::Constant},
        {"number", Grammar::Constant},
        {"operator", Grammar::Keyword},
        {"property", Grammar::Name},
        {"string", Grammar::String},
        {"string.special.key", Grammar::Name},
        {"tag", Grammar::Name},
        {"type", Grammar::Name},
        {"variable.builtin", Grammar::Constant},
    };
    for (QByteArray part = name; !part.isEmpty();
         part.truncate(std::max<qsizetype>(0, part.lastIndexOf('.')))) {
        if (const auto found = roles.constFind(part); found != roles.cend())
            return *found;
    }
    return {};
}

bool holdsLetter(const char *text)
{
    return std::ranges::any_of(std::string_view(text),
                               [](char c) { return QChar::fromLatin1(c).isLetter(); });
}

} // namespace

const Grammar *Grammar::of(const QString &path, const QString &firstLine)
{
    static std::map<const FileType *, Grammar> made;
    const FileType *type = typeOf(path, firstLine);
    if (type == nullptr)
        return nullptr;
    auto found = made.find(type);
    if (found == made.end())
        found = made.try_emplace(type, type->language(), patternsOf(*type)).first;
    return found->second.isUsable() ? &found->second : nullptr;
}

Grammar::Grammar(const TSLanguage *language, const QByteArray &patterns) : m_language(language)
{
    const uint32_t version = ts_language_version(language);
    if (version < TREE_SITTER_MIN_COMPATIBLE_LANGUAGE_VERSION || version > TREE_SITTER_LANGUAGE_VERSION)
        return;
    uint32_t position = 0;
    TSQueryError error{};
    m_query.reset(ts_query_new(language, patterns.constData(), static_cast<uint32_t>(patterns.size()),
                               &position, &error));
    if (m_query == nullptr)
        return;
    for (uint32_t pattern = 0; pattern < ts_query_pattern_count(query()); ++pattern) {
        uint32_t conditions = 0;
        ts_query_predicates_for_pattern(query(), pattern, &conditions);
        if (conditions > 0) // which would have to be judged here
            ts_query_disable_pattern(m_query.get(), pattern);
    }
    for (uint32_t name = 0; name < ts_query_capture_count(query()); ++name) {
        uint32_t length = 0;
        const char *text = ts_query_capture_name_for_id(query(), name, &length);
        m_roles.append(roleNamed(QByteArray(text, length)));
    }
}

std::optional<Grammar::Role> Grammar::role(const TSQueryCapture &part) const
{
    const std::optional<Role> role = m_roles.at(part.index);
    const bool isSign = role == Keyword && !holdsLetter(ts_node_type(part.node)); // an operator such as "+"
    const bool isLarger =
        role == Name && ts_node_named_child_count(part.node) > 1; // it only begins with a name
    return isSign || isLarger ? std::nullopt : role;
}

} // namespace vornel
