#include "CategoryForm.h"

#include <QPointer>

namespace vornel {

namespace {

/// Outlives the form, should its sheet go while the category is created.
QCoro::Task<> createFrom(QPointer<CategoryForm> form, AppModel *model, QString name, QString colorHex)
{
    // GCC 12 loses the frame of a coroutine that awaits in the middle of a condition.
    const bool succeeded = co_await model->createCategory(std::move(name), std::move(colorHex));
    if (succeeded && !form.isNull())
        Q_EMIT form->created();
}

} // namespace

void CategoryForm::submit()
{
    createFrom(this, m_model, m_name, m_colorHex);
}

void CategoryForm::reset()
{
    m_name.clear();
    m_colorHex = firstColor();
    Q_EMIT changed();
}

} // namespace vornel
