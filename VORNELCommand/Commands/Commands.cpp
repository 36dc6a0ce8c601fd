#include "Commands.h"

#include "Command.h"

#include <algorithm>

namespace vornel {

namespace {

/// In the order of the help.
const QList<Command> &commands()
{
    static const QList<Command> all = lookingCommands() + importCommands() + exchangeCommands() +
                                      editingCommands() + fileCommands() + propertyCommands() +
                                      syncCommands() + adoptionCommands() + historyCommands() +
                                      categoryCommands() + trashCommands() + recoveryCommands();
    return all;
}

} // namespace

QList<CommandSyntax> commandSyntaxes()
{
    QList<CommandSyntax> syntaxes;
    for (const Command &command : commands())
        syntaxes.append(command.syntax);
    return syntaxes;
}

int runCommand(const Invocation &invocation, const Services &services, const WorkspaceOverview &overview)
{
    const auto command = std::ranges::find(commands(), invocation.command, [](const Command &candidate) {
        return candidate.syntax.name.join(u' ');
    });
    return command->run({invocation, services, overview, SkillDrift(services.copies)});
}

} // namespace vornel
