#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QDateTime>
#include <QFile>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
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

    /// Gives it to whoever closes it then.
    int release() { return std::exchange(m_fd, -1); }

private:
    int m_fd;
};

/// An open folder. What is done through it is done in this very folder, whatever happens to its path.
struct Folder
{
    Descriptor descriptor;
    std::string path; ///< where it was opened, for messages
};

/// What the disk says of an entry without reading it. Times are since 1970 (UTC).
struct EntryStatus
{
    FileKind kind = FileKind::Regular;
    std::uint64_t volume = 0;
    std::uint64_t number = 0;            ///< on the volume; names of one file share it
    std::uint64_t names = 1;             ///< of a file: a change through any of them is one of this file
    std::int64_t size = 0;               ///< bytes that can be read
    std::int64_t room = 0;               ///< bytes that it takes on the disk, without what a folder holds
    std::chrono::nanoseconds modified{}; ///< when its bytes were last written, as anyone may set it
    std::chrono::nanoseconds changed{};  ///< when anything of it last changed, its names too; nobody sets it
};

/// An open file, and what was true of it when it was opened.
struct File
{
    Descriptor descriptor;
    EntryStatus status = {};

    std::int64_t size() const { return status.size; }
};

/// An entry of an open folder, by its name, whether or not anything stands there.
struct Place
{
    const Folder &folder;
    std::string name;
};

/// An entry of a folder. Names are bytes, as the disk holds them.
struct FolderEntry
{
    std::string name;
    FileKind kind;
};

/// How a folder is locked: by any number of readers, or by one writer.
enum class LockMode { Shared, Exclusive };

/// What a rename does with what stands at the new place: nothing may stand there; a file is replaced in one
/// step; the two entries are exchanged in one step.
enum class RenameMode { ToFreePlace, OntoFile, Exchange };

/// Every access to the disk, one step a call, so that a fault can be put between any two.
///
/// A path is absolute; a name is one component. No link is followed below a root. Errors are a
/// `std::filesystem::filesystem_error` with the code that is named here, among others; `symlinkUnsupported`
/// with its path for a link in the way; `invalidPath(outsideRoot)` for a path outside the roots.
///
/// What was changed may be undone by a loss of power until it has been flushed: names with their folder,
/// bytes with their file. Only the flushing calls flush.
///
/// All may be called from several threads at once, on the same open folder or file too, unless it is said.
class FileSystem
{
public:
    virtual ~FileSystem() = default;

    /// Sets the roots, standardised. Until then every path is outside. No other thread may be in a call
    /// meanwhile.
    void confine(std::vector<std::filesystem::path> roots) { m_roots = std::move(roots); }

    /// The root in which a path lies, by its text: neither need exist.
    const std::filesystem::path &rootOf(const std::filesystem::path &path) const;

    /// What stands at `path`; nothing when nothing does, or when the folder that would hold it is missing or
    /// is none. A root itself may be a link.
    std::optional<FileKind> kindAt(const std::filesystem::path &path) const;

    /// Opens the folder at `path`. `no_such_file_or_directory` when nothing stands there, `not_a_directory`
    /// when it is none.
    Folder openFolder(const std::filesystem::path &path) const;

    /// Where a path leads once its links are followed. It need not exist, nor lie in a root.
    virtual std::filesystem::path resolved(const std::filesystem::path &path) const = 0;

    /// Opens a folder that holds a root, one above it, or another one that the user has named; its links are
    /// followed, as they are the user's own.
    /// `no_such_file_or_directory` when nothing stands there, `not_a_directory` when it is none.
    virtual Folder openAbove(const std::filesystem::path &path) const = 0;

    /// Opens a folder in an open one. One that may not be listed is opened all the same, to pass through it.
    /// `no_such_file_or_directory` when nothing stands there, `not_a_directory` when it is none.
    virtual Folder openFolder(const Folder &parent, const std::string &name) const = 0;

    /// Opens a folder some levels down, by a relative path without "." and "..". Fails as if each level were
    /// opened by itself.
    virtual Folder openBelow(const Folder &top, const std::filesystem::path &path) const = 0;

    /// What stands at a name in an open folder; nothing when nothing does.
    virtual std::optional<FileKind> kindAt(const Folder &folder, const std::string &name) const = 0;

