#include "Cells.h"

using namespace Qt::StringLiterals;

namespace vornel::Report {

using Terminal::Cell;
using Terminal::Colour;

Cell differenceCell(const FileDifference &difference)
{
    switch (difference.change) {
    case FileChange::added:
        return {u"+ "_s + difference.relativePath, Colour::Success};
    case FileChange::removed:
        return {u"- "_s + difference.relativePath, Colour::Danger};
    case FileChange::changed:
        break;
    }
    return {u"~ "_s + difference.relativePath, Colour::Warning};
}

QString localDate(const QDateTime &date)
{
    return date.toLocalTime().toString(u"yyyy-MM-dd HH:mm"_s);
}

QString section(const QString &title, const QList<QList<Cell>> &rows)
{
    if (rows.isEmpty())
        return {};
    const QString heading = title + u" ("_s + QString::number(rows.size()) + u')';
    return Terminal::coloured(heading, Colour::Muted) + u'\n' + Terminal::table(rows);
}

} // namespace vornel::Report
