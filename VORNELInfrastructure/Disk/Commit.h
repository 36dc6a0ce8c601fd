#pragma once

#include "Stage.h"
#include "TreeOperations.h"

#include <exception>
#include <map>
#include <vector>

namespace vornel {

/// Where a staged folder goes, and what becomes of the folder that stands there.
struct CommitPlace
{
    std::filesystem::path path;

    /// Where the former folder goes first on a volume that can't exchange two folders; without it, nothing
    /// may stand at `path`.
    std::filesystem::path backup = {};

    /// Where the former folder is kept for good; without it, the caller removes the folder. It is on the disk
    /// here, or at the backup, before it leaves `path`.
    std::filesystem::path keptAs = {};
};

/// A folder in the making, and where it goes.
struct StagedFolder
{
    Stage stage;
    const CommitPlace destination;
};

/// What became of a staged folder.
struct CommitResult
{
    /// Where the folder that was replaced stands now, for the caller to remove; empty when there was none, or
    /// it is kept. One that stands on the stage is removed with it at the latest.
    std::filesystem::path former = {};

    std::exception_ptr failure = nullptr; ///< why it isn't in its place
};

/// Puts staged folders into their places, one or many at once: `flush`, then `rename` for each, then
/// `flushNames`. A loss of power between two calls leaves each folder whole, the former or the new one.
class Commit
{
public:
    explicit Commit(FileSystem &files) : m_files(files) {}

    /// Waits until the folders are on the disk with all that they hold. When that fails, each rename fails
    /// for the same reason, and does nothing.
    void flush(const std::vector<std::filesystem::path> &stages);

    /// The same for what is known not to be there yet.
    void flush(const Unflushed &unflushed);

    /// Puts a flushed folder in its place. The folder that it replaces is never missing where the volume can
    /// exchange two folders; elsewhere it is for the moment between two renames.
    CommitResult rename(StagedFolder &folder);

    /// Waits until the new names are on the disk.
    void flushNames() noexcept;

    /// `rename` and `flushNames` for a single folder. Throws its failure; returns where the former folder
    /// stands.
    std::filesystem::path finish(StagedFolder &folder);

private:
    const Folder &opened(const std::filesystem::path &path);

    FileSystem &m_files;
    std::exception_ptr m_flushFailure;
    std::map<std::filesystem::path, Folder> m_renamedIn; ///< the folders whose names have changed
};

/// Flushes one folder, or what is known not to be on the disk of it, and finishes it.
std::filesystem::path commit(FileSystem &files, StagedFolder &folder);
std::filesystem::path commit(FileSystem &files, StagedFolder &folder, const Unflushed &unflushed);

} // namespace vornel
