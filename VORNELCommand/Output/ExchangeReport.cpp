#include "ExchangeReport.h"

#include "Cells.h"
#include "Terminal.h"

#include <VORNELCore/Library/Wording.h>

using namespace Qt::StringLiterals;

namespace vornel::Report {

using Terminal::Cell;
using Terminal::Colour;

namespace {

Cell additionCell(const SkillAddition &addition)
{
    if (addition.kind == AdditionKind::added)
        return {u"nouvelle compétence"_s, Colour::Success};
    if (addition.kind == AdditionKind::identical)
        return {u"déjà dans la bibliothèque, identique"_s, Colour::Muted};
    if (!addition.choice)
        return {u"contenu différent dans la bibliothèque"_s, Colour::Warning};
    if (addition.choice == AdditionChoice::library)
        return {u"la bibliothèque garde le sien"_s, Colour::Muted};
    return {u"révision "_s + QString::number(addition.revision + 1), Colour::Success};
}

} // namespace

QString exported(const SkillExport &written)
{
    const QString content = Wording::countedSkills(written.slugs.size());
    return Terminal::table({{{content}, {Wording::fileSize(written.size)}, {written.file}}});
}

QString additions(const QList<SkillAddition> &additions)
{
    QList<QList<Cell>> rows;
    for (const SkillAddition &addition : additions) {
        rows.append({{addition.slug}, additionCell(addition)});
        for (const FileDifference &difference : addition.differences)
            rows.append({{}, differenceCell(difference)});
    }
    return Terminal::table(rows);
}

} // namespace vornel::Report
