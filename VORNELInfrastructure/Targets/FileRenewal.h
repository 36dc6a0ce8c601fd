#pragma once

#include <VORNELInfrastructure/Disk/FileSystem.h>
#include <VORNELInfrastructure/Tree/FileTreeSnapshot.h>

#include <optional>

namespace vornel {

/// A file of a copy that is replaced in its place, where that makes the whole copy right.
class FileRenewal
{
public:
    /// The renewal that gives a copy, as it was read, this content; nothing where that takes more than one
    /// file at the top of it. Reads the new bytes.
    static std::optional<FileRenewal> between(const FileSystem &files, const FileTreeSnapshot &copy,
                                              const FileTreeSnapshot &content);

    /// Replaces the file in one step; it is on the disk then. Throws `integrityFailure` where the file is no
    /// longer the one that was read.
    void run(FileSystem &files) const;

private:
    FileRenewal(std::filesystem::path path, std::string digest, QByteArray bytes)
        : m_path(std::move(path)), m_formerDigest(std::move(digest)), m_bytes(std::move(bytes))
    {}

    std::filesystem::path m_path;
    std::string m_formerDigest;
    QByteArray m_bytes;
};

} // namespace vornel
