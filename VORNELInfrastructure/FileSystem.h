#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QDateTime>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace vornel {

/// What stands at a place. A link is a link, whatever it points to.
enum class FileKind { Regular, Directory, SymbolicLink, Other };

/// Owns a file descriptor, and closes it.
class Descriptor
{
public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    Descriptor(Descriptor &&other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
    Descriptor &operator=(Descriptor &&other) noexcept
    {
        std::swap(m_fd, other.m_fd);
        return *this;
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor();

    int fd() const { return m_fd; }

private:
    int m_fd;
};

/// An open folder. What is done through it is done in this very folder, whatever happens to its path.
struct Folder
{
    Descriptor descriptor;
    std::string path; ///< where it was opened, for messages
};

/// An open file, with the size that it had when it was opened.
struct File
{
    Descriptor descriptor;
    std::int64_t size; ///< bytes
};

/// An entry of a folder. Names are bytes, as the disk holds them.
struct FolderEntry
{
    std::string name;
    FileKind kind;
};

/// How a folder is locked: by any number of readers, or by one writer.
enum class LockMode { Shared, Exclusive };

/// Every access to the disk. Paths are absolute and must lie in one of the roots; a link is never followed
/// below a root. What can't be done is thrown as `std::filesystem::filesystem_error`; a link in the way as
/// `symlinkUnsupported` with its path; a path outside the roots as `invalidPath(outsideRoot)`.
class FileSystem
{
public:
    virtual ~FileSystem() = default;

    /// Where a path leads once its links are followed. It need not exist, nor lie in a root.
    virtual std::filesystem::path resolved(const std::filesystem::path &path) const = 0;

    /// Sets the roots. Until then every path is outside.
    virtual void confine(std::vector<std::filesystem::path> roots) = 0;

    /// What stands at `path`; nothing when nothing does.
    virtual std::optional<FileKind> kindAt(const std::filesystem::path &path) const = 0;

    virtual std::optional<FileKind> kindAt(const Folder &folder, const std::string &name) const = 0;

    /// When the entry was last moved or otherwise changed, which nobody can set (UTC); nothing when nothing
    /// is there.
    virtual std::optional<QDateTime> changedAt(const Folder &folder, const std::string &name) const = 0;

    virtual Folder openFolder(const std::filesystem::path &path) const = 0;
    virtual Folder openFolder(const Folder &parent, const std::string &name) const = 0;

    /// Everything in the folder, hidden entries too, in no order. An open folder can be listed once.
    virtual std::vector<FolderEntry> list(const Folder &folder) const = 0;

    /// Opens a regular file for reading. Anything else is refused, and never waited for.
    virtual File openFile(const Folder &folder, const std::string &name) const = 0;

    /// Reads bytes from `offset` on into `buffer`. Returns their number, 0 at the end.
    virtual std::size_t read(const File &file, std::int64_t offset, std::span<char> buffer) const = 0;

    /// Creates a folder that must not exist yet (permissions 700).
    virtual Folder createFolder(const Folder &parent, const std::string &name) = 0;

    /// Creates `path` with the folders above it (permissions 700). Existing folders are kept as they are.
    virtual void createFolders(const std::filesystem::path &path) = 0;

    /// Creates a file that must not exist yet (permissions 600).
    virtual void createFile(const Folder &folder, const std::string &name, QByteArrayView bytes) = 0;

    /// Creates or replaces a file (permissions 600): whoever reads it sees the old bytes or the new, whole,
    /// also after a loss of power.
    virtual void replaceFile(const std::filesystem::path &path, QByteArrayView bytes) = 0;

    /// Moves a file or folder to a place where nothing stands, across volumes too.
    virtual void move(const std::filesystem::path &from, const std::filesystem::path &to) = 0;

    /// Puts a folder with everything in it on the disk, where the loss of power can't harm it.
    virtual void flush(const std::filesystem::path &folder) = 0;

    /// Removes a file, a link, or a folder with everything in it.
    virtual void removeTree(const std::filesystem::path &path) = 0;

    /// Locks a folder for as long as the result lives. After ten seconds of waiting: `integrityFailure`.
    virtual Folder lock(const std::filesystem::path &folder, LockMode mode) const = 0;
};

/// Whether `path` is `folder` or lies below it, by their texts.
bool isInside(const std::filesystem::path &path, const std::filesystem::path &folder);

/// The bytes of a file of at most `limit` bytes; a larger one is a `filesystem_error`.
QByteArray readFile(const FileSystem &files, const Folder &folder, const std::string &name,
                    std::int64_t limit);
QByteArray readFile(const FileSystem &files, const std::filesystem::path &path, std::int64_t limit);

/// Hands the bytes of `file` to `sink`, up to the size that it had when it was opened.
void readWhole(const FileSystem &files, const File &file, const std::function<void(QByteArrayView)> &sink);

} // namespace vornel
