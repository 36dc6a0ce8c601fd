#include "AdditionList.h"

#include <algorithm>

namespace vornel {

namespace {

bool isUndecided(const SkillAddition &addition)
{
    return !addition.choice;
}

bool concernsSameContents(const SkillAddition &addition, const SkillAddition &former)
{
    return addition.slug == former.slug && addition.digest == former.digest &&
           addition.revision == former.revision;
}

} // namespace

void AdditionList::begin(QList<SkillAddition> differing)
{
    for (SkillAddition &addition : differing) {
        for (const SkillAddition &former : records()) {
            if (concernsSameContents(addition, former))
                addition.choice = former.choice;
        }
    }
    beginResetModel();
    m_records = differing;
    endResetModel();
}

void AdditionList::choose(int row, AdditionChoice choice)
{
    SkillAddition decided = records().at(row);
    decided.choice = choice;
    setRecord(row, decided);
}

int AdditionList::undecidedCount() const
{
    return static_cast<int>(std::ranges::count_if(records(), isUndecided));
}

} // namespace vornel
