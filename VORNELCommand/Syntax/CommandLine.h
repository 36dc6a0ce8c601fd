#pragma once

#include "CommandSyntax.h"

#include <QHash>
#include <QStringList>

#include <stdexcept>

namespace vornel {

/// What the user typed, checked against the syntax of a command.
struct Invocation
{
    QString command; ///< its words with blanks between them; "help" and "version" are commands of their own
    QStringList operands;
    QHash<QString, QStringList> values; ///< by option; flags have an empty list

    bool has(const QString &option) const { return values.contains(option); }

    /// The option's last value.
    QString value(const QString &option, const QString &otherwise = {}) const;
};

/// The command line can't be understood; the message says why, in French.
class UsageError : public std::runtime_error
{
public:
    explicit UsageError(const QString &message) : std::runtime_error(message.toStdString()) {}
};

/// Reads the arguments, program name excluded. Options may stand anywhere, even between the words of a
/// command's name, until "--" ends them.
Invocation parseCommandLine(const QStringList &arguments, const QList<CommandSyntax> &commands);

/// The help, in French. The completions of the shells read it: a line that begins with two blanks states a
/// syntax, one with ten blanks continues it, one with six tells its meaning.
QString usageText(const QList<CommandSyntax> &commands);

} // namespace vornel
