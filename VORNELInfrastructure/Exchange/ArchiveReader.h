#pragma once

#include <VORNELInfrastructure/Disk/FileSystem.h>

#include <functional>
#include <memory>

struct archive;
struct archive_entry;

namespace vornel {

/// What the head of an archive's entry says of it.
struct ArchiveEntry
{
    std::string name;
    FileKind kind; ///< a link is one of either kind
};

/// Reads a zip, or a tar that may be compressed (gzip, bzip2, xz, zstd), from an open file. Throws
/// `integrityFailure` for whatever is wrong with it.
class ArchiveReader
{
public:
    explicit ArchiveReader(const File &file);

    /// The next entry; nothing at the end.
    std::optional<ArchiveEntry> next();

    /// Hands the bytes of the present entry to `sink`.
    void read(const std::function<void(QByteArrayView)> &sink);

private:
    struct Free
    {
        void operator()(archive *archive) const;
    };

    [[noreturn]] void fail() const;

    std::unique_ptr<archive, Free> m_archive;
};

} // namespace vornel
