#include "HistoryReport.h"

#include "Cells.h"

#include <VORNELCore/Library/Wording.h>

using namespace Qt::StringLiterals;

namespace vornel::Report {

using Terminal::Cell;
using Terminal::Colour;

namespace {

QString kindText(const HistoryEntry &entry)
{
    if (entry.kind == HistoryKind::revision)
        return u"révision "_s + QString::number(entry.revision);
    switch (entry.origin) {
    case VersionOrigin::claude:
        return u"copie de Claude, remplacée"_s;
    case VersionOrigin::codex:
        return u"copie de Codex, remplacée"_s;
    case VersionOrigin::library:
        break;
    }
    return u"modifiée à la main, remplacée"_s;
}

Cell kindCell(const HistoryEntry &entry)
{
    if (entry.isCurrent)
        return {kindText(entry) + u" (actuelle)"_s, Colour::Success};
    return {kindText(entry), entry.kind == HistoryKind::replaced ? Colour::Warning : Colour::Plain};
}

QString countedVersions(qint64 count)
{
    return QString::number(count) + (count < 2 ? u" version"_s : u" versions"_s);
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
    const QString what = countedVersions(extent.entries) + u", "_s + Wording::fileSize(extent.size);
    return (isRehearsal ? u"À supprimer\u00A0: "_s : u"Supprimé\u00A0: "_s) + what + u'\n';
}

} // namespace vornel::Report
