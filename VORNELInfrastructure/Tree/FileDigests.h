#pragma once

#include <VORNELInfrastructure/Disk/FileSystem.h>

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <string>

namespace vornel {

/// The digests of files that were read before, so that a file that has not changed need not be read again.
/// They are known by the stamps of the files: the change of one is missed only within the operation in which
/// it was read, and only where its size and time stay. So what they say must never be a reason to delete
/// anything. May be used from several threads.
class FileDigests
{
public:
    /// To be called when an operation begins. Within it, a file may be given further names, or lose some,
    /// which changes its stamp as a change of its bytes would.
    void beginOperation();

    std::optional<std::string> find(const File &file);

    /// Remembers a digest of bytes that were read after the file had been opened.
    void remember(const File &file, const std::string &digest);

private:
    struct Known
    {
        std::string digest;
        FileStamp stamp;
        std::uint64_t operation;
        bool isSettled; ///< whether any later change would show in the stamp
    };

    std::mutex m_mutex;
    std::map<std::pair<std::uint64_t, std::uint64_t>, Known> m_known; ///< by volume and number of the file
    std::uint64_t m_operation = 0;
};

} // namespace vornel
