#include "AdditionComparison.h"

namespace vornel {

void AdditionComparison::look(const SkillAddition &addition)
{
    m_skillID = m_model->addition()->skillID(addition.slug);
    m_files.setDifferences(addition.differences);
    Q_EMIT changed();
}

} // namespace vornel
