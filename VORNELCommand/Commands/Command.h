#pragma once

#include "Session.h"

namespace vornel {

/// A command's syntax, and the function that runs it and returns the exit code.
struct Command
{
    CommandSyntax syntax;
    int (*run)(const Session &);
};

/// The commands, by what they are about. Each group is a section of the help or a part of one.
QList<Command> lookingCommands();
QList<Command> importCommands();
QList<Command> editingCommands();
QList<Command> fileCommands();
QList<Command> propertyCommands();
QList<Command> syncCommands();
QList<Command> adoptionCommands();
QList<Command> historyCommands();
QList<Command> categoryCommands();
QList<Command> trashCommands();
QList<Command> recoveryCommands();
QList<Command> exchangeCommands();

/// Prints what differs between the version that is named and another one, or what the library holds now;
/// returns the exit code.
int diffVersions(const Session &session, const QUuid &id);

/// The cases of an enumeration, as a usage offers them: "claude|codex".
template <typename E>
QString alternatives()
{
    QStringList names;
    for (const E each : allCases<E>())
        names.append(rawValue(each));
    return names.join(u'|');
}

} // namespace vornel
