#include "Scratch.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <sstream>

void PrintTo(const QString &text, std::ostream *stream)
{
    *stream << '"' << text.toStdString() << '"';
}

namespace vornel {

Tree treeOf(const fs::path &folder)
{
    Tree tree;
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder);
        if (entry.is_directory())
            tree[name + '/'];
        else
            tree[name] = bytesOf(entry.path());
    }
    return tree;
}

Scratch::Scratch()
{
    if (!m_folder.isValid())
        throw std::runtime_error("no temporary folder");
}

fs::path Scratch::path(const std::string &below) const
{
    const fs::path root = pathFromText(m_folder.path());
    return below.empty() ? root : root / below;
}

fs::path Scratch::write(const std::string &below, const std::string &bytes) const
{
    const fs::path file = path(below);
    writeFile(file, bytes);
    return file;
}

std::vector<Tree> Scratch::trees(const std::string &below, const std::string &prefix) const
{
    std::vector<Tree> trees;
    for (const std::string &name : names(below)) {
        if (name.starts_with(prefix))
            trees.push_back(tree(below + '/' + name));
    }
    return trees;
}

std::vector<std::string> Scratch::names(const std::string &below) const
{
    std::vector<std::string> names;
    for (const fs::directory_entry &entry : fs::directory_iterator(path(below)))
        names.push_back(entry.path().filename());
    std::ranges::sort(names);
    return names;
}

WorkspaceHold::WorkspaceHold(const fs::path &workspace, LockMode mode)
    : m_lock(::open((workspace / ".vornel").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    if (m_lock < 0 || ::flock(m_lock, mode == LockMode::Shared ? LOCK_SH : LOCK_EX) != 0)
        throw std::runtime_error("the workspace can't be locked");
}

WorkspaceHold::~WorkspaceHold()
{
    ::close(m_lock);
}

CreateSkillRequest requestFor(const QString &slug, const QString &category,
                              const std::optional<QString> &text)
{
    return {slug, slug, {}, category, {}, Maturity::draft, text};
}

void writeFile(const fs::path &file, const std::string &bytes)
{
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
}

std::string bytesOf(const fs::path &file)
{
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
}

int permissionsOf(const fs::path &path)
{
    struct stat status
    {};
    return ::stat(path.c_str(), &status) == 0 ? static_cast<int>(status.st_mode & 07777) : -1;
}

TestWorkspace::TestWorkspace(std::shared_ptr<FileSystem> files) : manager(std::move(files))
{
    restart();
}

WorkspaceOverview TestWorkspace::bootstrap()
{
    return service->bootstrap(path("workspace"), path("claude"), path("codex")).result();
}

void TestWorkspace::restart()
{
    service = std::make_unique<LocalWorkspaceService>(manager);
    bootstrap();
}

SkillDetail TestWorkspace::create(const QString &slug, const QString &text)
{
    return service->createSkill(requestFor(slug, SkillCategory::otherID, text)).result();
}

SyncState TestWorkspace::stateOf(const QString &slug)
{
    const QList<SkillSummary> skills = service->reload().result().skills;
    const auto found = std::ranges::find(skills, slug, &SkillSummary::slug);
    return found == skills.end() ? SyncState::unknown : found->syncState;
}

} // namespace vornel
