#include "FaultyFileSystem.h"
#include "Scratch.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

struct stat statusOf(const fs::path &file)
{
    struct stat status
    {};
    EXPECT_EQ(::lstat(file.c_str(), &status), 0) << file;
    return status;
}

bool areOneFile(const fs::path &a, const fs::path &b)
{
    return statusOf(a).st_ino == statusOf(b).st_ino;
}

/// A skill with a file of some size in the library and in both copies, at revision 1, and its history.
class SharedFiles : public testing::Test, protected TestWorkspace
{
protected:
    SharedFiles() : TestWorkspace(std::make_shared<FaultyFileSystem>()), demo(create(u"demo"_s).manifest.id)
    {
        write("workspace/skills/demo/data/large", large);
        service->synchronize(demo).waitForFinished();
    }

    FaultyFileSystem &disk() const { return static_cast<FaultyFileSystem &>(*manager); }

    void save(const QString &text) { service->saveSkill(demo, ++revision - 1, text).result(); }

    std::string history() const { return "workspace/.vornel/history/" + uuidText(demo).toStdString(); }

    /// The entry whose name begins so, of which there is one that holds `file`.
    fs::path entry(const std::string &prefix, const std::string &file = "data/large") const
    {
        for (const std::string &name : names(history())) {
            if (name.starts_with(prefix) && fs::exists(path(history() + '/' + name + '/' + file)))
                return path(history() + '/' + name);
        }
        ADD_FAILURE() << "no entry " << prefix;
        return {};
    }

    void expectNoneOutside()
    {
        for (const char *folder : {"workspace/skills", "claude", "codex"}) {
            for (const auto &file : fs::recursive_directory_iterator(path(folder)))
                EXPECT_TRUE(file.is_directory() || file.hard_link_count() == 1) << file.path();
        }
    }

