#pragma once

#include "FileSystem.h"

#include <optional>
#include <string>
#include <utility>

namespace vornel {

/// Finds places by their paths; the folder of the last one stays open for those that follow.
class LastFolder
{
public:
    explicit LastFolder(const FileSystem &files) : m_files(files) {}

    /// The place at an absolute path, good until the next call. Opens the folder that holds it.
    Place placeAt(const std::string &path)
    {
        const std::size_t slash = path.rfind('/');
        const std::string folder = path.substr(0, slash);
        if (!m_folder || m_path != folder)
            keep(folder, m_files.openFolder(folder));
        return {*m_folder, path.substr(slash + 1)};
    }

    /// Takes an open folder for the last one.
    void keep(std::string path, Folder folder)
    {
        m_folder.emplace(std::move(folder));
        m_path = std::move(path);
    }

private:
    const FileSystem &m_files;
    std::string m_path;
    std::optional<Folder> m_folder;
};

} // namespace vornel
