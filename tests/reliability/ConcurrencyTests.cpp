/// Several programs on one workspace: real processes of vornelctl, and services in one process.

#include "StartingState.h"
#include "Vornelctl.h"

#include <QJsonArray>

#include <atomic>
#include <chrono>
#include <set>
#include <thread>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

class Concurrency : public Vornelctl
{
protected:
    /// Begins `count` processes at once, each with the arguments that `command` makes of its number.
    template <typename Command>
    std::vector<Process> startEach(int count, const Command &command) const
    {
        std::vector<Process> processes;
        for (int number = 1; number <= count; ++number)
            processes.push_back(start(command(number)));
        return processes;
    }

    static void expectSuccess(const std::vector<Result> &results)
    {
        for (const Result &result : results)
            EXPECT_EQ(result.code, 0) << result.errors.constData();
    }

    /// Checks that no lock file, no stage and no unfinished file stays behind, in the workspace or in a copy.
    void expectNothingLeft() const
    {
        EXPECT_EQ(names("ws"), (std::vector<std::string>{".vornel", "skills"}));
        EXPECT_EQ(names("ws/.vornel"),
                  (std::vector<std::string>{"categories.json", "events", "history", "recovery", "staging",
                                            "trash", "workspace.json"}));
        EXPECT_TRUE(names("ws/.vornel/staging").empty());
        EXPECT_TRUE(names("ws/.vornel/recovery").empty());
        EXPECT_EQ(names("codex"), names("ws/skills"));
        EXPECT_EQ(names("home/.claude/skills"), names("ws/skills"));
    }
};

TEST_F(Concurrency, TwelveFirstStartsMakeOneWorkspace)
{
    const auto processes = startEach(12, [](int) { return QStringList{u"status"_s, u"--json"_s}; });
    std::set<std::string> metadata;
    const auto look = [&] { metadata.insert(bytesOf(path("ws/.vornel/workspace.json"))); };
    while (processes.back()->state() != QProcess::NotRunning && !processes.back()->waitForFinished(1))
        look();
    expectSuccess(finish(processes));
    look();
    metadata.erase(std::string{});
    EXPECT_EQ(metadata.size(), 1U) << "the workspace was made more than once";
    fs::create_directories(path("codex"));
    fs::create_directories(path("home/.claude/skills"));
    expectNothingLeft();
}

TEST_F(Concurrency, TwelveCreationsAllSucceed)
{
    expectSuccess(finish(startEach(12, [](int number) {
        const QString slug = u"skill-"_s + QString::number(number);
        return QStringList{u"create"_s, slug, u"--name"_s, slug};
    })));
    const Result status = run("status --json");
    EXPECT_EQ(status.code, 0) << "a copy is missing or differs";
    const QJsonArray skills = status.json()[u"skills"].toArray();
    EXPECT_EQ(skills.size(), 12);
    for (const QJsonValue &skill : skills)
        EXPECT_EQ(names("ws/.vornel/history/" + skill[u"id"].toString().toStdString()).size(), 1U);
    expectNothingLeft();
}

TEST_F(Concurrency, OfSixSavesWithOneRevisionOneSucceeds)
{
    constexpr int rounds = 5;
    ASSERT_EQ(run("create demo --name Démo").code, 0);
    for (int round = 1; round <= rounds; ++round) {
        const QString revision = QString::number(round);
        const auto results = finish(startEach(6, [&](int number) {
            const std::string file = "text" + std::to_string(number);
            write(file, revision.toStdString() + " by " + std::to_string(number));
            return QStringList{u"save"_s,  u"demo"_s,   u"--expect"_s,
                               revision,   u"--file"_s, QString::fromStdString(file),
                               u"--json"_s};
        }));
        QStringList saved;
        for (const Result &result : results) {
            if (result.code == 0) {
                saved.append(result.json()[u"skillMD"].toString());
                continue;
            }
            EXPECT_EQ(result.code, 2);
            EXPECT_EQ(result.error()[u"error"], u"revisionConflict"_s);
            EXPECT_EQ(result.error()[u"message"],
                      QString(u"Révision obsolète (attendue %1, actuelle %2)."_s).arg(round).arg(round + 1));
        }
        ASSERT_EQ(saved.size(), 1);
        EXPECT_EQ(bytesOf(path("codex/demo/SKILL.md")), saved.first().toStdString());
    }
    EXPECT_EQ(run("show demo --json").json()[u"manifest"][u"revision"], rounds + 1);
    expectNothingLeft();
}

