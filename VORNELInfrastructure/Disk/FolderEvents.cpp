#include "FolderEvents.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <string>

namespace vornel {

namespace {

constexpr std::uint32_t aboutFolder = IN_ISDIR | IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT | IN_IGNORED;
constexpr std::uint32_t nameEvents =
    IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF;
constexpr std::uint32_t everything = nameEvents | IN_MODIFY | IN_CLOSE_WRITE;

} // namespace

FolderEvents::FolderEvents(int mostWatches)
    : m_inotify(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)),
      m_mostWatches(mostWatches),
      m_hasRunOut(m_inotify.fd() < 0)
{}

std::optional<int> FolderEvents::watch(const Folder &folder, Interest interest)
{
    // By its descriptor: whatever stands at its path by now, it is this folder.
    const std::string itself = "/proc/self/fd/" + std::to_string(folder.descriptor.fd());
    const std::uint32_t mask = interest == Interest::Everything ? everything : nameEvents;
    const int watch = ::inotify_add_watch(m_inotify.fd(), itself.c_str(), mask | IN_ONLYDIR | IN_EXCL_UNLINK);
    if (watch >= 0 && watch <= m_mostWatches) // they are numbered from 1 on
        return watch;
    if (watch >= 0)
        forget(watch);
    if (watch >= 0 || errno != EACCES)
        m_hasRunOut = true;
    return std::nullopt;
}

void FolderEvents::forget(int watch)
{
    ::inotify_rm_watch(m_inotify.fd(), watch);
}

std::vector<FolderEvents::Event> FolderEvents::read()
{
    std::vector<Event> events;
    alignas(inotify_event) std::array<char, 64UL * 1024> buffer;
    while (true) {
        const ssize_t size = ::read(m_inotify.fd(), buffer.data(), buffer.size());
        if (size < 0 && errno == EINTR)
            continue;
        if (size <= 0)
            return events;
        for (ssize_t at = 0; at < size;) {
            const auto *event = reinterpret_cast<const inotify_event *>(buffer.data() + at);
            at += static_cast<ssize_t>(sizeof(inotify_event)) + event->len;
            events.push_back({.watch = event->wd,
                              .name = event->len > 0 ? event->name : std::string(),
                              .isOfFolder = (event->mask & aboutFolder) != 0,
                              .isWatchOver = (event->mask & IN_IGNORED) != 0});
        }
    }
}

} // namespace vornel
