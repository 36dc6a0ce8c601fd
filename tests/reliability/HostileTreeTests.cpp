/// Anything may stand in the assistants' folders, and in a library that came from elsewhere. Each seed makes
/// one tree; `VORNEL_TREE_SEED` is the first of them, and `VORNEL_TREES` their number for each place.

#include "Mischief.h"
#include "OutsideWatch.h"
#include "RandomTree.h"
#include "Scratch.h"

#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/SkillFiles.h>

#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <set>
#include <system_error>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

/// Where a tree is put.
enum class Place { Source, Copy, Library, Trash };

struct Count
{
    int operations = 0;
    int refused = 0;
};

std::size_t openDescriptors()
{
    const fs::directory_iterator entries("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

/// A workspace with a skill in the library and one in the trash, into which a random tree is put.
class Siege : protected TestWorkspace
{
public:
    Siege(Place place, unsigned seed)
        : m_seed(seed),
          m_demo(create(u"demo"_s).manifest.id),
          m_gone(create(u"gone"_s).manifest.id),
          m_tree(seed, path("outside"))
    {
        service->moveToTrash(m_gone).waitForFinished();
        for (const char *file : {"outside/skill/SKILL.md", "outside/skill/sub/notes.md", "outside/skill/a",
                                 "outside/SKILL.md", "outside/demo/SKILL.md", "outside/demo/sub/a"})
            write(file, "Nobody may read this.");
        m_folder = folderAt(place);
        write(m_folder.lexically_relative(path()) / SkillFiles::text, "name: Piège");
        m_tree.fill(m_folder);
    }

    /// Runs the operations in a random order, while the tree may be changed at the same time.
    Count run()
    {
        OutsideWatch watch(path("outside"));
        {
            const std::jthread mischief = startMischief();
            for (const auto &operation : inAnyOrder())
                operation();
        }
        EXPECT_EQ(watch.events(), std::set<std::string>());
        EXPECT_TRUE(watch.isUnchanged());
        return m_count;
    }

    /// Ends the service, and removes everything.
    void end()
    {
        service.reset();
        emptyFolder(path());
        EXPECT_TRUE(fs::is_empty(path()));
    }

private:
    using Operation = std::function<void()>;

    fs::path folderAt(Place place)
    {
        switch (place) {
        case Place::Source:
            write("codex/loot/SKILL.md", "name: Butin");
            return path("claude/loot");
        case Place::Copy:
            return path(m_tree.oneOf<std::string>({"claude/demo", "codex/demo"}));
        case Place::Library:
            return path("workspace/skills/demo");
        case Place::Trash:
            return path("workspace/.vornel/trash") / pathFromText(uuidText(m_gone));
        }
        throw std::logic_error("no such place");
    }

    /// An interference with the tree from another thread; half the time none.
    std::jthread startMischief()
    {
        const fs::path aside = path("aside");
        switch (m_tree.between(1, 8)) {
        case 1:
            return Mischief::grow(m_folder / SkillFiles::text);
        case 2:
            fs::create_symlink(path("outside/skill"), aside);
            return Mischief::swap(m_tree.oneOf(m_tree.folders()), aside);
        case 3:
            fs::create_symlink(path("outside"), aside);
            return Mischief::swap(m_folder.parent_path(), aside);
        case 4:
            if (m_tree.chance(50))
                fs::create_symlink(path("outside/SKILL.md"), aside);
            else if (::mkfifo(aside.c_str(), S_IRWXU) != 0)
                throw std::runtime_error("no pipe");
            return Mischief::swap(m_folder / SkillFiles::text, aside);
        default:
            return {};
        }
    }

    std::vector<Operation> inAnyOrder()
    {
        std::vector<Operation> operations{
            [this] { answer("reload", service->reload()); },
            [this] { import(); },
            [this] { save(); },
            [this] { answer("inspect", service->inspectCopies(m_demo)); },
            [this] { answer("check", service->checkSkills({})); },
            [this] { answer("read", service->readFile(m_demo, TargetKind::claude, u"sub/a"_s)); },
            [this] { answer("synchronize", service->synchronize(m_demo)); },
            [this] {
                answer("synchronize both", service->synchronizeSkills({m_demo, m_gone}, {}));
            },
            [this] { answer("assign", service->assignSkills({m_demo}, u"design"_s)); },
            [this] { answer("trash", service->moveToTrash(QSet<QUuid>{m_demo})); },
            [this] { answer("restore", service->restore(m_gone)); },
            [this] { answer("delete", service->deletePermanently(m_demo)); },
            [this] { answer("empty the trash", service->emptyTrash()); },
            [this] { answer("dates", service->trashDates()); },
            [this] {
                answer("start", service->bootstrap(path("workspace"), path("claude"), path("codex")));
            }};
        std::ranges::shuffle(operations, m_tree.random());
        return operations;
    }

    void import()
    {
        const auto plan = answer("scan", service->scanImports());
        if (!plan)
            return;
        for (const ImportCollision &collision : plan->collisions)
            answer("choose", service->resolveCollision(collision.id, CollisionChoice::claude));
        answer("import", service->commitImport(plan->id));
    }

    void save()
    {
        const auto detail = answer("load", service->loadSkill(m_demo));
        answer("save", service->saveSkill(m_demo, detail ? detail->manifest.revision : 1, u"texte"_s));
    }

    /// The operation's result, or nothing where it refuses. An operation that hangs ends the whole process:
    /// there is no other way to stop it.
    template <typename Result>
    std::optional<Result> answer(const char *name, const QFuture<Result> &future)
    {
        constexpr std::chrono::seconds longestWait{20};
        const auto deadline = std::chrono::steady_clock::now() + longestWait;
        while (!future.isFinished()) {
            if (std::chrono::steady_clock::now() > deadline) {
                std::cerr << "no answer to " << name << ", seed " << m_seed << '\n';
                std::abort();
            }
            std::this_thread::sleep_for(std::chrono::microseconds(100));
        }
        ++m_count.operations;
        try {
            return future.result();
        } catch (const VORNELWorkspaceError &) {
        } catch (const std::system_error &error) {
            EXPECT_NE(error.code(), std::errc::too_many_files_open) << name << ": " << error.what();
        } catch (const std::exception &error) {
            ADD_FAILURE() << name << ": " << error.what();
        }
        ++m_count.refused;
        return std::nullopt;
    }

    unsigned m_seed;
    QUuid m_demo;
    QUuid m_gone;
    RandomTree m_tree;
    fs::path m_folder; ///< what the tree is put into
    Count m_count;
};

unsigned fromEnvironment(const char *variable, unsigned otherwise)
{
    const char *text = std::getenv(variable);
    return text == nullptr ? otherwise : static_cast<unsigned>(std::strtoul(text, nullptr, 10));
}

class HostileTree : public testing::Test
{
protected:
    /// Limits the process to the usual number of descriptors, and gives up root's right to read everything.
    static void SetUpTestSuite()
    {
        constexpr uid_t nobody = 65534;
        if (::geteuid() == 0 && ::seteuid(nobody) == 0)
            ::prctl(PR_SET_DUMPABLE, 1); // without which /proc is closed to this process
        rlimit descriptors{};
        ::getrlimit(RLIMIT_NOFILE, &descriptors);
        descriptors.rlim_cur = std::min<rlim_t>(descriptors.rlim_max, 1024);
        ::setrlimit(RLIMIT_NOFILE, &descriptors);
    }

    /// Restores the rights that the process began with, which the search for leaks at the end needs.
    static void TearDownTestSuite() { ASSERT_EQ(::seteuid(::getuid()), 0); }

    static void besiege(Place place)
    {
        const unsigned first = fromEnvironment("VORNEL_TREE_SEED", 1);
        const unsigned trees = fromEnvironment("VORNEL_TREES", 50);
        std::size_t descriptors = 0;
        Count all;
        for (unsigned seed = first; seed < first + trees; ++seed) {
            SCOPED_TRACE("seed " + std::to_string(seed));
            Siege siege(place, seed);
            const Count count = siege.run();
            siege.end();
            all.operations += count.operations;
            all.refused += count.refused;
            // The first service opens descriptors that all threads share and keep; they don't count.
            descriptors = seed == first ? openDescriptors() : descriptors;
        }
        std::cout << "trees: " << trees << ", operations: " << all.operations << ", refused: " << all.refused
                  << std::endl;
        EXPECT_EQ(openDescriptors(), descriptors);
    }
};

TEST_F(HostileTree, IsImportedOrRefused)
{
    besiege(Place::Source);
}

TEST_F(HostileTree, IsACopyLikeAnyOther)
{
    besiege(Place::Copy);
}

TEST_F(HostileTree, HarmsNobodyFromTheLibrary)
{
    besiege(Place::Library);
}

TEST_F(HostileTree, LeavesTheTrash)
{
    besiege(Place::Trash);
}

} // namespace
} // namespace vornel
