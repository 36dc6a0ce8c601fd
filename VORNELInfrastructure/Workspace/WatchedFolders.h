#pragma once

#include "Configuration.h"

#include <VORNELInfrastructure/Disk/FolderEvents.h>

#include <map>
#include <set>
#include <unordered_map>

namespace vornel {

/// Which folders are watched for an overview: those that hold skills, every skill's, and so many of the
/// folders in it; the catalog and the trash. A folder that holds skills may be missing: then the one above is
/// watched.
class WatchedFolders
{
public:
    explicit WatchedFolders(FolderEvents &events) : m_events(events) {}

    /// Whether an overview may tell something else after this event. Remembers what `follow` has to look at.
    bool concerns(const FolderEvents::Event &event);

    /// Watches the folders that have come, and those that have gone no more; the first time, all. What
    /// happens in a folder before it is watched isn't told, so it is to be read after this.
    void follow(const FileSystem &files, const Configuration &config);

    /// Whether every folder is watched that could be.
    bool isComplete() const { return m_hasAllFolders && !m_events.hasRunOut(); }

private:
    enum class Kind { Above, Bookkeeping, Trash, Root, Skill };

    struct Watched
    {
        Kind kind;
        std::string path; ///< of a folder in a skill, that of the skill
    };

    void followFixed(const FileSystem &files, const Configuration &config);
    void followRoot(const FileSystem &files, const std::string &root);
    void followSkills(const FileSystem &files);
    bool watchRoot(const FileSystem &files, const std::string &root);
    void watchAbove(const FileSystem &files, const std::string &root);
    std::vector<int> watchSkill(const FileSystem &files, const std::string &skill);
    void add(const Folder &folder, Kind kind);
    void forgetAbove();

    FolderEvents &m_events;
    std::unordered_map<int, Watched> m_watches;
    std::map<std::string, std::vector<int>> m_skills; ///< the watches of each skill's folders, by its place
    std::set<std::string> m_missing;                  ///< roots
    std::set<std::string> m_changed;                  ///< roots and skills that `follow` looks at
    bool m_isUnknown = true;                          ///< whether it looks at all of them
    std::atomic<bool> m_hasAllFolders = true;
};

} // namespace vornel
