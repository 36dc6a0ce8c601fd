#pragma once

#include <VORNELInfrastructure/Disk/FileSystem.h>

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <string>

namespace vornel {

/// The digests of files that were read before, so that a file that has not changed need not be read again.
/// A file is known by its number, size and times. A change is missed where it comes within the operation that
/// reads the file, as one would be that comes just after, and leaves the size and the time as they were. May
/// be used from several threads.
class FileDigests
{
public:
    /// To be called when an operation begins. Within it, a file may be given further names, or lose some,
    /// which changes the same time as a change of its bytes does.
    void beginOperation();

    std::optional<std::string> find(const EntryStatus &file);

    /// Takes note of a file that the operation itself has given a further name.
    void follow(const EntryStatus &file) { find(file); }

    /// Remembers a digest of bytes that were read after this was true of the file.
    void remember(const EntryStatus &file, const std::string &digest);

private:
    struct Known
    {
        std::string digest;
        EntryStatus file;
        std::uint64_t operation;
        bool isSettled; ///< whether any later change would show
    };

    std::mutex m_mutex;
    std::map<std::pair<std::uint64_t, std::uint64_t>, Known> m_known; ///< by volume and number of the file
    std::uint64_t m_operation = 0;
};

} // namespace vornel
