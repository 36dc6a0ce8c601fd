#pragma once

#include <filesystem>
#include <string>

namespace vornel {

/// Gives this process mounts of its own, which end with it, however it ends; only before it has threads.
/// Returns false where the machine allows none.
bool enterOwnMounts();

/// A small volume in memory, mounted on a folder for as long as it lives.
class Volume
{
public:
    explicit Volume(std::filesystem::path folder);
    ~Volume();
    Volume(const Volume &) = delete;
    Volume &operator=(const Volume &) = delete;

    /// Leaves room for so many more pages of content, and no more.
    void leavePages(int count) const;

    /// Leaves room for so many more files and folders.
    void leaveFiles(int count) const;

    /// Returns false while a file is being written, as nothing can change then.
    [[nodiscard]] bool makeReadOnly() const;

    /// Makes the volume writable, with plenty of room.
    void mend() const;

private:
    bool remount(unsigned long flags, const std::string &options) const;

    std::filesystem::path m_folder;
};

} // namespace vornel
