#pragma once

#include "FileSystem.h"

#include <optional>

namespace vornel {

/// Opens folders by their paths; one that is asked for again stays open meanwhile.
class LastFolder
{
public:
    explicit LastFolder(const FileSystem &files) : m_files(files) {}

    const Folder &at(const std::filesystem::path &path)
    {
        if (!m_folder || m_path != path) {
            m_folder.emplace(m_files.openFolder(path));
            m_path = path;
        }
        return *m_folder;
    }

private:
    const FileSystem &m_files;
    std::filesystem::path m_path;
    std::optional<Folder> m_folder;
};

} // namespace vornel
