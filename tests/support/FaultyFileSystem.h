#pragma once

#include <VORNELInfrastructure/PosixFileSystem.h>

#include <atomic>
#include <functional>

namespace vornel {

/// The real disk, of which one call fails as a full or broken disk would: before it has done anything or,
/// where that is asked for, after a change that it has made.
class FaultyFileSystem : public PosixFileSystem
{
public:
    enum class Call { Look, Change };

    using PosixFileSystem::kindAt;
    using PosixFileSystem::openFolder;

    /// The n-th call of this kind from now on fails, counted from 1; 0 lets all succeed.
    void failAt(int number, Call kind);

    /// Lets changes be made before they are reported as failed.
    void failAfterwards(bool afterwards) { m_afterwards = afterwards; }

    /// Whether the call that was to fail has come.
    bool hasFailed() const { return m_hasFailed; }

    /// Fails every rename that it is given, instead of one call by number.
    std::function<bool(const std::filesystem::path &from, const std::filesystem::path &to)> refusesRename;

    /// What the system says of a fault.
    std::errc fault = std::errc::io_error;

    /// Whether two entries can change places, as they can't on every volume.
    bool canExchange = true;

    /// Whether each root is a volume of its own, where nothing can be moved to from another.
    bool hasVolumes = false;

    /// Folders of which not even the name can be changed, as in the lower layer of an overlay.
    std::function<bool(const std::filesystem::path &folder)> isFixed;

    Folder openAbove(const std::filesystem::path &path) const override;
    Folder openFolder(const Folder &parent, const std::string &name) const override;
    Folder openBelow(const Folder &top, const std::filesystem::path &path) const override;
    std::optional<FileKind> kindAt(const Folder &folder, const std::string &name) const override;
    std::optional<QDateTime> changedAt(const Folder &folder, const std::string &name) const override;
    std::vector<FolderEntry> list(const Folder &folder) const override;
    File openFile(const Folder &folder, const std::string &name) const override;
    std::size_t read(const File &file, std::int64_t offset, std::span<char> buffer) const override;
    Folder createFolder(const Folder &parent, const std::string &name) override;
    File createFile(const Folder &folder, const std::string &name) override;
    void write(const File &file, QByteArrayView bytes) override;
    void rename(const Place &from, const Place &to, RenameMode mode) override;
    void remove(const Folder &folder, const std::string &name) override;
    void flush(const File &file) override;
    void flush(const Folder &folder) override;
    void flushVolume(const Folder &folder) override;
    Folder lock(const std::filesystem::path &folder, LockMode mode) const override;

private:
    /// Counts a call. Returns whether it is the one that fails.
    bool fails(Call kind) const;
    void look() const;
    [[noreturn]] void failAsDisk() const;
    void refuseAcross(const Place &from, const Place &to) const;

    /// Makes a change that counts as one call.
    template <typename Change>
    auto change(const Change &make);

    mutable std::atomic<int> m_calls = 0;
    mutable std::atomic<bool> m_hasFailed = false;
    int m_failing = 0;
    Call m_kind = Call::Look;
    bool m_afterwards = false;
};

} // namespace vornel
