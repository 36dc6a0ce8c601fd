#pragma once

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELInfrastructure/Disk/PosixFileSystem.h>
#include <VORNELInfrastructure/Workspace/LocalWorkspaceService.h>

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>
#include <ostream>
#include <string>

void PrintTo(const QString &text, std::ostream *stream);

namespace vornel {

namespace fs = std::filesystem;
using Error = VORNELWorkspaceError;

/// Everything below a folder: every file with its bytes, by path; folders end in "/".
using Tree = std::map<std::string, std::string>;

Tree treeOf(const fs::path &folder);

/// A temporary folder, removed at the end.
class Scratch
{
public:
    Scratch();

    fs::path path(const std::string &below = {}) const;

    /// Writes a file with the folders above it, and returns its place.
    fs::path write(const std::string &below, const std::string &bytes) const;

    /// The names in a folder, sorted.
    std::vector<std::string> names(const std::string &below) const;

    Tree tree(const std::string &below) const { return treeOf(path(below)); }

    /// The trees of those folders in `below` whose names begin with `prefix`.
    std::vector<Tree> trees(const std::string &below, const std::string &prefix) const;

private:
    QTemporaryDir m_folder;
};

/// Holds a workspace locked, as another program that writes or reads would: operations wait for as long as it
/// lives.
class WorkspaceHold
{
public:
    explicit WorkspaceHold(const fs::path &workspace, LockMode mode = LockMode::Exclusive);
    ~WorkspaceHold();
    WorkspaceHold(const WorkspaceHold &) = delete;
    WorkspaceHold &operator=(const WorkspaceHold &) = delete;

private:
    int m_lock;
};

/// A request for a skill of this slug, which is its name too; without a text it gets the default one.
CreateSkillRequest requestFor(const QString &slug, const QString &category = SkillCategory::otherID,
                              const std::optional<QString> &text = std::nullopt);

/// Writes a file with the folders above it.
void writeFile(const fs::path &file, const std::string &bytes);

std::string bytesOf(const fs::path &file);
int permissionsOf(const fs::path &path);

/// The three roots in a scratch folder, and a bootstrapped service on them.
struct TestWorkspace : Scratch
{
    explicit TestWorkspace(std::shared_ptr<FileSystem> files = std::make_shared<PosixFileSystem>());

    WorkspaceOverview bootstrap();

    /// Forgets everything in memory, as a new process would.
    void restart();

    /// A skill with the text "texte".
    SkillDetail create(const QString &slug, const QString &text = QStringLiteral("texte"));

    SyncState stateOf(const QString &slug);

    std::shared_ptr<FileSystem> manager;
    std::unique_ptr<LocalWorkspaceService> service;
};

/// The error that `action` throws; a failure of the test when it throws none, or another.
template <typename Action>
std::optional<VORNELWorkspaceError> errorOf(const Action &action)
{
    try {
        action();
    } catch (const VORNELWorkspaceError &error) {
        return error;
    } catch (const std::exception &error) {
        ADD_FAILURE() << "another exception: " << error.what();
        return std::nullopt;
    }
    ADD_FAILURE() << "no exception";
    return std::nullopt;
}

inline VORNELWorkspaceError integrity(const QString &reason)
{
    return VORNELWorkspaceError::integrityFailure(reason);
}

} // namespace vornel
