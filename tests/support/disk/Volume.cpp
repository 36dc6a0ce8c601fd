#include "Volume.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <system_error>

namespace vornel {

namespace fs = std::filesystem;

namespace {

const std::string roomy = "size=64m,nr_inodes=10000";

[[noreturn]] void fail(const char *operation)
{
    throw std::system_error(errno, std::system_category(), operation);
}

/// Becomes root in a user namespace of its own, in which mounting is allowed to anybody.
bool becomeRoot()
{
    const auto user = std::to_string(::geteuid());
    const auto group = std::to_string(::getegid());
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return false;
    std::ofstream("/proc/self/setgroups") << "deny";
    std::ofstream("/proc/self/uid_map") << "0 " << user << " 1";
    std::ofstream("/proc/self/gid_map") << "0 " << group << " 1";
    return ::geteuid() == 0;
}

struct statvfs statusOf(const fs::path &folder)
{
    struct statvfs status
    {};
    if (::statvfs(folder.c_str(), &status) != 0)
        fail("statvfs");
    return status;
}

} // namespace

bool enterOwnMounts()
{
    return (::unshare(CLONE_NEWNS) == 0 || becomeRoot()) &&
           ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

Volume::Volume(fs::path folder) : m_folder(std::move(folder))
{
    fs::create_directories(m_folder);
    if (::mount("volume", m_folder.c_str(), "tmpfs", MS_NOSUID | MS_NODEV, roomy.c_str()) != 0)
        fail("mount");
}

Volume::~Volume()
{
    ::umount2(m_folder.c_str(), MNT_DETACH);
}

void Volume::leavePages(int count) const
{
    const struct statvfs status = statusOf(m_folder);
    const unsigned long pages = status.f_blocks - status.f_bfree + static_cast<unsigned long>(count);
    if (!remount(0, "size=" + std::to_string(pages * status.f_frsize)))
        fail("remount");
}

void Volume::leaveFiles(int count) const
{
    const struct statvfs status = statusOf(m_folder);
    const unsigned long files = status.f_files - status.f_ffree + static_cast<unsigned long>(count);
    if (!remount(0, "nr_inodes=" + std::to_string(files)))
        fail("remount");
}

bool Volume::makeReadOnly() const
{
    if (remount(MS_RDONLY, roomy))
        return true;
    if (errno != EBUSY)
        fail("remount");
    return false;
}

void Volume::mend() const
{
    if (!remount(0, roomy))
        fail("remount");
}

bool Volume::remount(unsigned long flags, const std::string &options) const
{
    return ::mount(nullptr, m_folder.c_str(), nullptr, MS_REMOUNT | MS_NOSUID | MS_NODEV | flags,
                   options.c_str()) == 0;
}

} // namespace vornel
