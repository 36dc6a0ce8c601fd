#pragma once

#include <VORNELInfrastructure/Disk/FileSystem.h>

#include <map>

namespace vornel {

/// The room on the disk that would be free if all that is added here were gone: a file that also has a name
/// elsewhere takes none.
class DiskUsage
{
public:
    explicit DiskUsage(const FileSystem &files) : m_files(files) {}

    /// Adds a file or a folder, with all that it holds, hidden entries too. Nothing there adds nothing.
    void add(const Place &place);

    std::int64_t bytes() const;

private:
    /// A file with several names.
    struct Shared
    {
        EntryStatus status;
        std::uint64_t found; ///< how many of its names were
    };

    const FileSystem &m_files;
    std::int64_t m_bytes = 0;                 ///< of what has one name
    std::map<std::uint64_t, Shared> m_shared; ///< by their numbers
};

} // namespace vornel
