#include "PowerCutFileSystem.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <random>
#include <ranges>
#include <stdexcept>
#include <system_error>

namespace vornel {

namespace {

void expectSuccess(int result, const char *action)
{
    if (result != 0)
        throw std::system_error(errno, std::system_category(), action);
}

int duplicate(const Descriptor &descriptor)
{
    return ::fcntl(descriptor.fd(), F_DUPFD_CLOEXEC, 0);
}

} // namespace

/// An entry of a folder that stays known when the folder is moved.
class PowerCutFileSystem::Spot
{
public:
    Spot(const Descriptor &folder, std::string name)
        : m_folder(std::make_shared<Descriptor>(duplicate(folder))), m_name(std::move(name))
    {}
    explicit Spot(const Place &place) : Spot(place.folder.descriptor, place.name) {}

    bool isTaken() const
    {
        return ::faccessat(m_folder->fd(), m_name.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0;
    }

    void moveTo(const Spot &other, unsigned int flags = RENAME_NOREPLACE) const
    {
        expectSuccess(
            ::renameat2(m_folder->fd(), m_name.c_str(), other.m_folder->fd(), other.m_name.c_str(), flags),
            "undoing a change");
    }

    void linkTo(const Spot &other) const
    {
        expectSuccess(::linkat(m_folder->fd(), m_name.c_str(), other.m_folder->fd(), other.m_name.c_str(), 0),
                      "keeping a file");
    }

private:
    std::shared_ptr<Descriptor> m_folder;
    std::string m_name;
};

PowerCutFileSystem::PowerCutFileSystem()
    : m_graveyard(::open(pathFromText(m_graves.path()).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    around = [this](const Step &step, const Make &make) {
        if (step.isLook())
            return make();
        const std::scoped_lock lock(m_mutex);
        m_isOff = m_isOff || ++m_steps == m_cut;
        if (m_isOff)
            throw std::runtime_error("no power");
        take(step, make);
    };
}

void PowerCutFileSystem::cutAt(int step)
{
    m_changes.clear();
    m_unflushedFiles.clear();
    m_steps = 0;
    m_cut = step;
    m_isOff = false;
}

void PowerCutFileSystem::forget(Survival survival, unsigned seed)
{
    std::minstd_rand chance(seed);
    const std::size_t kept = survival == Survival::Nothing ? 0 : m_changes.size();
    const std::size_t first =
        survival == Survival::Some ? std::uniform_int_distribution<std::size_t>(0, kept)(chance) : kept;
    for (const Change &change : m_changes | std::views::drop(first) | std::views::reverse) {
        if (!change.unflushed.empty())
            change.undo();
    }
    for (const Descriptor &file : m_unflushedFiles | std::views::values) {
        const bool isKept = survival == Survival::Some && std::bernoulli_distribution()(chance);
        if (!isKept)
            expectSuccess(::ftruncate(file.fd(), 0), "emptying a file");
    }
    m_changes.clear();
    m_unflushedFiles.clear();
}

void PowerCutFileSystem::take(const Step &step, const Make &make)
{
    switch (step.kind) {
    case Step::Kind::Look:
        return make();
    case Step::Kind::Create:
    case Step::Kind::Share:
        make();
        m_changes.push_back(
            {{identityOf(*step.on)}, [this, spot = Spot(*step.from)] { spot.moveTo(grave()); }});
        return;
    case Step::Kind::Write:
        make();
        m_unflushedFiles.try_emplace(identityOf(*step.on), duplicate(*step.on));
        return;
    case Step::Kind::Rename:
        return move(step, make);
    case Step::Kind::Remove:
        return bury(step, make);
    case Step::Kind::FlushFile:
        m_unflushedFiles.erase(identityOf(*step.on));
        return;
    case Step::Kind::FlushFolder:
        for (Change &change : m_changes)
            change.unflushed.erase(identityOf(*step.on));
        return;
    case Step::Kind::FlushVolume:
        m_changes.clear();
        m_unflushedFiles.clear();
        return;
    }
}

void PowerCutFileSystem::move(const Step &step, const Make &make)
{
    const Spot before(*step.from);
    const Spot after(*step.to);
    std::function<void()> undo = [before, after] { after.moveTo(before); };
    if (step.mode == RenameMode::Exchange) {
        undo = [before, after] { after.moveTo(before, RENAME_EXCHANGE); };
    } else if (step.mode == RenameMode::OntoFile && after.isTaken()) {
        const Spot kept = grave();
        after.linkTo(kept);
        undo = [before, after, kept] {
            after.moveTo(before);
            kept.moveTo(after);
        };
    }
    make();
    m_changes.push_back({{identityOf(*step.on), identityOf(step.to->folder.descriptor)}, std::move(undo)});
}

/// What is removed is kept aside.
void PowerCutFileSystem::bury(const Step &step, const Make &make)
{
    const Folder &folder = step.from->folder;
    const std::string &name = step.from->name;
    if (kindAt(folder, name) == FileKind::Directory && !list(openFolder(folder, name)).empty())
        return make(); // which fails
    const Spot spot(*step.from);
    const Spot kept = grave();
    spot.moveTo(kept);
    m_changes.push_back({{identityOf(*step.on)}, [spot, kept] { kept.moveTo(spot); }});
}

PowerCutFileSystem::Identity PowerCutFileSystem::identityOf(const Descriptor &descriptor)
{
    struct stat status
    {};
    expectSuccess(::fstat(descriptor.fd(), &status), "looking at a file");
    return {status.st_dev, status.st_ino};
}

PowerCutFileSystem::Spot PowerCutFileSystem::grave()
{
    return {m_graveyard, std::to_string(++m_graveCount)};
}

} // namespace vornel
