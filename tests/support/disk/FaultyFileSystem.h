#pragma once

#include "SteppedFileSystem.h"

#include <atomic>

namespace vornel {

/// The real disk, of which one call fails as a full or broken disk would: before it has done anything or,
/// where that is asked for, after a change that it has made.
class FaultyFileSystem : public SteppedFileSystem
{
public:
    enum class Call { Look, Change };

    FaultyFileSystem();

    /// The n-th call of this kind from now on fails, counted from 1; 0 lets all succeed.
    void failAt(int number, Call kind);

    /// Lets changes be made before they are reported as failed.
    void failAfterwards(bool afterwards) { m_afterwards = afterwards; }

    /// Whether the call that was to fail has been made.
    bool hasFailed() const { return m_failing > 0 && m_calls >= m_failing; }

    /// Calls of the kind since `failAt`.
    int calls() const { return m_calls; }

    /// Decides for each rename whether it fails, instead of one call by its number.
    std::function<bool(const std::filesystem::path &from, const std::filesystem::path &to)> refusesRename;

    /// The error with which a call fails.
    std::errc fault = std::errc::io_error;

    /// Whether two entries can change places, as they can't on every volume.
    bool canExchange = true;

    /// Whether a file can have several places, as it can't on every volume.
    bool canShare = true;

    /// Whether each root is a volume of its own, where nothing can be moved to from another.
    bool hasVolumes = false;

    /// Folders of which not even the name can be changed, as in the lower layer of an overlay.
    std::function<bool(const std::filesystem::path &folder)> isFixed;

private:
    void refuseRename(const Step &step) const;

    std::atomic<int> m_calls = 0;
    int m_failing = 0;
    Call m_kind = Call::Look;
    bool m_afterwards = false;
};

} // namespace vornel