    const std::string large = std::string(300'000, 'x');
    const QUuid demo;
    qint64 revision = 1;
};

TEST_F(SharedFiles, AreKeptOnceByAllEntries)
{
    save(u"two"_s);
    save(u"three"_s);
    EXPECT_TRUE(areOneFile(entry("2-") / "data/large", entry("3-") / "data/large"));
    EXPECT_TRUE(areOneFile(entry("2-") / "data/large", entry("replaced-library-1-") / "data/large"));
    EXPECT_FALSE(areOneFile(entry("2-") / "SKILL.md", entry("3-") / "SKILL.md"));
    expectNoneOutside();

    fs::create_directories(path("workspace/skills/demo/moved"));
    fs::rename(path("workspace/skills/demo/data/large"), path("workspace/skills/demo/moved/here"));
    std::string almost = large;
    almost[200'000] = 'y';
    write("workspace/skills/demo/data/large", almost);
    save(u"four"_s);
    const fs::path four = entry("4-", "moved/here");
    EXPECT_TRUE(areOneFile(four / "moved/here", entry("2-") / "data/large")) << "under another name";
    EXPECT_EQ(bytesOf(four / "data/large"), almost) << "of the same size, but not the same";

    disk().canShare = false;
    save(u"five"_s);
    EXPECT_EQ(bytesOf(entry("5-") / "moved/here"), large) << "copied where nothing can be shared";
    EXPECT_FALSE(areOneFile(entry("5-") / "moved/here", four / "moved/here"));
    expectNoneOutside();
}

TEST_F(SharedFiles, OfAReplacedCopyAreThoseOfTheHistory)
{
    write("claude/demo/.hidden", large);
    write("codex/demo/SKILL.md", "edited");
    const Tree edited = tree("codex/demo");
    const int standing = ::open(path("codex/demo").c_str(), O_DIRECTORY | O_PATH | O_CLOEXEC);
    service->synchronize(demo).waitForFinished();
    const fs::path kept = entry("replaced-codex-");
    EXPECT_EQ(treeOf(kept), edited);
    EXPECT_TRUE(areOneFile(kept / "data/large", entry("replaced-library-1-") / "data/large"));
    EXPECT_LT(::openat(standing, "data/large", O_WRONLY), 0) << "by who still stands in the folder";
    ::close(standing);
    EXPECT_TRUE(fs::is_empty(path("workspace/.vornel/staging")));

    save(u"next"_s);
    EXPECT_TRUE(areOneFile(entry("2-") / "data/large", entry("replaced-library-1-") / "data/large"));
    expectNoneOutside();

    service->moveToTrash(demo).waitForFinished();
    service->deletePermanently(demo).waitForFinished();
    EXPECT_EQ(std::ranges::count(trees("workspace/.vornel/recovery", {}), edited), 1);
    // What lies in the recovery folder may be edited there.
    for (const auto &file : fs::recursive_directory_iterator(path("workspace/.vornel/recovery")))
        EXPECT_TRUE(file.is_directory() || file.hard_link_count() == 1) << file.path();
}

TEST_F(SharedFiles, AreTakenOverFromWhatASaveReplaces)
{
    const std::vector<fs::path> all = {path("workspace/skills/demo/data/large"),
                                       path("claude/demo/data/large"), path("codex/demo/data/large")};
    const auto numbers = [&all] {
        std::vector<ino_t> found;
        for (const fs::path &file : all)
            found.push_back(statusOf(file).st_ino);
        return found;
    };
    const std::vector<ino_t> before = numbers();
    const ino_t folder = statusOf(path("claude/demo")).st_ino;
    write("codex/demo/.hidden", "hidden");
    save(u"one file"_s);
    EXPECT_EQ(statusOf(path("claude/demo")).st_ino, folder) << "replaced for one file";
    EXPECT_EQ(bytesOf(path("claude/demo/SKILL.md")), "one file");
    EXPECT_EQ(numbers(), (std::vector{before[0], before[1], statusOf(all[2]).st_ino}));
    EXPECT_NE(statusOf(all[2]).st_ino, before[2]) << "shared with the folder that is kept for what it hides";
    expectNoneOutside();

    fs::create_hard_link(all[1], path("elsewhere"));
    write("workspace/skills/demo/added", "more");
    save(u"two files"_s);
    EXPECT_EQ(statusOf(all[0]).st_ino, before[0]);
    EXPECT_NE(statusOf(all[1]).st_ino, before[1]) << "shared with a file that is none of ours";
    for (const char *copy : {"claude/demo", "codex/demo"}) {
        EXPECT_EQ(bytesOf(path(copy) / "added"), "more");
        EXPECT_EQ(bytesOf(path(copy) / "data/large"), large);
    }
    expectNoneOutside();
    EXPECT_TRUE(fs::is_empty(path("workspace/.vornel/staging")));
}

/// Whoever restores a file's time after a change of the same size is noticed all the same.
TEST_F(SharedFiles, AreReadAgainOnceTheyHaveChanged)
{
    const fs::path file = path("workspace/skills/demo/data/large");
    const auto lately = fs::last_write_time(file) - std::chrono::hours(1);
    fs::last_write_time(file, lately);
    save(u"two"_s);
    save(u"three"_s);
    std::string changed = large;
    changed.back() = 'y';
    write("workspace/skills/demo/data/large", changed);
    fs::last_write_time(file, lately);
    save(u"four"_s);
    EXPECT_EQ(bytesOf(entry("4-") / "data/large"), changed);
    EXPECT_EQ(bytesOf(path("codex/demo/data/large")), changed);
    EXPECT_EQ(bytesOf(entry("3-") / "data/large"), large);
}

TEST_F(SharedFiles, OfOthersChangeNothingThatIsKept)
{
    for (const bool canExchange : {true, false}) {
        disk().canExchange = canExchange;
        fs::remove(path("elsewhere"));
        fs::remove(path("hidden"));
        write("codex/demo/own", "edited");
        write("codex/demo/.hidden", "hidden");
        fs::create_hard_link(path("codex/demo/own"), path("elsewhere"));
        fs::create_hard_link(path("codex/demo/.hidden"), path("hidden"));
        service->synchronize(demo).waitForFinished();
        write("elsewhere", "changed later");
        write("hidden", "changed later");
        const fs::path kept = entry("replaced-codex-", "own");
        EXPECT_EQ(bytesOf(kept / "own"), "edited");
        EXPECT_EQ(bytesOf(kept / ".hidden"), "hidden");
        EXPECT_FALSE(fs::exists(path("codex/demo/own")));
        EXPECT_TRUE(trees("workspace/.vornel/recovery", "").empty());
        fs::remove_all(kept);
    }
}

} // namespace
} // namespace vornel
