#pragma once

#include <VORNELInfrastructure/Disk/FileSystem.h>

#include <filesystem>
#include <map>
#include <set>
#include <string>

namespace vornel {

/// Sees whatever happens to a folder and to all that is below it, be it only opened.
class OutsideWatch
{
public:
    explicit OutsideWatch(std::filesystem::path folder);

    /// What was done there since the last call, a text for each event: "opened SKILL.md".
    std::set<std::string> events();

    /// Whether everything is what it was at the beginning: names, bytes, permissions, times. Looking is an
    /// event.
    bool isUnchanged() const;

private:
    /// What is there, each entry with its status and bytes.
    std::map<std::string, std::string> listing() const;

    std::filesystem::path m_folder;
    std::map<std::string, std::string> m_before;
    Descriptor m_inotify;
    std::map<int, std::string> m_names; ///< of what is watched, by the number of the watch
};

} // namespace vornel
