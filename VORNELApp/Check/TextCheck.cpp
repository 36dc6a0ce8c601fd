#include "TextCheck.h"

#include <VORNELCore/Library/Wording.h>

#include <QTextBlock>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vornel {

QString FoundProblem::place() const
{
    if (path != u"SKILL.md"_s)
        return path;
    return line == 0 ? QString() : u"ligne %1"_s.arg(line);
}

// Without an answer, as when the skill has gone, nothing is said of it.
TextCheck::TextCheck(QObject *parent)
    : FixedRowListModel(parent),
      m_checking(this, [this](const Problems &answer) { show(answer.value.value_or(QList<SkillProblem>())); })
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(400ms);
    connect(&m_pause, &QTimer::timeout, this, &TextCheck::check);
    connect(this, &TextCheck::modelChanged, this, &TextCheck::follow);
}

void TextCheck::follow()
{
    const SkillDraft *const draft = m_model->openSkill()->draft();
    connect(draft, &SkillDraft::edited, &m_pause, qOverload<>(&QTimer::start));
    connect(draft, &SkillDraft::begun, this, &TextCheck::check);
    connect(m_model, &AppModel::overviewRead, this, &TextCheck::check);
    check();
}

void TextCheck::check()
{
    m_pause.stop();
    const std::optional<SkillDetail> &skill = m_model->selectedSkill();
    if (!skill) {
        m_checking.forget();
        return show({});
    }
    m_checking.ask(
        [&checker = m_model->checker(), id = skill->manifest.id,
         text = m_model->openSkill()->draft()->text()] { return answerOf(checker.checkText(id, text)); });
}

void TextCheck::show(const QList<SkillProblem> &problems)
{
    QList<FoundProblem> found;
    for (const SkillProblem &problem : problems)
        found.append({problem.severity == ProblemSeverity::error, problem.path,
                      static_cast<int>(problem.line), problem.message});
    std::ranges::stable_partition(found, &FoundProblem::isError);
    if (found == records())
        return;
    setRecords(found);
    m_errorCount = static_cast<int>(std::ranges::count(found, true, &FoundProblem::isError));
    Q_EMIT changed();
}

QString TextCheck::countText() const
{
    return Wording::countedProblems(m_errorCount, count() - m_errorCount);
}

int TextCheck::position(int line) const
{
    return std::max(0, m_document->textDocument()->findBlockByNumber(line - 1).position());
}

} // namespace vornel
