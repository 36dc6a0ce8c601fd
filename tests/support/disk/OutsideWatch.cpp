#include "OutsideWatch.h"

#include "Scratch.h"

#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

namespace vornel {

namespace {

std::string textOf(std::uint32_t mask)
{
    constexpr std::array<std::pair<std::uint32_t, const char *>, 9> words{{{IN_OPEN, "opened"},
                                                                           {IN_ACCESS, "read"},
                                                                           {IN_MODIFY, "written"},
                                                                           {IN_CREATE, "created in"},
                                                                           {IN_DELETE, "deleted in"},
                                                                           {IN_MOVE, "moved in"},
                                                                           {IN_ATTRIB, "given attributes"},
                                                                           {IN_DELETE_SELF, "deleted"},
                                                                           {IN_MOVE_SELF, "moved"}}};
    for (const auto &[bits, word] : words) {
        if ((mask & bits) != 0)
            return word;
    }
    return "closed";
}

std::string statusOf(const fs::path &path)
{
    struct stat status
    {};
    if (::lstat(path.c_str(), &status) != 0)
        throw fs::filesystem_error("stat", path, std::error_code(errno, std::system_category()));
    std::ostringstream text;
    text << status.st_ino << ' ' << status.st_mode << ' ' << status.st_nlink << ' ' << status.st_size << ' '
         << status.st_mtim.tv_sec << ' ' << status.st_mtim.tv_nsec << ' ' << status.st_ctim.tv_sec << ' '
         << status.st_ctim.tv_nsec;
    return text.str();
}

} // namespace

OutsideWatch::OutsideWatch(fs::path folder)
    : m_folder(std::move(folder)), m_before(listing()), m_inotify(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    for (const auto &[path, content] : m_before) {
        const int watch = ::inotify_add_watch(m_inotify.fd(), path.c_str(), IN_ALL_EVENTS | IN_DONT_FOLLOW);
        if (watch < 0)
            throw fs::filesystem_error("watch", path, std::error_code(errno, std::system_category()));
        m_names[watch] = path;
    }
}

std::set<std::string> OutsideWatch::events()
{
    std::set<std::string> events;
    alignas(inotify_event) std::array<char, 16UL * 1024> buffer;
    while (true) {
        const ssize_t size = ::read(m_inotify.fd(), buffer.data(), buffer.size());
        if (size <= 0)
            return events;
        for (ssize_t at = 0; at < size;) {
            const auto *event = reinterpret_cast<const inotify_event *>(buffer.data() + at);
            at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
            events.insert(textOf(event->mask) + ' ' + m_names[event->wd]);
        }
    }
}

bool OutsideWatch::isUnchanged() const
{
    return listing() == m_before;
}

std::map<std::string, std::string> OutsideWatch::listing() const
{
    std::map<std::string, std::string> listing{{m_folder, statusOf(m_folder)}};
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(m_folder))
        listing[entry.path()] = statusOf(entry) + (entry.is_regular_file() ? ' ' + bytesOf(entry) : "");
    return listing;
}

} // namespace vornel
