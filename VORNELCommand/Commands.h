#pragma once

#include "CommandLine.h"

#include <VORNELCore/TargetInspecting.h>
#include <VORNELCore/TrashInspecting.h>
#include <VORNELCore/WorkspaceServicing.h>

namespace vornel {

/// The program's exit codes.
namespace ExitCode {
inline constexpr int success = 0;
inline constexpr int needsAttention = 1;
inline constexpr int failure = 2;
inline constexpr int usage = 64;
} // namespace ExitCode

/// A failure of the program itself that goes by the name of one of the service's cases.
class CommandFailure : public std::runtime_error
{
public:
    CommandFailure(QString name, const QString &message)
        : std::runtime_error(message.toStdString()), caseName(std::move(name))
    {}

    QString caseName;
};

/// The syntax of every command.
QList<CommandSyntax> commandSyntaxes();

/// Runs a command on a service whose `bootstrap` returned `overview` and which looks into the copies and the
/// trash too, prints its result and returns the exit code. Throws what the service throws, and
/// `CommandFailure`.
int runCommand(const Invocation &invocation, WorkspaceServicing &service, TargetInspecting &copies,
               TrashInspecting &trash, const WorkspaceOverview &overview);

} // namespace vornel
