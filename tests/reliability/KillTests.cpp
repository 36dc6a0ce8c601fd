#include "Promises.h"
#include "Sample.h"
#include "SystemCalls.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <QProcess>

#include <sched.h>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

/// Lets a program work on one thread only, so that it makes the same calls in every run.
void stayOnThisProcessor()
{
    cpu_set_t processor;
    CPU_ZERO(&processor);
    CPU_SET(static_cast<size_t>(::sched_getcpu()), &processor);
    ::sched_setaffinity(0, sizeof processor, &processor);
}

class Killed : public testing::TestWithParam<Scenario>
{
protected:
    Killed() : m_rehearsal(GetParam()), m_log(m_rehearsal.path("log")) {}

    void SetUp() override
    {
        QProcess strace;
        strace.start(u"strace"_s, {u"-o"_s, u"/dev/null"_s, u"true"_s});
        strace.waitForFinished();
        if (strace.error() == QProcess::FailedToStart || strace.exitCode() != 0)
            GTEST_SKIP() << "strace is missing, or may not trace here";
    }

    /// `conditions` are further arguments of strace for every run.
    void killEverywhere(const QStringList &conditions)
    {
        ASSERT_TRUE(runTraced(conditions)) << m_errors.constData();
        const std::vector<KillPoint> points = killPoints(calls());
        checkPromises(m_rehearsal, Reported::Success);
        ASSERT_FALSE(HasFailure());
        ASSERT_GT(points.size(), 2U);
        Sample sample(GetParam(), 5);
        for (const int number : sample.of(static_cast<int>(points.size()))) {
            const KillPoint &point = points.at(static_cast<std::size_t>(number - 1));
            SCOPED_TRACE(testing::Message() << "killed at " << point.call.name << " no. " << point.ordinal
                                            << ": " << point.call.text);
            killAt(point, conditions);
            checkPromises(m_rehearsal);
            ASSERT_FALSE(HasFailure());
        }
        sample.print("kill points");
    }

private:
    /// Runs the operation with vornelctl, traced, on the starting state. Returns whether it has succeeded.
    bool runTraced(const QStringList &injections)
    {
        m_rehearsal.reset();
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LC_ALL"_s, u"C"_s);
        environment.insert(u"HOME"_s, pathText(m_rehearsal.path("home")));
        environment.insert(u"ASAN_OPTIONS"_s, u"detect_leaks=0"_s); // leaks can't be looked for when traced
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(pathText(m_rehearsal.folder()));
        process.setChildProcessModifier(stayOnThisProcessor);
        process.start(u"strace"_s, traceArguments(m_log) + injections + command());
        process.waitForFinished();
        m_errors = process.readAllStandardError();
        return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    }

    void killAt(const KillPoint &point, const QStringList &conditions)
    {
        const QString name = QString::fromStdString(point.call.name);
        const QString ordinal = QString::number(point.ordinal);
        const QString kill = u"inject="_s + name + u":signal=KILL:when="_s + ordinal;
        ASSERT_FALSE(runTraced(conditions + QStringList{u"-e"_s, kill}));
        const std::vector<SystemCall> run = calls();
        const auto last = std::ranges::find_if(run, &SystemCall::isCutShort);
        ASSERT_TRUE(last != run.end()) << "was not killed: " << m_errors.constData();
        ASSERT_EQ(last->text, point.call.text) << "was killed elsewhere";
    }

    std::vector<SystemCall> calls() const { return callsIn(m_log, m_rehearsal.folder()); }

    QStringList command() const
    {
        const QStringList roots{u"--workspace"_s, u"workspace"_s, u"--claude"_s,
                                u"claude"_s,      u"--codex"_s,   u"codex"_s};
        return QStringList{QStringLiteral(VORNELCTL)} + roots + m_rehearsal.scenario().arguments;
    }

    Rehearsal m_rehearsal;
    fs::path m_log;
    QByteArray m_errors;
};

TEST_P(Killed, AtAnyChange)
{
    killEverywhere({});
}

/// On a volume that can't exchange two folders, a swap takes two renames.
TEST_P(Killed, AtAnyChangeWithoutExchange)
{
    killEverywhere({u"-e"_s, u"inject=renameat2:error=EINVAL"_s});
}

std::vector<Scenario> commands()
{
    std::vector<Scenario> commands = scenarios();
    std::erase_if(commands, [](const Scenario &scenario) { return scenario.arguments.isEmpty(); });
    return commands;
}

INSTANTIATE_TEST_SUITE_P(Every, Killed, testing::ValuesIn(commands()), testing::PrintToStringParamName());

} // namespace
} // namespace vornel
