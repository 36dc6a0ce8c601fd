#pragma once

#include "FileSystem.h"

namespace vornel {

/// A path of its own in the staging folder, where a folder is made before it takes its place. What is left
/// there at the end is removed: otherwise it would take up room until the next start.
class Stage
{
public:
    /// Only chooses the path; nothing is created.
    Stage(FileSystem &files, const std::filesystem::path &staging);
    Stage(Stage &&other) noexcept
        : m_files(std::exchange(other.m_files, nullptr)), m_path(std::move(other.m_path))
    {}
    Stage &operator=(Stage &&) = delete;
    Stage(const Stage &) = delete;
    Stage &operator=(const Stage &) = delete;
    ~Stage();

    const std::filesystem::path &path() const { return m_path; }

    /// To be called once the folder has left the stage: nothing is removed then.
    void release() { m_files = nullptr; }

private:
    FileSystem *m_files;
    std::filesystem::path m_path;
};

} // namespace vornel
