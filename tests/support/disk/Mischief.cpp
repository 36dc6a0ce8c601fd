#include "Mischief.h"

#include <VORNELInfrastructure/Disk/FileSystem.h>

#include <fcntl.h>
#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <memory>

namespace vornel::Mischief {

namespace fs = std::filesystem;

namespace {

/// A file that becomes endless while it is read, and short again when it is closed.
class GrowingFile
{
public:
    explicit GrowingFile(const fs::path &path)
        : m_file(::open(path.c_str(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC)),
          m_inotify(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        if (::inotify_add_watch(m_inotify.fd(), path.c_str(), IN_ACCESS | IN_CLOSE_NOWRITE) < 0)
            throw fs::filesystem_error("watch", path, std::error_code(errno, std::system_category()));
        resize(shortest);
    }

    void follow(const std::stop_token &stop) const
    {
        constexpr int pause = 10;
        alignas(inotify_event) std::array<char, 4096> events;
        while (!stop.stop_requested()) {
            pollfd ready{.fd = m_inotify.fd(), .events = POLLIN, .revents = 0};
            ::poll(&ready, 1, pause);
            const ssize_t size = ::read(m_inotify.fd(), events.data(), events.size());
            for (ssize_t at = 0; at < size; at += static_cast<ssize_t>(sizeof(inotify_event))) {
                const auto *event = reinterpret_cast<const inotify_event *>(events.data() + at);
                resize((event->mask & IN_ACCESS) != 0 ? endless : shortest);
            }
        }
    }

private:
    static constexpr off_t shortest = 2'000'000;
    static constexpr off_t endless = 1'000'000'000'000;

    void resize(off_t size) const
    {
        if (::ftruncate(m_file.fd(), size) != 0)
            std::perror("the file doesn't grow");
    }

    Descriptor m_file; ///< what stands under the name later may be a link
    Descriptor m_inotify;
};

} // namespace

std::jthread grow(const fs::path &file)
{
    return std::jthread([growing = std::make_shared<GrowingFile>(file)](const std::stop_token &stop) {
        growing->follow(stop);
    });
}

std::jthread swap(const fs::path &one, const fs::path &other)
{
    return std::jthread([one, other](const std::stop_token &stop) {
        while (!stop.stop_requested()) {
            ::renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE);
            std::this_thread::sleep_for(std::chrono::microseconds(10));
        }
    });
}

} // namespace vornel::Mischief
