#include "PosixCalls.h"
#include "PosixFileSystem.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>

#include <sys/file.h>

#include <cerrno>
#include <chrono>
#include <thread>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

namespace {

void awaitLock(const Folder &folder, LockMode mode, Clock::time_point deadline)
{
    constexpr std::chrono::milliseconds pause{5};
    const int operation = (mode == LockMode::Shared ? LOCK_SH : LOCK_EX) | LOCK_NB;
    while (::flock(folder.descriptor.fd(), operation) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            PosixCalls::fail("lock", folder.path);
        if (Clock::now() >= deadline)
            throw VORNELWorkspaceError::integrityFailure(
                u"Le workspace est occupé par un autre programme."_s);
        std::this_thread::sleep_for(pause);
    }
}

} // namespace

Folder PosixFileSystem::lock(const fs::path &folder, LockMode mode) const
{
    constexpr std::chrono::seconds longestWait{10};
    const auto deadline = Clock::now() + longestWait;
    // The folder above is locked while waiting, so that a waiting writer keeps out the readers who come
    // later. Otherwise readers whose locks overlap could keep the writer out for ever.
    const Folder above = FileSystem::openFolder(folder.parent_path());
    awaitLock(above, mode, deadline);
    Folder locked = FileSystem::openFolder(folder);
    awaitLock(locked, mode, deadline);
    return locked;
}

} // namespace vornel
