#pragma once

#include <QHash>
#include <QStringList>

#include <limits>
#include <stdexcept>

namespace vornel {

/// What a command accepts besides the options common to all.
struct CommandSyntax
{
    QString name; ///< one word, or two: "category create"
    QStringList requiredOptions;
    QStringList options; ///< with a value each, and possibly repeated
    QStringList flags;   ///< without a value; "all" stands for every operand
    int minOperands = 0;
    int maxOperands = 0;

    static constexpr int unbounded = std::numeric_limits<int>::max();
};

/// What the user typed, checked against the syntax of a command.
struct Invocation
{
    QString command;
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
/// command's name, until "--" ends them. "help" and "version" are commands of their own.
Invocation parseCommandLine(const QStringList &arguments, const QList<CommandSyntax> &commands);

/// The whole usage, in French.
QString usageText();

} // namespace vornel
