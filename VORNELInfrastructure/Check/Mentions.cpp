#include "Mentions.h"

#include <VORNELCore/Records/SkillFiles.h>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

using Words = std::set<QString, std::less<>>;

bool isOfAPath(QChar c)
{
    return c.isLetterOrNumber() || c.isMark() || c.isSurrogate() || u"._-/"_s.contains(c);
}

/// Calls `use` with the last component of each path in a text: "b.md" from "a/b.md.", "a/" from "./a/".
template <typename Use>
void eachName(QStringView text, const Use &use)
{
    for (const QChar *begin = text.begin(); begin != text.end();) {
        begin = std::find_if(begin, text.end(), isOfAPath);
        const QChar *end = std::find_if_not(begin, text.end(), isOfAPath);
        QStringView path(begin, end);
        while (path.endsWith(u'.'))
            path.chop(1);
        if (!path.isEmpty())
            use(path.sliced(path.chopped(1).lastIndexOf(u'/') + 1));
        begin = end;
    }
}

/// What has to occur in a text that mentions this name, in which there may be blanks.
Words wordsOf(QStringView name)
{
    Words words;
    eachName(name, [&words](QStringView word) { words.insert(word.toString()); });
    return words;
}

QString nameOf(const QString &path)
{
    return path.sliced(path.lastIndexOf(u'/') + 1);
}

/// What code calls a file of this name, where it is a module: "shapes" for "shapes.py".
QString moduleOf(const QString &name)
{
    static const QStringList endings{u"py"_s, u"js"_s, u"mjs"_s, u"jsx"_s, u"ts"_s, u"tsx"_s};
    const qsizetype end = name.lastIndexOf(u'.');
    return end > 0 && endings.contains(name.sliced(end + 1)) ? name.first(end) : QString();
}

bool isFoundUnasked(const QString &path)
{
    const QString name = nameOf(path);
    return path == QLatin1String(SkillFiles::text) || name.startsWith(u"LICENSE"_s, Qt::CaseInsensitive) ||
           name == u"__init__.py"_s;
}

/// The names of the folders that hold a file, each with a "/".
QStringList foldersOf(const QString &path)
{
    QStringList folders = path.split(u'/');
    folders.removeLast();
    for (QString &folder : folders)
        folder += u'/';
    return folders;
}

/// What may occur in a text that mentions a file: in its own, it doesn't count.
Words namesOf(const QString &path)
{
    Words names = wordsOf(nameOf(path));
    names.insert(moduleOf(nameOf(path)));
    for (const QString &folder : foldersOf(path))
        names.merge(wordsOf(folder));
    return names;
}

} // namespace

Mentions::Mentions(const FileTreeSnapshot &tree) : m_files(tree.relativeFiles())
{
    for (const QString &path : std::as_const(m_files))
        m_wanted.merge(namesOf(path));
}

void Mentions::read(const QString &path, QStringView text)
{
    const Words own = namesOf(path);
    const auto note = [&](QStringView word) {
        const auto wanted = m_wanted.find(word);
        if (wanted != m_wanted.end() && !own.contains(word))
            m_found.insert(*wanted);
    };
    eachName(text, [&note](QStringView name) {
        note(name);
        note(name.sliced(name.lastIndexOf(u'.') + 1)); // "shapes" in "lib.shapes"
    });
}

QStringList Mentions::unmentioned() const
{
    QStringList files = m_files;
    files.removeIf([this](const QString &path) { return isFoundUnasked(path) || isMentioned(path); });
    return files;
}

bool Mentions::isMentioned(const QString &path) const
{
    const QStringList folders = foldersOf(path);
    return hasFound(wordsOf(nameOf(path))) || m_found.contains(moduleOf(nameOf(path))) ||
           std::ranges::any_of(folders, [this](const QString &folder) { return hasFound(wordsOf(folder)); });
}

bool Mentions::hasFound(const Words &words) const
{
    return std::ranges::all_of(words, [this](const QString &word) { return m_found.contains(word); });
}

} // namespace vornel
