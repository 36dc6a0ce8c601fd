#include "Vornelctl.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vornel {

Vornelctl::Process Vornelctl::start(const QStringList &arguments, const QByteArray &input,
                                    int closedStream) const
{
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C"_s);
    environment.insert(u"HOME"_s, pathText(path("home")));
    environment.insert(u"VORNEL_CODEX_SKILLS_PATH"_s, pathText(path("codex")));
    process->setProcessEnvironment(environment);
    process->setWorkingDirectory(pathText(path()));
    if (closedStream >= 0)
        process->setChildProcessModifier([closedStream] { ::close(closedStream); });
    process->start(QStringLiteral(VORNELCTL), QStringList{u"--workspace"_s, u"ws"_s} + arguments);
    process->write(input);
    process->closeWriteChannel();
    return process;
}

Result Vornelctl::finish(QProcess &process)
{
    constexpr int longestWait = 60'000;
    const bool isOver = process.state() == QProcess::NotRunning || process.waitForFinished(longestWait);
    EXPECT_TRUE(isOver) << process.arguments().join(u' ').toStdString() << " hangs";
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << process.arguments().join(u' ').toStdString();
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

std::vector<Result> Vornelctl::finish(const std::vector<Process> &processes)
{
    std::vector<Result> results;
    for (const Process &process : processes)
        results.push_back(finish(*process));
    return results;
}

Result Vornelctl::run(const QStringList &arguments, const QByteArray &input, int closedStream) const
{
    return finish(*start(arguments, input, closedStream));
}

Result Vornelctl::run(const char *line, const QByteArray &input, int closedStream) const
{
    return run(QString::fromUtf8(line).split(u' '), input, closedStream);
}

} // namespace vornel
