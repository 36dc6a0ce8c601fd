#pragma once

#include <VORNELInfrastructure/Disk/PosixFileSystem.h>

#include <functional>

namespace vornel {

/// One step on the disk, with what it is about.
struct Step
{
    enum class Kind { Look, Create, Share, Write, Rename, Remove, FlushFile, FlushFolder, FlushVolume };

    Kind kind;
    const Descriptor *on = nullptr; ///< the open file or folder; null for a step that only looks
    const Place *from = nullptr;    ///< what is renamed or removed, or comes to be
    const Place *to = nullptr;      ///< of a rename
    RenameMode mode = RenameMode::ToFreePlace;

    bool isLook() const { return kind == Kind::Look; }
};

/// The real disk, where a test can act before and after every step. Steps come from several threads.
class SteppedFileSystem : public PosixFileSystem
{
public:
    using Make = std::function<void()>;
    using Around = std::function<void(const Step &step, const Make &make)>;

    /// Called instead of every step: `make` makes the step, and what is thrown reaches the program.
    Around around;

    SteppedFileSystem() { reset(); }

    /// Leaves every step alone.
    void reset()
    {
        around = [](const Step &, const Make &make) { make(); };
    }

    using PosixFileSystem::kindAt;
    using PosixFileSystem::openFolder;

    Folder openAbove(const std::filesystem::path &path) const override;
    Folder openFolder(const Folder &parent, const std::string &name) const override;
    Folder openBelow(const Folder &top, const std::filesystem::path &path) const override;
    std::optional<FileKind> kindAt(const Folder &folder, const std::string &name) const override;
    bool isAt(const Folder &folder, const Place &place) const override;
    std::optional<QDateTime> changedAt(const Folder &folder, const std::string &name) const override;
    std::optional<EntryStatus> statusOf(const Folder &folder, const std::string &name) const override;
    std::vector<FolderEntry> list(const Folder &folder) const override;
    File openFile(const Folder &folder, const std::string &name) const override;
    std::shared_ptr<QFile> openForOthers(const Folder &folder, const std::string &name) const override;
    std::size_t read(const File &file, std::int64_t offset, std::span<char> buffer) const override;
    Folder createFolder(const Folder &parent, const std::string &name) override;
    File createFile(const Folder &folder, const std::string &name) override;
    void write(const File &file, QByteArrayView bytes) override;
    void rename(const Place &from, const Place &to, RenameMode mode) override;
    void remove(const Folder &folder, const std::string &name) override;
    void copyLink(const Place &from, const Place &to) override;
    EntryStatus share(const Place &from, const Place &to) override;
    void flush(const File &file) override;
    void flush(const Folder &folder) override;
    void flushVolume(const Folder &folder) override;
    Folder lock(const std::filesystem::path &folder, LockMode mode) const override;

private:
    /// Lets `around` make a step, and returns what it makes.
    template <typename Action>
    auto take(const Step &step, const Action &action) const;
};

} // namespace vornel
