#include "CreateSkillForm.h"

#include <VORNELCore/LocaleText.h>
#include <VORNELCore/VORNELWorkspaceError.h>
#include <VORNELCore/WorkspaceValidation.h>

#include <QPointer>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// Outlives the form, should its sheet go while the skill is created.
QCoro::Task<> createFrom(QPointer<CreateSkillForm> form, AppModel *model, CreateSkillRequest request)
{
    // GCC 12 loses the frame of a coroutine that awaits in the middle of a condition.
    const bool succeeded = co_await model->createSkill(std::move(request));
    if (succeeded && !form.isNull())
        Q_EMIT form->created();
}

} // namespace

void CreateSkillForm::setDisplayName(const QString &name)
{
    m_request.displayName = name;
    if (!m_didEditSlug)
        m_request.slug = LocaleText::identifierFromTitle(name);
    Q_EMIT changed();
}

void CreateSkillForm::setSlug(const QString &slug)
{
    m_request.slug = slug;
    m_didEditSlug = true;
    Q_EMIT changed();
}

void CreateSkillForm::setSummary(const QString &summary)
{
    m_request.summary = summary;
    Q_EMIT changed();
}

QString CreateSkillForm::validationHint() const
{
    if (!hasName())
        return u"Le nom est requis."_s;
    return hasValidSlug() ? u"Prête à être créée."_s
                          : u"Utilisez uniquement des lettres, chiffres et tirets."_s;
}

void CreateSkillForm::submit()
{
    createFrom(this, m_model, m_request);
}

void CreateSkillForm::reset()
{
    m_request = emptyRequest();
    m_didEditSlug = false;
    Q_EMIT changed();
}

bool CreateSkillForm::hasValidSlug() const
{
    try {
        WorkspaceValidation::validateSlug(m_request.slug);
        return true;
    } catch (const VORNELWorkspaceError &) {
        return false;
    }
}

CreateSkillRequest CreateSkillForm::emptyRequest()
{
    CreateSkillRequest request;
    request.category = u"development"_s;
    return request;
}

} // namespace vornel
