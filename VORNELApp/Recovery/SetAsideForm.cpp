#include "SetAsideForm.h"

namespace vornel {

void SetAsideForm::begin(const QString &copy, const QString &slug)
{
    m_copy = copy;
    beginWith(slug);
}

void SetAsideForm::submit()
{
    await(model()->restoreSetAside(m_copy, slug()));
}

} // namespace vornel