TEST_F(Concurrency, ReadersSeeNoHalfChange)
{
    constexpr int saves = 20;
    ASSERT_EQ(run("create demo --name Démo --file -", "1").code, 0);
    write("ws/skills/demo/data", std::string(2'000'000, 'x')); // so that a change takes some time
    ASSERT_EQ(run("sync demo").code, 0);
    LocalWorkspaceService writer(std::make_shared<PosixFileSystem>());
    const QUuid id =
        writer.bootstrap(path("ws"), path("home/.claude/skills"), path("codex")).result().skills.first().id;
    QList<QFuture<SkillDetail>> written;
    for (int revision = 1; revision <= saves; ++revision)
        written.append(writer.saveSkill(id, revision, QString::number(revision + 1)));

    while (!written.last().isFinished()) {
        const auto readers = startEach(4, [](int number) {
            return number % 2 == 0 ? QStringList{u"status"_s}
                                   : QStringList{u"show"_s, u"demo"_s, u"--json"_s};
        });
        for (const Process &reader : readers) {
            const Result result = finish(*reader);
            EXPECT_EQ(result.code, 0) << result.output.constData() << result.errors.constData();
            const QJsonObject detail = result.json().object();
            EXPECT_EQ(detail[u"skillMD"].toString().toInt(), detail[u"manifest"][u"revision"].toInt());
            EXPECT_EQ(detail[u"syncState"].toString(u"inSync"_s), u"inSync"_s);
        }
    }
    EXPECT_EQ(written.last().result().manifest.revision, saves + 1);
    expectNothingLeft();
}

TEST(HeldWorkspace, SaysAfterTenSecondsThatTheWorkspaceIsBusy)
{
    TestWorkspace workspace;
    const QUuid id = workspace.create(u"demo"_s).manifest.id;
    const auto writer = startService(workspace.path());
    const auto start = Clock::now();
    {
        const WorkspaceHold held(workspace.path("workspace"));
        auto read = workspace.service->reload();
        auto written = writer->saveSkill(id, 1, u"neuf"_s);
        EXPECT_EQ(errorOf([&] { read.result(); }),
                  integrity(u"Le workspace est occupé par un autre programme."_s));
        EXPECT_EQ(errorOf([&] { written.result(); }),
                  integrity(u"Le workspace est occupé par un autre programme."_s));
    }
    EXPECT_GE(Clock::now() - start, 10s);
    EXPECT_LT(Clock::now() - start, 20s);
    EXPECT_EQ(writer->saveSkill(id, 1, u"neuf"_s).result().manifest.revision, 2);
}

/// Whether an operation ends while somebody else holds its workspace.
template <typename T>
bool endsWithin(std::chrono::milliseconds time, const QFuture<T> &operation)
{
    const auto deadline = Clock::now() + time;
    while (!operation.isFinished() && Clock::now() < deadline)
        std::this_thread::sleep_for(1ms);
    return operation.isFinished();
}

TEST(HeldWorkspace, ReadersWaitForWritersOnly)
{
    TestWorkspace workspace;
    const QUuid id = workspace.create(u"demo"_s).manifest.id;
    QFuture<WorkspaceOverview> reading;
    {
        const WorkspaceHold held(workspace.path("workspace"), LockMode::Exclusive);
        reading = workspace.service->reload();
        EXPECT_FALSE(endsWithin(200ms, reading));
    }
    EXPECT_EQ(reading.result().skills.size(), 1);

    QFuture<SkillDetail> writing;
    {
        const WorkspaceHold held(workspace.path("workspace"), LockMode::Shared);
        const auto expectAnswer = [](const auto &answer) { EXPECT_NO_THROW(answer.result()); };
        expectAnswer(workspace.service->loadSkill(id));
        expectAnswer(workspace.service->scanImports());
        expectAnswer(workspace.service->inspectCopies(id));
        expectAnswer(workspace.service->trashDates());
        writing = workspace.service->saveSkill(id, 1, u"neuf"_s);
        EXPECT_FALSE(endsWithin(200ms, writing));
    }
    EXPECT_EQ(writing.result().manifest.revision, 2);
}

/// Threads that read the workspace again and again for as long as it lives.
class ReaderStream
{
public:
    explicit ReaderStream(const TestWorkspace &workspace)
    {
        for (int number = 0; number < 8; ++number)
            m_readers.emplace_back([this, &workspace] { readOn(workspace); });
        while (m_reads < 16 && !m_isOver)
            std::this_thread::sleep_for(1ms);
    }
    ~ReaderStream() { m_isOver = true; }
    ReaderStream(const ReaderStream &) = delete;
    ReaderStream &operator=(const ReaderStream &) = delete;

private:
    void readOn(const TestWorkspace &workspace)
    try {
        const auto reader = startService(workspace.path());
        for (; !m_isOver; ++m_reads)
            reader->reload().waitForFinished();
    } catch (const std::exception &error) {
        ADD_FAILURE() << "a reader was refused: " << error.what();
        m_isOver = true;
    }

    std::atomic<bool> m_isOver = false;
    std::atomic<int> m_reads = 0;
    std::vector<std::jthread> m_readers;
};

TEST(HeldWorkspace, AWriterGetsThroughAConstantStreamOfReaders)
{
    TestWorkspace workspace;
    const QUuid id = workspace.create(u"demo"_s).manifest.id;
    const QUuid large = workspace.create(u"large"_s).manifest.id;
    workspace.write("workspace/skills/large/data", std::string(8'000'000, 'x'));
    workspace.service->synchronize(large).waitForFinished();

    const ReaderStream readers(workspace);
    for (int revision = 1; revision <= 10; ++revision) {
        const auto start = Clock::now();
        ASSERT_NO_THROW(workspace.service->saveSkill(id, revision, u"neuf"_s).waitForFinished());
        EXPECT_LT(Clock::now() - start, 5s);
    }
}

} // namespace
} // namespace vornel