    /// Whether what stands at a place is this very folder. False when nothing stands there.
    virtual bool isAt(const Folder &folder, const Place &place) const = 0;

    /// When the entry was last moved or otherwise changed (UTC): a time that no program can set. Nothing when
    /// nothing stands there.
    virtual std::optional<QDateTime> changedAt(const Folder &folder, const std::string &name) const = 0;

    /// Nothing when nothing stands there.
    virtual std::optional<EntryStatus> statusOf(const Folder &folder, const std::string &name) const = 0;

    /// Everything in the folder, hidden entries too, in no order. An open folder can be listed once, by one
    /// thread.
    virtual std::vector<FolderEntry> list(const Folder &folder) const = 0;

    /// Opens a regular file for reading. `no_such_file_or_directory` when nothing stands there; a folder,
    /// pipe or device is refused too, and never waited for.
    virtual File openFile(const Folder &folder, const std::string &name) const = 0;

    /// Opens a regular file for another program, for writing too where that is allowed. Fails as `openFile`.
    virtual std::shared_ptr<QFile> openForOthers(const Folder &folder, const std::string &name) const = 0;

    /// Reads bytes from `offset` on into `buffer`. Returns their number, which may be less than asked for; 0
    /// at the end.
    virtual std::size_t read(const File &file, std::int64_t offset, std::span<char> buffer) const = 0;

    /// Creates a folder (permissions 700, whatever the umask) and opens it. `file_exists` when anything
    /// stands there, a link too. Its name is flushed with `parent`.
    virtual Folder createFolder(const Folder &parent, const std::string &name) = 0;

    /// Creates a file (permissions 600, whatever the umask) and opens it for writing. `file_exists` when
    /// anything stands there, a link too. Its name is flushed with `folder`.
    virtual File createFile(const Folder &folder, const std::string &name) = 0;

    /// Appends bytes to a created file, by one thread at a time. After a failure, some of them may be there.
    virtual void write(const File &file, QByteArrayView bytes) = 0;

    /// Moves an entry: a link as itself, a folder with all that it holds. `file_exists` where the place must
    /// be free and isn't; `cross_device_link` between volumes; `operation_not_supported` for an exchange
    /// where the volume can't do it. The names are flushed with both folders.
    virtual void rename(const Place &from, const Place &to, RenameMode mode) = 0;

    /// Removes a file, a link itself, or an empty folder. `no_such_file_or_directory` when nothing stands
    /// there, `directory_not_empty` for a folder that holds anything.
    virtual void remove(const Folder &folder, const std::string &name) = 0;

    /// Creates a link that leads where the link `from` does, whether or not anything is there. `file_exists`
    /// when anything stands at `to`.
    virtual void copyLink(const Place &from, const Place &to) = 0;

    /// Puts what a file holds at another place of its volume, where it takes no room of its own: a clone
    /// where the volume makes such, whose bytes are to be flushed, or a further name of the same file.
    /// Returns what stands at `to` then. `file_exists` when anything stood there; other errors where the
    /// volume can do neither, or the file has as many names as it may.
    virtual EntryStatus share(const Place &from, const Place &to) = 0;

    /// Gives a file or folder the permissions and times of another. Both must exist.
    virtual void copyAttributes(const Place &from, const Place &to) = 0;

    /// Makes the disk begin to write the bytes of a file. Doesn't wait, never fails, and promises nothing.
    virtual void startWriting(const File &file) = 0;

    /// Waits until the bytes of a file are on the disk; not its name.
    virtual void flush(const File &file) = 0;

    /// Waits until the names in a folder are on the disk; not what they name. Where the volume has no such
    /// call, or is read-only, it does nothing.
    virtual void flush(const Folder &folder) = 0;

    /// Waits until everything on the folder's volume is on the disk, what others wrote too.
    virtual void flushVolume(const Folder &folder) = 0;

    /// Locks an existing folder for as long as the result lives, against other threads and programs. A
    /// waiting writer keeps out the readers who come later. After ten seconds of waiting: `integrityFailure`.
    virtual Folder lock(const std::filesystem::path &folder, LockMode mode) const = 0;

private:
    std::vector<std::filesystem::path> m_roots;
};

/// Whether `path` is `folder` or lies below it, by their texts.
bool isInside(const std::filesystem::path &path, const std::filesystem::path &folder);

} // namespace vornel
