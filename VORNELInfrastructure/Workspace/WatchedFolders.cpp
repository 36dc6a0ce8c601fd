#include "WatchedFolders.h"

#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>
#include <VORNELInfrastructure/Tree/ParallelMap.h>

#include <algorithm>
#include <deque>

namespace vornel {

namespace fs = std::filesystem;
using Interest = FolderEvents::Interest;

namespace {

constexpr std::size_t mostFoldersOfSkill = 17; ///< with its own

bool isVisible(const std::string &name)
{
    return includes(TreeFilter::all, name);
}

bool isVisibleFolder(const FolderEntry &entry)
{
    return entry.kind == FileKind::Directory && isVisible(entry.name);
}

} // namespace

bool WatchedFolders::concerns(const FolderEvents::Event &event)
{
    if (event.watch < 0)
        return m_isUnknown = true;
    const auto found = m_watches.find(event.watch);
    if (found == m_watches.end())
        return false;
    const auto [kind, folder] = found->second;
    if (event.isWatchOver)
        m_watches.erase(found);
    const std::string place = event.name.empty() ? folder : folder + '/' + event.name;
    switch (kind) {
    case Kind::Above:
        return std::ranges::any_of(m_missing, [&](const std::string &root) { return isInside(root, place); });
    case Kind::Bookkeeping:
        return event.name == "categories.json";
    case Kind::Trash:
        return event.isOfFolder;
    case Kind::Root:
    case Kind::Skill:
        if (event.isOfFolder && isVisible(event.name))
            m_changed.insert(kind == Kind::Root ? place : folder);
        return isVisible(event.name);
    }
    return true;
}

void WatchedFolders::follow(const FileSystem &files, const Configuration &config)
{
    const std::vector<std::string> roots{config.skills(), config.claude, config.codex};
    if (std::exchange(m_isUnknown, false)) {
        followFixed(files, config);
        m_changed.insert(roots.begin(), roots.end());
    }
    for (const std::string &root : roots) {
        if (m_changed.erase(root) + m_missing.erase(root) > 0)
            followRoot(files, root);
    }
    if (m_missing.empty())
        forgetAbove();
    followSkills(files);
}

void WatchedFolders::followFixed(const FileSystem &files, const Configuration &config)
{
    bestEffort([&] { add(files.openFolder(config.bookkeeping()), Kind::Bookkeeping); });
    bestEffort([&] { add(files.openFolder(config.trash()), Kind::Trash); });
}

void WatchedFolders::followRoot(const FileSystem &files, const std::string &root)
{
    if (!watchRoot(files, root)) {
        watchAbove(files, root);
        if (!watchRoot(files, root)) // which may have come meanwhile
            m_missing.insert(root);
    }
    for (const auto &[skill, watches] : m_skills) {
        if (skill.starts_with(root + '/'))
            m_changed.insert(skill);
    }
}

/// Tells whether the root could be opened and listed.
bool WatchedFolders::watchRoot(const FileSystem &files, const std::string &root)
try {
    add(files.openFolder(root), Kind::Root);
    for (const FolderEntry &entry : files.list(files.openFolder(root))) {
        if (isVisibleFolder(entry))
            m_changed.insert(root + '/' + entry.name);
    }
    return true;
} catch (const std::exception &) {
    return false;
}

void WatchedFolders::watchAbove(const FileSystem &files, const std::string &root)
{
    bool isFound = false;
    for (fs::path above = root; !isFound && above.has_relative_path();) {
        above = above.parent_path();
        bestEffort([&] { // fails where this is missing, too
            add(files.openAbove(above), Kind::Above);
            isFound = true;
        });
    }
}

void WatchedFolders::add(const Folder &folder, Kind kind)
{
    const Interest interest = kind == Kind::Root ? Interest::Everything : Interest::Names;
    if (const auto watch = m_events.watch(folder, interest))
        m_watches.insert_or_assign(*watch, Watched{kind, folder.path});
}

void WatchedFolders::forgetAbove()
{
    std::erase_if(m_watches, [this](const auto &entry) {
        const bool isAbove = entry.second.kind == Kind::Above;
        if (isAbove)
            m_events.forget(entry.first);
        return isAbove;
    });
}

/// Folders may have changed places: a watch is given up only once every folder has been looked at.
void WatchedFolders::followSkills(const FileSystem &files)
{
    const std::vector<std::string> skills(m_changed.begin(), m_changed.end());
    m_changed.clear();
    const auto found =
        parallelMap(skills, [&](const std::string &skill) { return watchSkill(files, skill); });
    std::vector<std::pair<int, std::string>> former;
    for (std::size_t index = 0; index < skills.size(); ++index) {
        for (const int watch : std::exchange(m_skills[skills[index]], found[index]))
            former.emplace_back(watch, skills[index]);
        for (const int watch : found[index])
            m_watches.insert_or_assign(watch, Watched{Kind::Skill, skills[index]});
        if (found[index].empty())
            m_skills.erase(skills[index]);
    }
    for (const auto &[watch, skill] : former) {
        const auto now = m_skills.find(skill);
        const bool isKept =
            now != m_skills.end() && std::ranges::find(now->second, watch) != now->second.end();
        const auto owner = m_watches.find(watch);
        if (isKept || owner == m_watches.end() || owner->second.path != skill)
            continue;
        m_events.forget(watch);
        m_watches.erase(owner);
    }
}

/// The watches of the skill's folders, those near its own first. What can't be opened is left out: its
/// parent's watch tells when it can be.
std::vector<int> WatchedFolders::watchSkill(const FileSystem &files, const std::string &skill)
{
    std::vector<int> watches;
    std::deque<Folder> found;
    bestEffort([&] { found.push_back(files.openFolder(skill)); });
    for (; !found.empty(); found.pop_front()) {
        bestEffort([&] {
            if (const auto watch = m_events.watch(found.front(), Interest::Everything))
                watches.push_back(*watch);
            for (const FolderEntry &entry : files.list(found.front())) {
                if (!isVisibleFolder(entry))
                    continue;
                if (watches.size() + found.size() > mostFoldersOfSkill)
                    m_hasAllFolders = false;
                else
                    found.push_back(files.openFolder(found.front(), entry.name));
            }
        });
    }
    return watches;
}

} // namespace vornel
