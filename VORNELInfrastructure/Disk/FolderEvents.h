#pragma once

#include "FileSystem.h"

#include <atomic>
#include <limits>
#include <optional>

namespace vornel {

/// What happens in folders, by whomever, as the kernel tells it in the order in which it happens. Reading
/// them isn't told. Folders may be watched from several threads at once; the rest is for one.
class FolderEvents
{
public:
    /// What is told of a folder's entries: that they come, go or may be read by others; or also that they are
    /// written.
    enum class Interest { Names, Everything };

    struct Event
    {
        int watch = -1;           ///< of the folder; -1 when events were lost
        std::string name = {};    ///< of the entry; empty for the folder itself
        bool isOfFolder = false;  ///< whether the entry is a folder, or the event is about the folder itself
        bool isWatchOver = false; ///< because the folder has gone
    };

    /// `mostWatches` is a limit beside the kernel's own.
    explicit FolderEvents(int mostWatches = std::numeric_limits<int>::max());

    /// Watches an open folder, wherever it is moved, and returns the number of its watch; always the same for
    /// one folder. Nothing when it may not be read, or when the watches have run out.
    std::optional<int> watch(const Folder &folder, Interest interest);

    /// Watches a folder no more.
    void forget(int watch);

    /// All that has happened since the last call; doesn't wait.
    std::vector<Event> read();

    /// Can be read when something has happened; -1 where the kernel tells nothing.
    int descriptor() const { return m_inotify.fd(); }

    /// Whether a folder could not be watched, as there were too many.
    bool hasRunOut() const { return m_hasRunOut; }

private:
    const Descriptor m_inotify;
    const int m_mostWatches;
    std::atomic<bool> m_hasRunOut;
};

} // namespace vornel
