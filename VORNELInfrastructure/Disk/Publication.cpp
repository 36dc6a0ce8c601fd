#include "Publication.h"

#include "BestEffort.h"
#include "FileOperations.h"
#include "TreeOperations.h"

#include <map>
#include <ranges>
#include <system_error>

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// The way of one staged folder into its place.
class Entrance
{
public:
    Entrance(FileSystem &files, Publication &publication, const Folder &staging, const Folder &home)
        : m_files(files), m_publication(publication), m_staging(staging), m_home(home)
    {}

    void pass()
    try {
        passFrom({m_staging, m_publication.stage.path().filename()});
        if (m_publication.former != m_publication.stage.path())
            m_publication.stage.release();
    } catch (const fs::filesystem_error &error) {
        if (error.code() != std::errc::cross_device_link)
            throw;
        passFromItsVolume();
    }

private:
    void passFrom(const Place &newcomer)
    {
        const Place destination{m_home, m_publication.destination.filename()};
        if (m_publication.parking.empty())
            return m_files.rename(newcomer, destination, RenameMode::ToFreePlace);
        if (m_publication.keptAs.empty())
            return replace(newcomer, destination);
        if (&newcomer.folder != &m_home)
            return replaceAndKeep(newcomer, destination);
        replaceAndKeepCopy(newcomer, destination);
    }

    void passFromItsVolume()
    {
        const Place staged{m_staging, m_publication.stage.path().filename()};
        const Place copy{m_home, copyToVolume(m_files, staged, m_home)};
        try {
            passFrom(copy);
        } catch (...) {
            bestEffort([&] { removeTree(m_files, copy); });
            throw;
        }
    }

    bool exchanged(const Place &newcomer, const Place &destination)
    try {
        m_files.rename(newcomer, destination, RenameMode::Exchange);
        return true;
    } catch (const fs::filesystem_error &error) {
        // In the lower layer of an overlay, a folder is as if on another volume than its own parent.
        const bool isOfAnotherLayer =
            error.code() == std::errc::cross_device_link && &newcomer.folder == &destination.folder;
        if (error.code() != std::errc::operation_not_supported && !isOfAnotherLayer)
            throw;
        return false;
    }

    void replace(const Place &newcomer, const Place &destination)
    {
        if (exchanged(newcomer, destination)) {
            m_publication.former = fs::path(newcomer.folder.path) / newcomer.name;
        } else {
            replaceInTwoSteps(newcomer, destination);
            m_publication.former = m_publication.parking;
        }
    }

    /// The newcomer goes to where the former folder is to be kept, and then the two change places.
    void replaceAndKeep(const Place &newcomer, const Place &destination)
    {
        const Folder self = m_files.openFolder(newcomer.folder, newcomer.name);
        const Folder shelf = m_files.openFolder(m_publication.keptAs.parent_path());
        const Place kept{shelf, m_publication.keptAs.filename()};
        bool isExchanged = false;
        try {
            m_files.rename(newcomer, kept, RenameMode::ToFreePlace);
            flushNames(m_files, shelf);
            flushNames(m_files, newcomer.folder);
            isExchanged = exchanged(kept, destination);
            if (!isExchanged)
                m_files.rename(kept, newcomer, RenameMode::ToFreePlace);
        } catch (...) {
            // What a disk reports as failed, it may have done: then the former folder is there.
            if (m_files.isAt(self, kept))
                m_files.rename(kept, newcomer, RenameMode::ToFreePlace);
            throw;
        }
        if (!isExchanged)
            replaceInTwoStepsAndKeep(newcomer, destination);
        flushNames(m_files, shelf);
    }

    /// From another volume the former folder can't be moved in one step.
    void replaceAndKeepCopy(const Place &newcomer, const Place &destination)
    {
        const Place copy{m_staging, copyToVolume(m_files, destination, m_staging)};
        const Folder shelf = m_files.openFolder(m_publication.keptAs.parent_path());
        const Place kept{shelf, m_publication.keptAs.filename()};
        m_files.rename(copy, kept, RenameMode::ToFreePlace);
        flushNames(m_files, shelf);
        if (exchanged(newcomer, destination)) {
            m_publication.former = fs::path(newcomer.folder.path) / newcomer.name;
        } else {
            removeTree(m_files, kept);
            replaceInTwoStepsAndKeep(newcomer, destination);
        }
    }

    void replaceInTwoStepsAndKeep(const Place &newcomer, const Place &destination)
    {
        replaceInTwoSteps(newcomer, destination);
        if (m_publication.parking != m_publication.keptAs)
            moveTree(m_files, m_publication.parking, m_publication.keptAs);
    }

    void replaceInTwoSteps(const Place &newcomer, const Place &destination)
    {
        // A copy that is cut short on its way from another volume goes with the rest of the staging folder.
        moveTree(m_files, m_publication.destination, m_publication.parking, &m_staging);
        try {
            m_files.rename(newcomer, destination, RenameMode::ToFreePlace);
        } catch (...) {
            bestEffort([&] { moveTree(m_files, m_publication.parking, m_publication.destination); });
            throw;
        }
    }

    FileSystem &m_files;
    Publication &m_publication;
    const Folder &m_staging;
    const Folder &m_home;
};

} // namespace

void settle(FileSystem &files, const std::vector<Publication *> &publications)
{
    std::vector<fs::path> staged;
    staged.reserve(publications.size());
    for (const Publication *publication : publications)
        staged.push_back(publication->stage.path());
    const std::exception_ptr failure = failureOf([&] { flushTrees(files, staged); });
    for (Publication *publication : publications)
        publication->failure = failure;
}

void place(FileSystem &files, const std::vector<Publication *> &publications)
{
    std::map<fs::path, Folder> parents;
    const auto opened = [&](const fs::path &path) -> const Folder & {
        const auto known = parents.find(path);
        return known != parents.end() ? known->second
                                      : parents.emplace(path, files.openFolder(path)).first->second;
    };
    for (Publication *publication : publications) {
        if (!publication->failure)
            publication->failure = failureOf([&] {
                Entrance(files, *publication, opened(publication->stage.path().parent_path()),
                         opened(publication->destination.parent_path()))
                    .pass();
            });
    }
    for (const Folder &parent : parents | std::views::values)
        flushNames(files, parent);
}

void publish(FileSystem &files, Publication &publication)
{
    settle(files, {&publication});
    place(files, {&publication});
    if (publication.failure)
        std::rethrow_exception(publication.failure);
}

} // namespace vornel
