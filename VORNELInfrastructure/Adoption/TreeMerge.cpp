#include "TreeMerge.h"

#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELCore/Text/TextMerge.h>
#include <VORNELInfrastructure/Disk/FileOperations.h>

#include <algorithm>

namespace vornel {

namespace {

using Entry = FileTreeSnapshot::Entry;

bool isFile(const Entry *entry)
{
    return entry != nullptr && entry->kind == Entry::Kind::file;
}

bool areAlike(const Entry *a, const Entry *b)
{
    if (a == nullptr || b == nullptr)
        return a == b;
    return a->kind == b->kind && a->fileDigest == b->fileDigest;
}

/// The digest of what a tree holds at and below a path.
std::string digestBelow(const FileTreeSnapshot &tree, const std::string &path)
{
    std::vector<Entry> entries;
    std::ranges::copy_if(tree.entries, std::back_inserter(entries),
                         [&](const Entry &entry) { return isAtOrBelow(entry.relativePath, path); });
    return FileTreeSnapshot::digestOf(entries);
}

} // namespace

TreeMerge::TreeMerge(const FileSystem &files, const FileTreeSnapshot &base, const FileTreeSnapshot &claude,
                     const FileTreeSnapshot &codex, std::set<std::string> unsettled)
    : m_files(files), m_base(base), m_claude(claude), m_codex(codex), m_unsettled(std::move(unsettled))
{
    for (const Entry &entry : base.entries)
        m_paths[entry.relativePath].base = &entry;
    for (const Entry &entry : claude.entries)
        m_paths[entry.relativePath].claude = &entry;
    for (const Entry &entry : codex.entries)
        m_paths[entry.relativePath].codex = &entry;
}

void TreeMerge::run(const QList<MergeSettlement> &settlements)
{
    for (const auto &[path, versions] : m_paths) {
        if (!isDecided(path))
            merge(path, versions, settlements);
    }
}

void TreeMerge::merge(const std::string &path, const Versions &versions,
                      const QList<MergeSettlement> &settlements)
{
    const auto [base, claude, codex] = versions;
    const bool isFolderOnOneSide = claude != nullptr && codex != nullptr && claude->kind != codex->kind;
    if (isFolderOnOneSide) {
        if (!tookWholeFolder(path))
            settle({QString::fromStdString(path), basisOf(path), std::nullopt}, settlements);
        return;
    }
    if (m_unsettled.contains(path)) {
        settle({QString::fromStdString(path), basisOf(path), std::nullopt}, settlements);
    } else if (areAlike(claude, codex) || areAlike(codex, base)) {
        if (claude != nullptr)
            m_tree.take(m_claude, *claude);
    } else if (areAlike(claude, base)) {
        if (codex != nullptr)
            m_tree.take(m_codex, *codex);
    } else if (std::optional<QString> marked; !joinedTexts(path, versions, marked)) {
        settle({QString::fromStdString(path), basisOf(path), marked}, settlements);
    }
}

/// Between a path and those below it, others may come in their order.
bool TreeMerge::isDecided(const std::string &path) const
{
    return std::ranges::any_of(m_decided,
                               [&](const std::string &decided) { return isAtOrBelow(path, decided); });
}

/// Where a file has become a folder, or the reverse, in one copy, and the other has changed nothing of it.
bool TreeMerge::tookWholeFolder(const std::string &path)
{
    const std::string before = digestBelow(m_base, path);
    const bool isOfCodex = digestBelow(m_claude, path) == before;
    if (!isOfCodex && digestBelow(m_codex, path) != before)
        return false;
    m_tree.replace(isOfCodex ? m_codex : m_claude, path);
    m_decided.insert(path);
    return true;
}

/// `marked` becomes the text with the conflicts in it, if it comes to that.
bool TreeMerge::joinedTexts(const std::string &path, const Versions &versions, std::optional<QString> &marked)
{
    if (!isFile(versions.claude) || !isFile(versions.codex))
        return false;
    const auto bytesOf = [this](const FileTreeSnapshot &tree, const Entry *entry) {
        return isFile(entry) ? readFile(m_files, tree.url(*entry), SkillFiles::sizeLimit) : QByteArray();
    };
    const auto merged = mergeTexts(bytesOf(m_base, versions.base), bytesOf(m_claude, versions.claude),
                                   bytesOf(m_codex, versions.codex));
    const bool isTooLarge = merged && merged->isClean && merged->text.size() > SkillFiles::sizeLimit;
    if (!merged || isTooLarge)
        return false;
    if (merged->isClean)
        m_tree.put(path, merged->text);
    else
        marked = textFromUtf8(merged->text);
    return merged->isClean;
}

void TreeMerge::settle(const MergeConflict &conflict, const QList<MergeSettlement> &settlements)
{
    const std::string path = conflict.relativePath.toStdString();
    m_decided.insert(path);
    const auto settlement = std::ranges::find_if(settlements, [&](const MergeSettlement &each) {
        return each.relativePath == conflict.relativePath && each.basis == conflict.basis;
    });
    const auto *content = settlement == settlements.end() ? nullptr : &settlement->content;
    const auto *target = std::get_if<TargetKind>(content);
    const auto *text = std::get_if<QString>(content);
    if (target != nullptr)
        m_tree.replace(*target == TargetKind::claude ? m_claude : m_codex, path);
    else if (text != nullptr && conflict.markedText)
        m_tree.put(path, text->toUtf8());
    else
        m_conflicts.append(conflict);
}

QString TreeMerge::basisOf(const std::string &path) const
{
    return QString::fromStdString(digestBelow(m_base, path) + digestBelow(m_claude, path) +
                                  digestBelow(m_codex, path));
}

} // namespace vornel
