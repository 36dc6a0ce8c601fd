#pragma once

#include "FileDigests.h"
#include "FileTreeSnapshot.h"
#include "NaturalOrder.h"
#include "ParallelMap.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Disk/FileSystem.h>

#include <algorithm>

namespace vornel {

/// Goes through a tree, refuses what is unsafe, and hands the rest to a sink:
/// - `Sink::Folder` is what the sink makes of a folder of the tree, its counterpart;
/// - `addFolder(parent, name)` returns the counterpart of a folder, given that of its parent;
/// - `addFile(parent, name, file, entry)` reads a file, and fills in the size and digest of its entry. Large
///   files of one folder are added by several threads at once.
template <typename Sink>
class TreeWalk
{
public:
    /// The sink adds no file whose digest is known.
    TreeWalk(const FileSystem &files, TreeFilter filter, Sink sink, FileDigests *known = nullptr)
        : m_files(files), m_filter(filter), m_sink(sink), m_known(known)
    {}

    /// Goes through `root`, of which the sink has made `counterpart`.
    void run(const Folder &root, const typename Sink::Folder &counterpart) { visit({root, counterpart}); }

    FileTreeSnapshot finish(const std::filesystem::path &root)
    {
        std::ranges::sort(m_entries, {}, &Entry::relativePath);
        std::string digest = FileTreeSnapshot::digestOf(m_entries);
        return {root, std::move(m_entries), std::move(digest), m_isWhole};
    }

private:
    using Entry = FileTreeSnapshot::Entry;

    /// From this size on, the files of a folder are read side by side.
    static constexpr std::int64_t largeFile = 1'048'576;

    /// A folder that the walk has come to.
    struct Level
    {
        const Folder &folder;
        const typename Sink::Folder &counterpart;
        std::string prefix = {};
        int depth = 1;
    };

    /// Appends all that is below a folder: its entries by name, each with what it holds before the next.
    /// Large files come last, side by side; of several errors, that of the first entry is thrown all the
    /// same.
    void visit(const Level &level)
    {
        if (level.depth > SkillFiles::deepestLevel)
            throw unsafe(level.prefix.substr(0, level.prefix.size() - 1));

        std::vector<FolderEntry> children = m_files.list(level.folder);
        std::ranges::sort(children, naturallyBefore, &FolderEntry::name);
        std::vector<std::string> large;
        const std::exception_ptr failure = failureOf([&] {
            for (const FolderEntry &child : children)
                add(level, child, large);
        });
        addLargeFiles(level, large);
        if (failure)
            std::rethrow_exception(failure);
    }

    /// Whether the walk takes this child; throws when the child makes the whole tree unsafe. Only the name is
    /// looked at, as the folders above have passed the same checks.
    bool accepts(const FolderEntry &child, const std::string &prefix) const
    {
        WorkspaceValidation::validateRelativePath(child.name);
        if (child.kind == FileKind::SymbolicLink)
            throw link(prefix + child.name);
        if (!includes(m_filter, child.name))
            return false;
        if (child.kind == FileKind::Other || !QByteArrayView(child.name).isValidUtf8())
            throw unsafe(prefix + child.name);
        return true;
    }

    /// Appends an entry, or notes it among the large files, which come later.
    void add(const Level &level, const FolderEntry &child, std::vector<std::string> &large)
    {
        if (!accepts(child, level.prefix)) {
            m_isWhole = false;
        } else if (child.kind == FileKind::Directory) {
            addFolder(level, child.name);
        } else if (std::optional<Entry> known = knownEntry(level, child.name)) {
            m_entries.push_back(std::move(*known));
        } else {
            const File file = openFile(level, child.name);
            if (file.size() >= largeFile)
                large.push_back(child.name);
            else
                m_entries.push_back(fileEntry(level, child.name, file));
        }
    }

    void addFolder(const Level &level, const std::string &name)
    {
        const std::string path = level.prefix + name;
        m_entries.push_back({path, Entry::Kind::directory, 0, std::nullopt});
        const Folder folder = openedInTree(path, [&] { return m_files.openFolder(level.folder, name); });
        const typename Sink::Folder counterpart = m_sink.addFolder(level.counterpart, name);
        visit({folder, counterpart, path + '/', level.depth + 1});
    }

    void addLargeFiles(const Level &level, const std::vector<std::string> &large)
    {
        const auto entries = parallelMap(
            large, [&](const std::string &name) { return fileEntry(level, name, openFile(level, name)); });
        m_entries.insert(m_entries.end(), entries.begin(), entries.end());
    }

    Entry fileEntry(const Level &level, const std::string &name, const File &file)
    {
        Entry entry = emptyEntry(level, name, file.status);
        m_sink.addFile(level.counterpart, name, file, entry);
        if (m_known != nullptr && entry.fileDigest && entry.size == file.size())
            m_known->remember(file.status, *entry.fileDigest);
        return entry;
    }

    std::optional<Entry> knownEntry(const Level &level, const std::string &name) const
    {
        const auto status = m_known != nullptr ? m_files.statusOf(level.folder, name) : std::nullopt;
        if (!status)
            return std::nullopt;
        Entry entry = emptyEntry(level, name, *status);
        entry.size = status->size;
        entry.fileDigest = m_known->find(*status);
        return entry.fileDigest ? std::optional(std::move(entry)) : std::nullopt;
    }

    static Entry emptyEntry(const Level &level, const std::string &name, const EntryStatus &status)
    {
        const auto modified = std::chrono::floor<std::chrono::seconds>(status.modified);
        return {level.prefix + name, Entry::Kind::file, 0, std::nullopt, modified.count(), status.names};
    }

    File openFile(const Level &level, const std::string &name) const
    {
        const std::string path = level.prefix + name;
        File file = openedInTree(path, [&] { return m_files.openFile(level.folder, name); });
        if (file.size() > SkillFiles::sizeLimit)
            throw unsafe(path);
        return file;
    }

    /// Runs `open`; an entry that became a link since it was listed is reported by its path in the tree.
    template <typename Open>
    static auto openedInTree(const std::string &relativePath, const Open &open)
    try {
        return open();
    } catch (const VORNELWorkspaceError &error) {
        if (error.as<WorkspaceErrorCase::SymlinkUnsupported>() != nullptr)
            throw link(relativePath);
        throw;
    }

    static VORNELWorkspaceError unsafe(const std::string &relativePath)
    {
        return VORNELWorkspaceError::unsafeImport(QString::fromStdString(relativePath));
    }

    static VORNELWorkspaceError link(const std::string &relativePath)
    {
        return VORNELWorkspaceError::symlinkUnsupported(QString::fromStdString(relativePath));
    }

    const FileSystem &m_files;
    TreeFilter m_filter;
    Sink m_sink;
    FileDigests *m_known;
    std::vector<Entry> m_entries;
    bool m_isWhole = true;
};

} // namespace vornel
