#include "Publication.h"

#include "BestEffort.h"
#include "FileOperations.h"
#include "TreeOperations.h"

#include <set>
#include <system_error>
#include <vector>

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// The way of one staged folder into its place.
class Entrance
{
public:
    Entrance(FileSystem &files, Publication &publication)
        : m_files(files),
          m_publication(publication),
          m_staging(files.openFolder(publication.staged.parent_path())),
          m_home(files.openFolder(publication.destination.parent_path()))
    {}

    void pass()
    try {
        passFrom({m_staging, m_publication.staged.filename()});
    } catch (const fs::filesystem_error &error) {
        if (error.code() != std::errc::cross_device_link)
            throw;
        passFromItsVolume();
    }

private:
    void passFrom(const Place &newcomer)
    {
        const Place destination{m_home, m_publication.destination.filename()};
        if (m_publication.parking.empty()) {
            m_files.rename(newcomer, destination, RenameMode::ToFreePlace);
        } else if (exchanged(newcomer, destination)) {
            m_publication.former = fs::path(newcomer.folder.path) / newcomer.name;
        } else {
            replaceInTwoSteps(newcomer, destination);
            m_publication.former = m_publication.parking;
        }
    }

    void passFromItsVolume()
    {
        const Place staged{m_staging, m_publication.staged.filename()};
        const Place copy{m_home, copyToVolume(m_files, staged, m_home)};
        try {
            passFrom(copy);
        } catch (...) {
            bestEffort([&] { removeTree(m_files, copy); });
            throw;
        }
        bestEffort([&] { removeTree(m_files, staged); });
    }

    bool exchanged(const Place &newcomer, const Place &destination)
    try {
        m_files.rename(newcomer, destination, RenameMode::Exchange);
        return true;
    } catch (const fs::filesystem_error &error) {
        if (error.code() != std::errc::operation_not_supported)
            throw;
        return false;
    }

    void replaceInTwoSteps(const Place &newcomer, const Place &destination)
    {
        moveTree(m_files, m_publication.destination, m_publication.parking);
        try {
            m_files.rename(newcomer, destination, RenameMode::ToFreePlace);
        } catch (...) {
            bestEffort([&] { moveTree(m_files, m_publication.parking, m_publication.destination); });
            throw;
        }
    }

    FileSystem &m_files;
    Publication &m_publication;
    const Folder m_staging;
    const Folder m_home;
};

} // namespace

void publish(FileSystem &files, const std::vector<Publication *> &publications)
{
    std::vector<fs::path> staged;
    std::set<fs::path> parents;
    for (const Publication *publication : publications) {
        staged.push_back(publication->staged);
        parents.insert({publication->staged.parent_path(), publication->destination.parent_path()});
    }
    const std::exception_ptr notOnDisk = failureOf([&] { flushTrees(files, staged); });
    for (Publication *publication : publications)
        publication->failure =
            notOnDisk ? notOnDisk : failureOf([&] { Entrance(files, *publication).pass(); });
    for (const fs::path &parent : parents)
        bestEffort([&] { files.flush(files.openFolder(parent)); });
}

fs::path publish(FileSystem &files, Publication publication)
{
    publish(files, std::vector{&publication});
    if (publication.failure)
        std::rethrow_exception(publication.failure);
    return publication.former;
}

} // namespace vornel
