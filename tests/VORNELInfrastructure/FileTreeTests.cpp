#include "FaultyFileSystem.h"
#include "Scratch.h"

#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/TreeOperations.h>
#include <VORNELInfrastructure/Tree/NaturalOrder.h>
#include <VORNELInfrastructure/Tree/ParallelMap.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <atomic>
#include <fstream>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

constexpr std::int64_t limit = 26'214'400;

class FileTree : public testing::Test, protected Scratch
{
protected:
    FileTree() { files.confine({path()}); }

    FileTreeSnapshot snapshot(TreeFilter filter = TreeFilter::all) const
    {
        return SecureFileTree::snapshot(files, path("tree"), filter);
    }

    std::vector<std::string> paths(TreeFilter filter) const
    {
        std::vector<std::string> paths;
        for (const FileTreeSnapshot::Entry &entry : snapshot(filter).entries)
            paths.push_back(entry.relativePath);
        return paths;
    }

    FaultyFileSystem files;
};

// The expected digests come from printf and sha256sum.
TEST_F(FileTree, HasTheDigestOfItsListing)
{
    fs::create_directories(path("tree"));
    EXPECT_EQ(snapshot().digest, "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    write("tree/a.txt", "hi");
    EXPECT_EQ(snapshot().digest, "152966219b8f3962398682bbc91af7268eb1058df286175da12756242d2ae4f1");
    fs::create_directories(path("tree/b"));
    EXPECT_EQ(snapshot().digest, "a71a8aaa36634f3e8db5388e90567ed568094d626d2d90d30e51fffc5afb68d1");
    EXPECT_EQ(SecureFileTree::snapshot(files, path("tree/"), TreeFilter::all).digest, snapshot().digest);
}

TEST_F(FileTree, IsListedByCodePoints)
{
    for (const char *file : {"tree/Z.md", "tree/a/x", "tree/a-b", "tree/é"})
        write(file, "");
    EXPECT_EQ(paths(TreeFilter::all), (std::vector<std::string>{"Z.md", "a", "a-b", "a/x", "é"}));
    EXPECT_EQ(snapshot().digest, "4b71aabf8cb6f86a73845d9f0d939b1bc0187ba27bfbfc66899ddcba46ed814d");
    EXPECT_EQ(snapshot().relativeFiles().size(), 4);
}

TEST_F(FileTree, LeavesOutHiddenEntriesAndTheManifest)
{
    for (const char *file : {"tree/.hidden/file", "tree/dir/.git/x", "tree/.DS_Store", "tree/vornel.json",
                             "tree/dir/vornel.json", "tree/Vornel.json", "tree/vornel.json.bak"})
        write(file, "x");
    EXPECT_EQ(paths(TreeFilter::all), (std::vector<std::string>{"Vornel.json", "dir", "dir/vornel.json",
                                                                "vornel.json", "vornel.json.bak"}));
    EXPECT_EQ(paths(TreeFilter::excludingManifest),
              (std::vector<std::string>{"Vornel.json", "dir", "vornel.json.bak"}));
}

TEST_F(FileTree, RefusesLinksWhereverItListsThem)
{
    write("tree/.hidden/file", "x");
    fs::create_symlink("/etc/passwd", path("tree/.hidden/link"));
    EXPECT_NO_THROW(snapshot());
    fs::create_directories(path("tree/sub"));
    fs::create_symlink("nowhere", path("tree/sub/.link"));
    EXPECT_EQ(errorOf([&] { snapshot(); }), Error::symlinkUnsupported(u"sub/.link"_s));

    fs::create_directory_symlink(path("tree/.hidden"), path("linked"));
    EXPECT_EQ(errorOf([&] { SecureFileTree::snapshot(files, path("linked"), TreeFilter::all); }),
              Error::symlinkUnsupported(pathText(path("linked"))));
}

TEST_F(FileTree, RefusesWhatIsNoFolderOrFile)
{
    write("file", "x");
    EXPECT_EQ(errorOf([&] { SecureFileTree::snapshot(files, path("file"), TreeFilter::all); }),
              integrity(u"La racine n’est pas un dossier : file"_s));
    EXPECT_THROW(SecureFileTree::snapshot(files, path("nowhere"), TreeFilter::all), fs::filesystem_error);

    fs::create_directories(path("tree"));
    ASSERT_EQ(::mkfifo(path("tree/pipe").c_str(), 0600), 0);
    EXPECT_EQ(errorOf([&] { snapshot(); }), Error::unsafeImport(u"pipe"_s));
    fs::remove(path("tree/pipe"));

    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path("tree/socket").string().copy(address.sun_path, sizeof(address.sun_path) - 1);
    const Descriptor socket(::socket(AF_UNIX, SOCK_STREAM, 0));
    ASSERT_EQ(::bind(socket.fd(), reinterpret_cast<const sockaddr *>(&address), sizeof(address)), 0);
    EXPECT_EQ(errorOf([&] { snapshot(); }), Error::unsafeImport(u"socket"_s));
    fs::remove(path("tree/socket"));

    write("tree/caf\xE9", "latin-1 name");
    EXPECT_EQ(errorOf([&] { snapshot(); }), Error::unsafeImport(u"caf\uFFFD"_s));
    fs::remove(path("tree/caf\xE9"));

    write("tree/.caf\xE9/x", "is passed over like any hidden entry");
    EXPECT_NO_THROW(snapshot());
    fs::create_symlink("nowhere", path("tree/.l\xE9"));
    EXPECT_EQ(errorOf([&] { snapshot(); }), Error::symlinkUnsupported(u".l\uFFFD"_s));
    fs::remove(path("tree/.l\xE9"));

    write("tree/.vornel/x", "");
    EXPECT_EQ(errorOf([&] { snapshot(); }), Error::invalidPath(PathViolation::reserved));
}

TEST_F(FileTree, TellsWhatComesFirstByName)
{
    fs::resize_file(write("tree/2/large", ""), limit + 1);
    fs::create_symlink("nowhere", path("tree/10"));
    write("tree/1/file", "x");
    EXPECT_EQ(errorOf([&] { snapshot(); }), Error::unsafeImport(u"2/large"_s));
    fs::create_symlink("nowhere", path("tree/1/link"));
    EXPECT_EQ(errorOf([&] { snapshot(); }), Error::symlinkUnsupported(u"1/link"_s));

    fs::resize_file(write("tree/0", ""), 1'048'576); // large files are read after the others
    bool hasFailed = true;
    for (int number = 1; hasFailed; ++number) {
        files.failAt(number, FaultyFileSystem::Call::Look);
        try {
            snapshot();
        } catch (const fs::filesystem_error &) { // the injected fault
        } catch (const Error &) {
            EXPECT_FALSE(files.hasFailed()) << "look " << number << " came before the link";
        }
        hasFailed = files.hasFailed();
    }
}

TEST_F(FileTree, AcceptsFilesUpToTheLimit)
{
    fs::resize_file(write("tree/big", ""), limit);
    fs::resize_file(write("tree/big-too", ""), limit);
    EXPECT_EQ(snapshot().entries.at(0).size, limit);
    EXPECT_EQ(snapshot().entries.at(0).fileDigest, snapshot().entries.at(1).fileDigest);
    fs::resize_file(path("tree/big-too"), limit + 1);
    EXPECT_EQ(errorOf([&] { snapshot(); }), Error::unsafeImport(u"big-too"_s));
}

TEST_F(FileTree, RefusesEndlessNestingAndCanBeRemovedAllTheSame)
{
    fs::create_directories(path("tree"));
    int folder = ::open(path("tree").c_str(), O_DIRECTORY | O_CLOEXEC);
    for (int level = 0; level < 1500; ++level) {
        ASSERT_EQ(::mkdirat(folder, "d", 0700), 0);
        const int inner = ::openat(folder, "d", O_DIRECTORY | O_CLOEXEC);
        ::close(folder);
        folder = inner;
    }
    ::close(folder);
    const auto error = errorOf([&] { snapshot(); });
    ASSERT_TRUE(error);
    EXPECT_NE(error->as<WorkspaceErrorCase::UnsafeImport>(), nullptr);
    removeTree(files, path("tree"));
    EXPECT_FALSE(fs::exists(path("tree")));
}

TEST_F(FileTree, IsCopiedWithPermissionsOfItsOwn)
{
    const mode_t mask = ::umask(0);
    write("tree/sub/deeper/file", "bytes");
    write("tree/.hidden", "x");
    fs::permissions(path("tree/sub"), fs::perms::all);
    ::umask(0777);
    SecureFileTree::copyTree(files, path("tree"), path("new/copy"), TreeFilter::all);
    ::umask(mask);
    EXPECT_EQ(tree("new/copy"), (std::map<std::string, std::string>{
                                    {"sub/", ""}, {"sub/deeper/", ""}, {"sub/deeper/file", "bytes"}}));
    for (const char *folder : {"new", "new/copy", "new/copy/sub", "new/copy/sub/deeper"})
        EXPECT_EQ(permissionsOf(path(folder)), 0700) << folder;
    EXPECT_EQ(permissionsOf(path("new/copy/sub/deeper/file")), 0600);

    EXPECT_EQ(
        errorOf([&] { SecureFileTree::copyTree(files, path("tree"), path("new/copy"), TreeFilter::all); }),
        integrity(u"La destination existe déjà : copy"_s));
}

TEST_F(FileTree, LeavesNothingOfACopyThatFails)
{
    for (const char *file : {"tree/a", "tree/b/c", "tree/d"})
        write(file, "x");
    for (const auto kind : {FaultyFileSystem::Call::Look, FaultyFileSystem::Call::Change}) {
        int faults = 0;
        for (bool hasFailed = true; hasFailed; faults += hasFailed ? 1 : 0) {
            files.failAt(faults + 1, kind);
            try {
                SecureFileTree::copyTree(files, path("tree"), path("copy"), TreeFilter::all);
            } catch (const fs::filesystem_error &) {
                ASSERT_FALSE(fs::exists(path("copy"))) << "fault " << faults;
            }
            hasFailed = files.hasFailed();
        }
        EXPECT_GT(faults, 5);
        EXPECT_EQ(tree("copy"), tree("tree"));
        fs::remove_all(path("copy"));
    }
}

TEST_F(FileTree, IsConfinedToTheRoots)
{
    files.confine({path("tree")});
    write("tree/file", "x");
    write("treetop/file", "x");
    const Error outside = Error::invalidPath(PathViolation::outsideRoot);
    EXPECT_EQ(errorOf([&] { files.openFolder(path("treetop")); }), outside);
    EXPECT_EQ(errorOf([&] { files.openFolder(path("tree") / ".." / "treetop"); }), outside);
    EXPECT_EQ(errorOf([&] { moveTree(files, path("tree/file"), path("file")); }), outside);
    EXPECT_EQ(errorOf([&] { removeTree(files, path("treetop/file")); }), outside);
    fs::create_directory_symlink(path("treetop"), path("tree/link"));
    EXPECT_EQ(errorOf([&] { removeTree(files, path("tree/link/file")); }),
              Error::symlinkUnsupported(pathText(path("tree/link"))));
    removeTree(files, path("tree/link"));
    EXPECT_TRUE(fs::exists(path("treetop/file")));
}

TEST_F(FileTree, IsMovedWholeAndNeverOverAnother)
{
    write("tree/file", "x");
    write("other/file", "y");
    fs::create_directories(path("empty"));
    EXPECT_THROW(moveTree(files, path("tree"), path("empty")), fs::filesystem_error);
    EXPECT_THROW(moveTree(files, path("tree/file"), path("other/file")), fs::filesystem_error);
    EXPECT_EQ(bytesOf(path("other/file")), "y");
}

TEST_F(FileTree, IsMovedAcrossVolumes)
{
    QTemporaryDir elsewhere(u"/dev/shm/vornel-XXXXXX"_s);
    struct stat here
    {};
    struct stat there
    {};
    const fs::path other = pathFromText(elsewhere.path());
    if (!elsewhere.isValid() || ::stat(path().c_str(), &here) != 0 || ::stat(other.c_str(), &there) != 0 ||
        here.st_dev == there.st_dev)
        GTEST_SKIP() << "no second volume";
    files.confine({path(), other});
    write("tree/sub/.hidden", "x");
    write("tree/file", "y");
    fs::permissions(path("tree/file"), fs::perms::owner_all);
    fs::create_symlink("/etc", path("tree/sub/link"));
    moveTree(files, path("tree"), other / "moved");
    EXPECT_FALSE(fs::exists(path("tree")));
    EXPECT_EQ(bytesOf(other / "moved/sub/.hidden"), "x");
    EXPECT_EQ(permissionsOf(other / "moved/file"), 0700);
    EXPECT_TRUE(fs::is_symlink(other / "moved/sub/link"));

    ASSERT_EQ(::mkfifo((other / "moved/pipe").c_str(), 0600), 0);
    EXPECT_THROW(moveTree(files, other / "moved", path("back")), fs::filesystem_error);
    EXPECT_TRUE(names("").empty()) << "half a copy stayed behind";
    EXPECT_TRUE(fs::exists(other / "moved/file"));
}

TEST(NaturalOrder, IgnoresCaseAndCountsDigits)
{
    const std::vector<std::string> ordered{"a", "A1", "a2", "a02b", "a10", "B", "b-1"};
    for (std::size_t index = 1; index < ordered.size(); ++index) {
        EXPECT_TRUE(naturallyBefore(ordered[index - 1], ordered[index])) << ordered[index];
        EXPECT_FALSE(naturallyBefore(ordered[index], ordered[index - 1])) << ordered[index];
    }
}

/// Where no thread is idle, one is done after the other.
TEST(Together, DoesTheOtherWhereOneFails)
{
    std::atomic<int> done = 0;
    std::atomic<int> refused = 0;
    parallelFor(64, [&](std::size_t) {
        try {
            together([] { throw std::runtime_error("fails"); }, [&] { ++done; });
        } catch (const std::runtime_error &) {
            ++refused;
        }
    });
    EXPECT_EQ(done, 64);
    EXPECT_EQ(refused, 64);
}

} // namespace
} // namespace vornel
