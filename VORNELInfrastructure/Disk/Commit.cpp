#include "Commit.h"

#include "BestEffort.h"
#include "FileOperations.h"

#include <ranges>
#include <system_error>

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// The renames that bring one staged folder to its destination. What returns a path returns where the former
/// folder stands then, for the caller to remove.
class StagedRename
{
public:
    StagedRename(FileSystem &files, StagedFolder &folder, const Folder &staging, const Folder &parent)
        : m_files(files),
          m_stage(folder.stage),
          m_destination(folder.destination),
          m_staging(staging),
          m_parent(parent)
    {}

    fs::path run()
    try {
        fs::path former = renameFrom({m_staging, m_stage.path().filename()});
        if (former != m_stage.path())
            m_stage.release();
        return former;
    } catch (const fs::filesystem_error &error) {
        if (error.code() != std::errc::cross_device_link)
            throw;
        return renameCopy();
    }

private:
    fs::path renameFrom(const Place &staged)
    {
        const Place destination{m_parent, m_destination.path.filename()};
        if (m_destination.backup.empty()) {
            m_files.rename(staged, destination, RenameMode::ToFreePlace);
            return {};
        }
        if (m_destination.keptAs.empty())
            return replace(staged, destination);
        const bool isAcross = &staged.folder == &m_parent;
        return isAcross || sharesFiles(m_files, destination) ? replaceAndKeepCopy(staged, destination)
                                                             : replaceAndKeep(staged, destination);
    }

    /// The destination is on another volume than the stage.
    fs::path renameCopy()
    {
        const Place staged{m_staging, m_stage.path().filename()};
        const Place copy{m_parent, copyToVolume(m_files, staged, m_parent)};
        try {
            return renameFrom(copy);
        } catch (...) {
            bestEffort([&] { removeTree(m_files, copy); });
            throw;
        }
    }

    /// Returns false where the volume can't exchange two folders.
    bool exchanged(const Place &staged, const Place &destination)
    try {
        m_files.rename(staged, destination, RenameMode::Exchange);
        return true;
    } catch (const fs::filesystem_error &error) {
        // In the lower layer of an overlay, a folder is as if on another volume than its own parent.
        const bool isOfAnotherLayer =
            error.code() == std::errc::cross_device_link && &staged.folder == &destination.folder;
        if (error.code() != std::errc::operation_not_supported && !isOfAnotherLayer)
            throw;
        return false;
    }

    fs::path replace(const Place &staged, const Place &destination)
    {
        if (exchanged(staged, destination))
            return fs::path(staged.folder.path) / staged.name;
        replaceInTwoSteps(staged, destination, m_destination.backup);
        return m_destination.backup;
    }

    /// The staged folder goes to where the former one is to be kept, and then the two are exchanged.
    fs::path replaceAndKeep(const Place &staged, const Place &destination)
    {
        const Folder self = m_files.openFolder(staged.folder, staged.name);
        const Folder keptIn = m_files.openFolder(m_destination.keptAs.parent_path());
        const Place kept{keptIn, m_destination.keptAs.filename()};
        bool isExchanged = false;
        try {
            m_files.rename(staged, kept, RenameMode::ToFreePlace);
            flushNames(m_files, keptIn);
            flushNames(m_files, staged.folder);
            isExchanged = exchanged(kept, destination);
            if (!isExchanged)
                m_files.rename(kept, staged, RenameMode::ToFreePlace);
        } catch (...) {
            // A disk may report an exchange as failed that it has done: then the former folder is kept here.
            if (m_files.isAt(self, kept))
                m_files.rename(kept, staged, RenameMode::ToFreePlace);
            throw;
        }
        if (!isExchanged)
            replaceInTwoStepsAndKeep(staged, destination);
        flushNames(m_files, keptIn);
        return {};
    }

