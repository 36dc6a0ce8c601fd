/// What a save of one line costs in a skill of many files, beside one in a skill of a single file: both in
/// one library, one after the other, in a new folder below the current one. Prints the rows of the table in
/// benchmarks/README.md, and fails where a limit is passed.

#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/PosixFileSystem.h>
#include <VORNELInfrastructure/Workspace/LocalWorkspaceService.h>

#include <QDir>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <random>
#include <set>
#include <thread>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace vornel;
using namespace Qt::StringLiterals;

constexpr int rounds = 9;
constexpr int files = 83;
constexpr std::size_t fileSize = 66'000; // 5.5 MB in all
constexpr double mostTimes = 2;
constexpr std::int64_t mostBytes = 64L * 1024;

/// Bytes that no file system makes smaller.
std::string noise(std::mt19937_64 &random)
{
    std::string bytes(fileSize, '\0');
    std::ranges::generate(bytes, [&random] { return static_cast<char>(random()); });
    return bytes;
}

void fill(const fs::path &skill)
{
    std::mt19937_64 random(1);
    for (int number = 1; number < files; ++number) {
        const fs::path file = skill / std::to_string(number % 8) / std::to_string(number);
        fs::create_directories(file.parent_path());
        std::ofstream(file) << noise(random);
        fs::last_write_time(file, fs::file_time_type::clock::now() - std::chrono::hours(1));
    }
}

/// The room that a folder takes on the disk, a file with several names once.
std::int64_t roomOf(const fs::path &folder)
{
    std::set<ino_t> seen;
    std::int64_t blocks = 0;
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(folder)) {
        struct stat status
        {};
        if (::lstat(entry.path().c_str(), &status) == 0 && seen.insert(status.st_ino).second)
            blocks += status.st_blocks;
    }
    return blocks * 512;
}

/// A skill that is saved again and again.
class Edited
{
public:
    Edited(LocalWorkspaceService &service, const QString &slug) : m_service(service)
    {
        CreateSkillRequest request;
        request.slug = request.displayName = slug;
        request.category = SkillCategory::otherID;
        const SkillManifest manifest = service.createSkill(request).result().manifest;
        m_id = manifest.id;
    }

    void synchronize() { m_service.synchronize(m_id).waitForFinished(); }

    /// Seconds that a save of another line takes.
    double save()
    {
        const auto start = std::chrono::steady_clock::now();
        m_service.saveSkill(m_id, m_revision, u"# Texte\n\nligne %1\n"_s.arg(m_revision)).result();
        ++m_revision;
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

private:
    LocalWorkspaceService &m_service;
    QUuid m_id;
    qint64 m_revision = 1;
};

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

} // namespace

int main()
{
    const QTemporaryDir folder(QDir::current().filePath(u"save-XXXXXX"_s));
    const fs::path path = pathFromText(folder.path());
    LocalWorkspaceService service(std::make_shared<PosixFileSystem>());
    service.bootstrap(path / "workspace", path / "claude", path / "codex").waitForFinished();
    Edited one(service, u"one"_s);
    Edited many(service, u"many"_s);
    fill(path / "workspace/skills/many");
    many.synchronize();
    std::this_thread::sleep_for(std::chrono::seconds(3)); // a file that was just written is read each time

    std::vector<double> ratios;
    std::vector<double> seconds;
    std::vector<double> added;
    for (int round = 0; round < rounds; ++round) {
        const double ofOne = one.save();
        ::sync();
        const std::int64_t before = roomOf(path / "workspace");
        seconds.push_back(many.save());
        ratios.push_back(seconds.back() / ofOne);
        ::sync();
        added.push_back(static_cast<double>(roomOf(path / "workspace") - before));
    }
    const double times = median(ratios);
    const double bytes = *std::ranges::max_element(added);
    std::printf("| work | beside | measured | must reach |\n|---|---|---|---|\n");
    std::printf(
        "| save of one line, a skill of %d files and 5.5 MB | the same, a skill of one file | %.2f times "
        "| at most %.2f times |\n",
        files, times, mostTimes);
    std::printf("| what it adds to the workspace, at most | | %.0f KiB | at most %ld KiB |\n", bytes / 1024,
                mostBytes / 1024);
    std::fprintf(stderr, "%.1f ms (median)\n", median(seconds) * 1000);
    return times <= mostTimes && bytes <= mostBytes ? 0 : 1;
}
