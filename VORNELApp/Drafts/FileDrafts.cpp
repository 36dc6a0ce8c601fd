#include "FileDrafts.h"

#include <VORNELCore/Text/Digest.h>

#include <algorithm>
#include <utility>

namespace vornel {

namespace {

bool isAtOrBelow(const QString &path, const QString &ancestor)
{
    return path == ancestor || path.startsWith(ancestor + u'/');
}

} // namespace

QStringList FileDrafts::paths() const
{
    QStringList paths;
    for (const UnsavedFile &file : m_edits)
        paths.append(file.path);
    return paths;
}

bool FileDrafts::holds(const QString &path) const
{
    return std::ranges::any_of(m_edits,
                               [&path](const UnsavedFile &file) { return isAtOrBelow(file.path, path); });
}

std::optional<UnsavedFile> FileDrafts::find(const QString &path) const
{
    const qsizetype index = indexOf(path);
    return index < 0 ? std::nullopt : std::optional(m_edits.at(index));
}

std::optional<UnsavedFile> FileDrafts::next(const QSet<QString> &paths) const
{
    const auto isOther = [&paths](const UnsavedFile &file) { return !paths.contains(file.path); };
    const auto found = std::ranges::find_if(m_edits, isOther);
    return found == m_edits.end() ? std::nullopt : std::optional(*found);
}

void FileDrafts::begin(const QList<UnsavedFile> &found)
{
    m_sent.clear();
    m_givenUp.clear();
    m_edits = found;
    Q_EMIT changed();
}

void FileDrafts::edit(const UnsavedFile &file)
{
    const qsizetype index = indexOf(file.path);
    if (index >= 0)
        m_edits[index] = file;
    else
        m_edits.append(file);
    if (index < 0)
        Q_EMIT changed();
    Q_EMIT edited();
}

void FileDrafts::forget(const QString &path)
{
    const qsizetype index = indexOf(path);
    if (index < 0)
        return;
    m_edits.remove(index);
    Q_EMIT changed();
    Q_EMIT edited();
}

void FileDrafts::rebase(const QString &path, const QString &digest)
{
    if (const qsizetype index = indexOf(path); index >= 0) {
        m_edits[index].baseDigest = digest;
        Q_EMIT edited();
    }
}

void FileDrafts::move(const QString &from, const QString &to)
{
    for (UnsavedFile &file : m_edits) {
        if (isAtOrBelow(file.path, from))
            file.path.replace(0, from.size(), to);
    }
    Q_EMIT changed();
    Q_EMIT edited();
}

void FileDrafts::remove(const QString &path)
{
    for (const UnsavedFile &file : m_edits) {
        if (isAtOrBelow(file.path, path))
            m_givenUp.insert(file.path, file.text);
    }
    m_edits.removeIf([&](const UnsavedFile &file) { return isAtOrBelow(file.path, path); });
    Q_EMIT changed();
    Q_EMIT edited();
}

void FileDrafts::discard()
{
    if (m_edits.isEmpty())
        return;
    Q_EMIT discarded();
    for (const UnsavedFile &file : std::exchange(m_edits, {}))
        m_givenUp.insert(file.path, file.text);
    Q_EMIT changed();
    Q_EMIT edited();
}

std::optional<QString> FileDrafts::givenUp(const QString &path) const
{
    const auto text = m_givenUp.constFind(path);
    return text == m_givenUp.cend() ? std::nullopt : std::optional(*text);
}

void FileDrafts::endSaving(bool isSaved)
{
    for (const UnsavedFile &sent : std::exchange(m_sent, {})) {
        if (!isSaved)
            continue;
        rebase(sent.path, sha256Of(sent.text.toUtf8()));
        Q_EMIT saved(sent.path, sent.text);
        if (const auto now = find(sent.path); now && now->text == sent.text)
            forget(sent.path);
    }
}

qsizetype FileDrafts::indexOf(const QString &path) const
{
    const auto found = std::ranges::find(m_edits, path, &UnsavedFile::path);
    return found == m_edits.end() ? -1 : found - m_edits.begin();
}

} // namespace vornel
