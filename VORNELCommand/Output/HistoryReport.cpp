#include "HistoryReport.h"

#include "Cells.h"

#include <VORNELCore/Library/Wording.h>

using namespace Qt::StringLiterals;

namespace vornel::Report {

using Terminal::Cell;
using Terminal::Colour;

namespace {

Cell kindCell(const HistoryEntry &entry)
{
    if (entry.isCurrent)
        return {Wording::versionOrigin(entry) + u" (actuelle)"_s, Colour::Success};
    return {Wording::versionOrigin(entry),
            entry.kind == HistoryKind::replaced ? Colour::Warning : Colour::Plain};
}

} // namespace

QString history(const QList<HistoryEntry> &entries)
{
    QList<QList<Cell>> rows;
    for (const HistoryEntry &entry : entries)
        rows.append({{localDate(entry.date), Colour::Muted}, kindCell(entry), {entry.entry, Colour::Muted}});
    return rows.isEmpty() ? u"Aucune version\n"_s : Terminal::table(rows);
}

QString versions(const HistoryComparison &comparison)
{
    QList<QList<Cell>> files;
    for (const FileDifference &difference : comparison.differences)
        files.append({differenceCell(difference)});
    return files.isEmpty() ? u"Aucune différence\n"_s : Terminal::table(files);
}

QString pruned(const HistoryExtent &extent, bool isRehearsal)
{
    return (isRehearsal ? u"À supprimer\u00A0: "_s : u"Supprimé\u00A0: "_s) + Wording::historyExtent(extent) +
           u'\n';
}

} // namespace vornel::Report
