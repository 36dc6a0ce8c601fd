#include "SelectedSkill.h"

#include <VORNELCore/Errors/ErrorMessage.h>
#include <VORNELCore/Text/Digest.h>

#include <QCoro/QCoroFuture>
#include <QtConcurrentRun>

#include <utility>

namespace vornel {

namespace {

/// Of a text as its file holds it, which may be long.
QString digestOfText(const QString &text)
{
    return sha256Of(text.toUtf8());
}

} // namespace

SelectedSkill::SelectedSkill(std::shared_ptr<WindowServicing> service, std::shared_ptr<DraftKeeping> drafts,
                             Operations &operations)
    : m_service(std::move(service)), m_drafts(std::move(drafts)), m_operations(operations)
{}

FoundDraft SelectedSkill::foundDraft(const QUuid &id) const
{
    return m_foundDraft.first == id ? m_foundDraft.second : FoundDraft();
}

void SelectedSkill::select(const QUuid &id)
{
    setId(id);
    if (id.isNull())
        setDetail(std::nullopt);
    else
        load();
}

QCoro::Task<> SelectedSkill::load()
{
    const Operations::Running running(m_operations);
    setLoading(true);
    m_operations.clearError();
    const int load = ++m_lastLoad;
    const QUuid id = m_id;
    try {
        const SkillDetail detail = co_await m_service->loadSkill(id);
        m_unopened.remove(id);
        const FoundDraft found = co_await findDraft(detail);
        if (m_id == id) {
            m_foundDraft = {id, found};
            setDetail(detail);
        }
    } catch (const std::exception &error) {
        m_unopened.insert(id);
        if (m_id == id) {
            setDetail(std::nullopt);
            m_operations.fail(error);
        }
    }
    if (load == m_lastLoad)
        setLoading(false);
}

/// A draft that can't be looked for doesn't keep the skill from being shown.
QCoro::Task<FoundDraft> SelectedSkill::findDraft(SkillDetail skill)
{
    FoundDraft found;
    try {
        found.draft = co_await m_drafts->draft(skill.manifest.id);
        if (found.draft) {
            const QString digest = co_await QtConcurrent::run(digestOfText, skill.skillMD);
            found.isStale = found.draft->baseDigest != digest;
        }
    } catch (const std::exception &error) {
        found.failure = errorMessage(error);
    }
    co_return found;
}

void SelectedSkill::open(const SkillDetail &skill)
{
    setDetail(skill);
    setId(skill.manifest.id);
}

void SelectedSkill::show(const SkillDetail &skill)
{
    if (m_id == skill.manifest.id)
        setDetail(skill);
}

QCoro::Task<> SelectedSkill::read(QUuid id)
{
    if (m_id == id)
        show(co_await m_service->loadSkill(id));
}

QCoro::Task<bool> SelectedSkill::readQuietly()
{
    const Operations::Running running(m_operations);
    try {
        co_await read(m_id);
        co_return true;
    } catch (const std::exception &) {
        co_return false;
    }
}

void SelectedSkill::setId(const QUuid &id)
{
    if (std::exchange(m_id, id) != id)
        Q_EMIT idChanged();
}

void SelectedSkill::setDetail(const std::optional<SkillDetail> &detail)
{
    if (m_detail == detail)
        return;
    m_detail = detail;
    Q_EMIT detailChanged();
}

void SelectedSkill::setLoading(bool isLoading)
{
    if (std::exchange(m_isLoading, isLoading) != isLoading)
        Q_EMIT isLoadingChanged();
}

} // namespace vornel