    /// From another volume the former folder can't be moved in one step, and a file with further names could
    /// still be changed by one of them.
    fs::path replaceAndKeepCopy(const Place &staged, const Place &destination)
    {
        const Folder former = m_files.openFolder(destination.folder, destination.name);
        const Place copy{m_staging, copyToVolume(m_files, destination, m_staging)};
        const Folder keptIn = m_files.openFolder(m_destination.keptAs.parent_path());
        const Place kept{keptIn, m_destination.keptAs.filename()};
        m_files.rename(copy, kept, RenameMode::ToFreePlace);
        flushNames(m_files, keptIn);
        try {
            if (exchanged(staged, destination))
                return fs::path(staged.folder.path) / staged.name;
        } catch (...) {
            bestEffort([&] {
                if (m_files.isAt(former, destination))
                    moveTree(m_files, m_destination.keptAs, fs::path(m_staging.path) / copy.name);
            });
            bestEffort([&] { removeTree(m_files, copy); });
            throw;
        }
        const bool isKeptAsBackup = m_destination.backup == m_destination.keptAs;
        fs::path aside = isKeptAsBackup ? fs::path(m_staging.path) / temporaryName() : m_destination.backup;
        replaceInTwoSteps(staged, destination, aside);
        return aside;
    }

    void replaceInTwoStepsAndKeep(const Place &staged, const Place &destination)
    {
        replaceInTwoSteps(staged, destination, m_destination.backup);
        if (m_destination.backup != m_destination.keptAs)
            moveTree(m_files, m_destination.backup, m_destination.keptAs);
    }

    void replaceInTwoSteps(const Place &staged, const Place &destination, const fs::path &backup)
    {
        // A copy from another volume is made in the staging folder: the next start removes what is cut short.
        moveTree(m_files, m_destination.path, backup, &m_staging);
        try {
            m_files.rename(staged, destination, RenameMode::ToFreePlace);
        } catch (...) {
            bestEffort([&] { moveTree(m_files, backup, m_destination.path); });
            throw;
        }
    }

    FileSystem &m_files;
    Stage &m_stage;
    const CommitPlace &m_destination;
    const Folder &m_staging;
    const Folder &m_parent;
};

} // namespace

void Commit::flush(const std::vector<fs::path> &stages)
{
    m_flushFailure = failureOf([&] { flushTrees(m_files, stages); });
}

void Commit::flush(const Unflushed &unflushed)
{
    m_flushFailure = failureOf([&] { vornel::flush(m_files, unflushed); });
}

CommitResult Commit::rename(StagedFolder &folder)
{
    if (m_flushFailure)
        return {.failure = m_flushFailure};
    CommitResult result;
    result.failure = failureOf([&] {
        const Folder &staging = opened(folder.stage.path().parent_path());
        const Folder &parent = opened(folder.destination.path.parent_path());
        result.former = StagedRename(m_files, folder, staging, parent).run();
    });
    return result;
}

const Folder &Commit::opened(const fs::path &path)
{
    const auto known = m_renamedIn.find(path);
    return known != m_renamedIn.end() ? known->second
                                      : m_renamedIn.emplace(path, m_files.openFolder(path)).first->second;
}

fs::path Commit::finish(StagedFolder &folder)
{
    CommitResult result = rename(folder);
    flushNames();
    if (result.failure)
        std::rethrow_exception(result.failure);
    return std::move(result.former);
}

void Commit::flushNames() noexcept
{
    for (const Folder &folder : m_renamedIn | std::views::values)
        vornel::flushNames(m_files, folder);
    m_renamedIn.clear();
}

fs::path commit(FileSystem &files, StagedFolder &folder)
{
    Commit one(files);
    one.flush(std::vector{folder.stage.path()});
    return one.finish(folder);
}

fs::path commit(FileSystem &files, StagedFolder &folder, const Unflushed &unflushed)
{
    Commit one(files);
    one.flush(unflushed);
    return one.finish(folder);
}

} // namespace vornel
