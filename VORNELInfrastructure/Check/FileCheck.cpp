#include "FileCheck.h"

#include "MarkdownLinks.h"

#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELCore/Text/IsText.h>

#include <QDir>
#include <QRegularExpression>

#include <algorithm>
#include <cstdint>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// The largest file that is looked into: 1 MiB.
constexpr std::int64_t largestText = 1'048'576;

/// The program that runs a script, "python3" for "#!/usr/bin/env python3"; empty for any other file.
QString interpreter(const QByteArray &bytes)
{
    static const QRegularExpression firstLine(
        uR"(\A#!(?!\[) *(?:\S*/)?(?:env +(?:-\S+ +)*)?(?:\S*/)?([\w.+-]+))"_s);
    constexpr qsizetype longest = 200;
    return firstLine.match(QString::fromUtf8(bytes.first(std::min(bytes.size(), longest)))).captured(1);
}

QString folderOf(const QString &path)
{
    return path.first(path.lastIndexOf(u'/') + 1);
}

bool isMarkdown(const QString &path)
{
    return path.endsWith(u".md"_s, Qt::CaseInsensitive) || path.endsWith(u".markdown"_s, Qt::CaseInsensitive);
}

} // namespace

FileCheck::FileCheck(const SkillFolderStore &store, const FileTreeSnapshot &tree, const QString &text)
    : m_store(store), m_tree(tree), m_text(text.toUtf8()), m_paths{u"."_s}, m_mentions(tree)
{
    for (const FileTreeSnapshot::Entry &entry : tree.entries)
        m_paths.insert(QString::fromStdString(entry.relativePath));
}

QList<SkillProblem> FileCheck::run()
{
    for (const FileTreeSnapshot::Entry &entry : m_tree.entries) {
        const QString path = QString::fromStdString(entry.relativePath);
        if (entry.kind == FileTreeSnapshot::Entry::Kind::file && entry.size <= largestText)
            check(path, bytesOf(path));
    }
    for (const QString &path : m_mentions.unmentioned())
        add(ProblemSeverity::hint, u"file-unmentioned"_s, path, 0,
            u"Aucun autre fichier de la compétence ne mentionne celui-ci, et un assistant ne saura pas qu’il "
            u"est là. "
            "Nommez-le dans SKILL.md, ou supprimez-le."_s);
    return m_problems;
}

QByteArray FileCheck::bytesOf(const QString &path) const
{
    if (path == QLatin1StringView(SkillFiles::text))
        return m_text;
    return m_store.fileBytes(m_tree.root, path).value_or(QByteArray());
}

void FileCheck::check(const QString &path, const QByteArray &bytes)
{
    if (const QString program = interpreter(bytes); !program.isEmpty())
        add(ProblemSeverity::hint, u"script-not-executable"_s, path, 1,
            u"Les copies que VORNEL installe n’ont pas le droit d’exécution. Dites dans SKILL.md de lancer "
            u"ce script "
            "par «\u00A0"_s +
                program + u' ' + path + u"\u00A0»."_s);
    if (!isText(bytes))
        return;
    m_mentions.read(path, QString::fromUtf8(bytes));
    if (isMarkdown(path))
        checkLinks(path, bytes);
}

void FileCheck::checkLinks(const QString &path, const QByteArray &text)
{
    for (const MarkdownLink &link : markdownLinks(text)) {
        const QString fromFile = QDir::cleanPath(folderOf(path) + link.path);
        const QString fromTop = QDir::cleanPath(link.path);
        if (fromFile == u".."_s || fromFile.startsWith(u"../"_s))
            continue;
        if (m_paths.contains(fromFile) || m_paths.contains(fromTop))
            m_mentions.read(path, link.path);
        else
            add(ProblemSeverity::error, u"link-broken"_s, path, link.line,
                u"Le lien mène à «\u00A0"_s + fromFile +
                    u"\u00A0», que la compétence ne contient pas. Corrigez son chemin, ou ajoutez le fichier."_s);
    }
}

void FileCheck::add(ProblemSeverity severity, const QString &rule, const QString &path, qint64 line,
                    const QString &message)
{
    m_problems.append({.rule = rule, .severity = severity, .path = path, .line = line, .message = message});
}

} // namespace vornel
