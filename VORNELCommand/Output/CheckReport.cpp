#include "CheckReport.h"

#include "Cells.h"

#include <VORNELCore/Library/Wording.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel::Report {

using Terminal::Cell;
using Terminal::Colour;

namespace {

QString place(const SkillProblem &problem)
{
    return problem.line == 0 ? problem.path : problem.path + u':' + QString::number(problem.line);
}

QList<Cell> row(const SkillProblem &problem)
{
    const bool isError = problem.severity == ProblemSeverity::error;
    return {{},
            {Wording::severity(problem.severity), isError ? Colour::Danger : Colour::Warning},
            {place(problem)},
            {problem.rule, Colour::Muted},
            {problem.message}};
}

} // namespace

QString problems(const QList<SkillProblem> &problems)
{
    QString text;
    QList<QList<Cell>> rows;
    for (qsizetype index = 0; index < problems.size(); ++index) {
        const QString &slug = problems.at(index).slug;
        rows.append(row(problems.at(index)));
        if (index + 1 < problems.size() && problems.at(index + 1).slug == slug)
            continue;
        text += section(slug, rows) + u'\n';
        rows.clear();
    }
    const auto errors = std::ranges::count(problems, ProblemSeverity::error, &SkillProblem::severity);
    return text + Wording::countedProblems(errors, problems.size() - errors) + u'\n';
}

} // namespace vornel::Report
