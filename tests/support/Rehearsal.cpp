#include "Rehearsal.h"

#include "StartingState.h"

#include <sys/stat.h>

namespace vornel {

namespace {

/// Gives the files of a copied folder the further names that the originals have in it, as far as volumes
/// allow.
void copyFurtherNames(const fs::path &from, const fs::path &to)
{
    std::map<ino_t, fs::path> first;
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(from)) {
        struct stat status
        {};
        if (::lstat(entry.path().c_str(), &status) != 0 || !S_ISREG(status.st_mode) || status.st_nlink == 1)
            continue;
        const fs::path copy = to / entry.path().lexically_relative(from);
        const auto [original, isFirst] = first.emplace(status.st_ino, copy);
        std::error_code impossible;
        const fs::path name = copy.native() + ".name";
        if (!isFirst)
            fs::create_hard_link(original->second, name, impossible);
        if (!isFirst && !impossible)
            fs::rename(name, copy);
    }
}

} // namespace

Rehearsal::Rehearsal(const Scenario &scenario) : m_scenario(scenario)
{
    scenario.build(path("pristine"));
    reset();
    m_before = stateBelow(folder());
    const auto service = start(std::make_shared<PosixFileSystem>());
    m_scenario.run(*service);
    m_after = stateBelow(folder());
}

void Rehearsal::reset(const std::function<void()> &prepare) const
{
    fs::remove_all(folder());
    prepare();
    fs::copy(path("pristine"), folder(), fs::copy_options::recursive);
    copyFurtherNames(path("pristine"), folder());
}

std::unique_ptr<LocalWorkspaceService> Rehearsal::start(std::shared_ptr<FileSystem> files) const
{
    return startService(folder(), std::move(files));
}

} // namespace vornel
