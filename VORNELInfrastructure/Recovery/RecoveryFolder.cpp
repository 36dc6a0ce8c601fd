#include "RecoveryFolder.h"

#include "SetAsideName.h"

#include <VORNELCore/Errors/ErrorMessage.h>
#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Skills/SkillFolderStore.h>
#include <VORNELInfrastructure/Targets/TargetOccupancy.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>
#include <VORNELInfrastructure/Tree/TreeDifferences.h>
#include <VORNELInfrastructure/Tree/TreeWalk.h>
#include <VORNELInfrastructure/Workspace/CrashRecovery.h>
#include <VORNELInfrastructure/Workspace/UnfinishedParts.h>

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// For a walk that only looks whether a tree is safe.
struct NoSink
{
    struct Folder
    {};
    static Folder addFolder(const Folder & /*parent*/, const std::string & /*name*/) { return {}; }
    static void addFile(const Folder & /*parent*/, const std::string & /*name*/, const File & /*file*/,
                        const FileTreeSnapshot::Entry & /*entry*/)
    {}
};

QString idOf(const FolderEntry &entry)
{
    return QString::fromStdString(entry.name);
}

/// Counts all that is below a folder, hidden entries too, and passes over what can't be opened. No link is
/// followed.
void measure(const FileSystem &files, const Folder &folder, SetAsideCopy &copy, int level = 1)
{
    constexpr int deepestLevel = 100; // every open level costs a descriptor
    for (const FolderEntry &entry : files.list(folder)) {
        if (entry.kind != FileKind::Directory)
            copy.fileCount += 1;
        bestEffort([&] {
            if (entry.kind == FileKind::Regular)
                copy.size += files.openFile(folder, entry.name).size();
            else if (entry.kind == FileKind::Directory && level < deepestLevel)
                measure(files, files.openFolder(folder, entry.name), copy, level + 1);
        });
    }
}

} // namespace

QList<SetAsideCopy> RecoveryFolder::list() const
{
    const auto copies = parallelMap(entries(), [this](const FolderEntry &entry) { return look(entry); });
    QList<SetAsideCopy> sorted(copies.begin(), copies.end());
    std::ranges::sort(sorted, [](const SetAsideCopy &a, const SetAsideCopy &b) {
        return a.date != b.date ? a.date > b.date : a.id < b.id;
    });
    return sorted;
}

std::vector<FolderEntry> RecoveryFolder::entries() const
{
    const FileSystem &files = m_workspace.files;
    std::vector<FolderEntry> all = files.list(files.openFolder(m_workspace.config.recovery()));
    const std::set<std::string> waiting = backupsToSettle(m_workspace);
    std::erase_if(all, [&waiting](const FolderEntry &entry) {
        return isUnfinished(entry.name) || waiting.contains(entry.name);
    });
    return all;
}

SetAsideCopy RecoveryFolder::look(const FolderEntry &entry) const
{
    const FileSystem &files = m_workspace.files;
    const QString id = idOf(entry);
    const SetAsideName name = SetAsideName::of(id);
    SetAsideCopy copy{.id = id, .slug = name.slug, .origin = name.origin};
    const Folder recovery = files.openFolder(m_workspace.config.recovery());
    copy.date = files.changedAt(recovery, entry.name).value_or(QDateTime());
    copy.reason = refusalOf(entry, copy.shownName());
    bestEffort([&] {
        if (entry.kind == FileKind::Directory)
            measure(files, files.openFolder(recovery, entry.name), copy);
        else if (entry.kind == FileKind::Regular)
            copy.size = files.openFile(recovery, entry.name).size();
    });
    if (entry.kind != FileKind::Directory)
        copy.fileCount = 1;
    return copy;
}

/// Why no skill can be made of it, for the user; empty where one can.
QString RecoveryFolder::refusalOf(const FolderEntry &entry, const QString &slug) const
try {
    if (entry.kind != FileKind::Directory)
        return refusalOfKind(entry.kind);
    const fs::path place = m_workspace.config.recovery() / entry.name;
    TreeWalk walk(m_workspace.files, TreeFilter::excludingManifest, NoSink());
    walk.run(m_workspace.files.openFolder(place), {});
    SkillFolderStore(m_workspace).readSkillMD(place, slug);
    return {};
} catch (const std::exception &error) {
    return errorMessage(error);
}

fs::path RecoveryFolder::place(const QString &id) const
{
    const std::vector<FolderEntry> all = entries();
    const auto found = std::ranges::find(all, id, idOf);
    if (found == all.end())
        throw VORNELWorkspaceError::integrityFailure(
            u"Aucune copie mise de côté ne porte le nom «\u00A0%1\u00A0»."_s.arg(id));
    return m_workspace.config.recovery() / found->name;
}

HistoryComparison RecoveryFolder::compare(const QString &id) const
{
    const FileSystem &files = m_workspace.files;
    const FileTreeSnapshot copy = SecureFileTree::snapshot(files, place(id), TreeFilter::excludingManifest);
    HistoryComparison comparison{.files = copy.relativeFiles()};
    const QString slug = SetAsideName::of(id).slug;
    const fs::path skill = m_workspace.config.canonical(slug);
    if (!slug.isEmpty() && files.kindAt(skill))
        comparison.differences =
            differences(copy, SecureFileTree::snapshot(files, skill, TreeFilter::excludingManifest));
    return comparison;
}

std::optional<QByteArray> RecoveryFolder::readFile(const QString &id, const QString &relativePath) const
{
    return SkillFolderStore(m_workspace).fileBytes(place(id), relativePath);
}

void RecoveryFolder::remove(const QStringList &ids) const
{
    for (const FolderEntry &entry : entries()) {
        if (ids.contains(idOf(entry)))
            SkillFolderStore(m_workspace).discard(m_workspace.config.recovery() / entry.name);
    }
}

} // namespace vornel
