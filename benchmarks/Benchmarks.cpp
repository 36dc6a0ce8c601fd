/// What the service costs beside the least work that could do the same. The library is the workspace of the
/// environment variables; large files are made by the benchmark itself.

#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/PosixFileSystem.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>
#include <VORNELInfrastructure/Workspace/DefaultWorkspaceLocator.h>
#include <VORNELInfrastructure/Workspace/LocalWorkspaceService.h>
#include <VORNELInfrastructure/Workspace/WorkspaceRoots.h>

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <openssl/evp.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <thread>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace vornel;

/// The roots that the environment names. Without them there are none, so that the user's own folders are
/// safe.
WorkspaceRoots roots()
{
    const Environment environment = [](const char *variable) {
        const char *value = std::getenv(variable);
        if (value == nullptr)
            throw std::runtime_error(std::string(variable) + " is not set");
        return value;
    };
    return WorkspaceRoots::fromEnvironment(environment, "/", DefaultWorkspaceLocator("/"));
}

void reload(benchmark::State &state)
{
    LocalWorkspaceService service(std::make_shared<PosixFileSystem>());
    const WorkspaceRoots places = roots();
    service.bootstrap(places.workspace, places.claude, places.codex).waitForFinished();
    qsizetype skills = 0;
    for (auto _ : state)
        skills = service.reload().result().skills.size();
    state.counters["skills"] = static_cast<double>(skills);
}

/// A SHA-256 with nothing around it.
class BareHash
{
public:
    void update(const char *data, std::size_t size) { EVP_DigestUpdate(m_context, data, size); }

    void finish()
    {
        std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
        EVP_DigestFinal_ex(m_context, digest.data(), nullptr);
        benchmark::DoNotOptimize(digest);
        EVP_DigestInit_ex2(m_context, m_algorithm, nullptr);
    }

    BareHash() { EVP_DigestInit_ex2(m_context, m_algorithm, nullptr); }
    BareHash(const BareHash &) = delete;
    BareHash &operator=(const BareHash &) = delete;
    ~BareHash()
    {
        EVP_MD_CTX_free(m_context);
        EVP_MD_free(m_algorithm);
    }

private:
    EVP_MD *m_algorithm = EVP_MD_fetch(nullptr, "SHA256", nullptr);
    EVP_MD_CTX *m_context = EVP_MD_CTX_new();
};

std::vector<std::string> libraryFiles()
{
    const WorkspaceRoots places = roots();
    std::vector<std::string> files;
    for (const fs::path &root : {places.workspace / "skills", places.claude, places.codex}) {
        for (const fs::directory_entry &entry : fs::recursive_directory_iterator(root)) {
            if (entry.is_regular_file())
                files.push_back(entry.path().native());
        }
    }
    return files;
}

void hashFiles(const std::vector<std::string> &files, std::atomic<std::size_t> &next)
{
    BareHash hash;
    std::array<char, 64UL * 1024> buffer;
    for (std::size_t index = next++; index < files.size(); index = next++) {
        const int fd = ::open(files[index].c_str(), O_RDONLY | O_CLOEXEC);
        for (ssize_t size = 0; (size = ::read(fd, buffer.data(), buffer.size())) > 0;)
            hash.update(buffer.data(), static_cast<std::size_t>(size));
        hash.finish();
        ::close(fd);
    }
}

/// The files of the library opened, read and hashed by two threads, their names known beforehand.
void bareOpenReadHash(benchmark::State &state)
{
    const std::vector<std::string> files = libraryFiles();
    for (auto _ : state) {
        std::atomic<std::size_t> next = 0;
        std::jthread other([&] { hashFiles(files, next); });
        hashFiles(files, next);
    }
    state.counters["files"] = static_cast<double>(files.size());
}

constexpr std::size_t largeFileSize = 24UL * 1024 * 1024;

void snapshotOfLargeFiles(benchmark::State &state)
{
    const QTemporaryDir folder;
    const fs::path path = pathFromText(folder.path());
    for (std::int64_t number = 0; number < state.range(0); ++number)
        std::ofstream(path / std::to_string(number)) << std::string(largeFileSize, 'x');
    PosixFileSystem files;
    files.confine({path});
    for (auto _ : state)
        benchmark::DoNotOptimize(SecureFileTree::snapshot(files, path, TreeFilter::all));
    state.SetBytesProcessed(state.iterations() * state.range(0) * static_cast<std::int64_t>(largeFileSize));
}

/// One such file's bytes hashed from memory by one thread, without any file.
void openSslSha256(benchmark::State &state)
{
    const std::string bytes(largeFileSize, 'x');
    BareHash hash;
    for (auto _ : state) {
        hash.update(bytes.data(), bytes.size());
        hash.finish();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(largeFileSize));
}

BENCHMARK(reload)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(bareOpenReadHash)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(snapshotOfLargeFiles)->Arg(1)->Arg(4)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(openSslSha256)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
