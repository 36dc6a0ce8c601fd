#include "DuplicationForm.h"

using namespace Qt::StringLiterals;

namespace vornel {

void DuplicationForm::begin(QUuid id, const QString &slug)
{
    m_id = id;
    QString free = slug + u"-copie"_s;
    for (int number = 2; isTaken(free, Destination::library) || isTaken(free, Destination::trash); ++number)
        free = slug + u"-copie-"_s + QString::number(number);
    beginWith(free);
}

void DuplicationForm::submit()
{
    await(model()->duplicateSkill(m_id, slug()));
}

} // namespace vornel
