#pragma once

#include "Scratch.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <memory>
#include <vector>

namespace vornel {

/// What a process of vornelctl said, and how it ended.
struct Result
{
    int code;
    QByteArray output;
    QByteArray errors;

    QJsonDocument json() const { return QJsonDocument::fromJson(output); }
    QJsonObject error() const { return QJsonDocument::fromJson(errors).object(); }
};

/// Runs the real vornelctl on three folders in a scratch folder: "ws", "home/.claude/skills" and "codex".
class Vornelctl : public testing::Test, protected Scratch
{
protected:
    using Process = std::unique_ptr<QProcess>;

    /// Begins a process that reads `input`; one of its standard streams may be closed.
    Process start(const QStringList &arguments, const QByteArray &input = {}, int closedStream = -1) const;

    /// Waits for the end of a process. One that has to be waited for too long is killed, and fails the test.
    static Result finish(QProcess &process);

    static std::vector<Result> finish(const std::vector<Process> &processes);

    Result run(const QStringList &arguments, const QByteArray &input = {}, int closedStream = -1) const;

    /// The same, of a command line whose words are separated by blanks.
    Result run(const char *line, const QByteArray &input = {}, int closedStream = -1) const;
};

} // namespace vornel
