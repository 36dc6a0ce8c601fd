#pragma once

#include <QFuture>
#include <QList>
#include <QString>
#include <QStringList>

/// What is written for people: aligned columns, colour and progress where a terminal shows them.
namespace vornel::Terminal {

enum class Colour { Plain, Success, Warning, Danger, Muted };

/// `text` in `colour` when standard output is a terminal that shows colours.
QString coloured(const QString &text, Colour colour);

/// The text without characters that could command the terminal or change the order of a line.
QString printable(const QString &text);

/// `printable` text on one line, its white space reduced to single blanks.
QString oneLine(const QString &text);

/// A cell of a table.
struct Cell
{
    QString text;
    Colour colour = Colour::Plain;
};

/// The rows in columns, two blanks apart, aligned whatever the width of their characters.
QString table(const QList<QList<Cell>> &rows);

/// Writes to standard output; throws `std::system_error` when that can't be written.
void print(const QString &text);

/// The same for bytes, of a file for example, as they are.
void printBytes(QByteArrayView bytes);

/// Writes a line to standard error.
void printError(const QString &line);

/// Shows the progress of `work` on standard error until it is finished, where that is a terminal; elsewhere
/// nothing.
void followProgress(const QString &label, const QFuture<void> &work);

} // namespace vornel::Terminal
