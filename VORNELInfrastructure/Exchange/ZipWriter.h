#pragma once

#include <VORNELInfrastructure/Disk/FileSystem.h>

#include <sys/types.h>

#include <exception>
#include <memory>

struct archive;

namespace vornel {

/// Writes a zip into an empty file. What is added depends on nothing but names and bytes: times and owners
/// are left out, permissions are the usual ones. Names are UTF-8. Throws what writing the file throws, and
/// `integrityFailure`.
class ZipWriter
{
public:
    ZipWriter(FileSystem &files, const File &file);
    ~ZipWriter() = default;
    Q_DISABLE_COPY_MOVE(ZipWriter)

    void addFolder(const std::string &path);
    void addFile(const std::string &path, QByteArrayView bytes);

    /// Writes what is left. Without it the zip can't be read.
    void finish();

    /// The bytes that are written so far.
    std::int64_t size() const { return m_size; }

private:
    struct Free
    {
        void operator()(archive *archive) const;
    };

    static ssize_t writeTo(archive *archive, void *writer, const void *bytes, std::size_t count);
    void require(ssize_t result) const;

    FileSystem &m_files;
    const File &m_file;
    std::int64_t m_size = 0;
    std::exception_ptr m_failure;
    std::unique_ptr<archive, Free> m_archive; // last: it may write at its end
};

} // namespace vornel
