#include "ImportSession.h"

#include <QCoro/QCoroFuture>
#include <QFutureWatcher>

#include <algorithm>
#include <utility>

namespace vornel {

namespace {

/// What was chosen between the same two versions, if it was.
std::optional<CollisionChoice> formerChoice(const ImportCollision &collision,
                                            const QList<ImportCollision> &before)
{
    const auto isSame = [&collision](const ImportCollision &former) {
        return former.slug == collision.slug && former.claude.digest == collision.claude.digest &&
               former.codex.digest == collision.codex.digest;
    };
    const auto found = std::ranges::find_if(before, isSame);
    return found == before.end() ? std::nullopt : found->choice;
}

} // namespace

QCoro::Task<> ImportSession::scan()
{
    ImportPlan plan = co_await m_service->scanImports();
    const QList<ImportCollision> before = m_plan ? m_plan->collisions : QList<ImportCollision>();
    QList<QFuture<ImportPlan>> decided; // asked for at once, since waiting for each of many takes long
    for (const ImportCollision &collision : std::as_const(plan.collisions)) {
        if (const auto choice = formerChoice(collision, before))
            decided.append(m_service->resolveCollision(collision.id, *choice));
    }
    for (const QFuture<ImportPlan> &answer : std::as_const(decided))
        plan = co_await answer;
    show(plan);
}

QCoro::Task<> ImportSession::resolveCollision(QUuid id, CollisionChoice choice)
{
    return showDecided(m_service->resolveCollision(id, choice));
}

QCoro::Task<> ImportSession::resolveCollisions(CollisionChoice choice)
{
    return showDecided(m_service->resolveCollisions(choice));
}

QCoro::Task<> ImportSession::exclude(QString slug)
{
    return showDecided(m_service->excludeFromImport(std::move(slug)));
}

/// Two decisions may be answered in either order: the plan with both stays.
QCoro::Task<> ImportSession::showDecided(QFuture<ImportPlan> decided)
{
    const ImportPlan plan = co_await decided;
    const bool isOutdated = m_plan && m_plan->id == plan.id && m_plan->revision > plan.revision;
    if (!isOutdated)
        show(plan);
}

QFuture<WorkspaceOverview> ImportSession::commit()
{
    QFuture<WorkspaceOverview> commit = m_service->commitImport(m_plan->id);
    setProgress(0);
    auto *watcher = new QFutureWatcher<WorkspaceOverview>(this);
    connect(watcher, &QFutureWatcherBase::progressValueChanged, this, [this, watcher](int done) {
        if (watcher->progressMaximum() > 0)
            setProgress(static_cast<qreal>(done) / watcher->progressMaximum());
    });
    connect(watcher, &QFutureWatcherBase::finished, watcher, &QObject::deleteLater);
    watcher->setFuture(commit);
    return commit;
}

void ImportSession::show(const ImportPlan &plan)
{
    if (m_plan == plan)
        return;
    m_plan = plan;
    Q_EMIT planChanged();
}

void ImportSession::setProgress(qreal progress)
{
    if (std::exchange(m_progress, progress) != progress)
        Q_EMIT progressChanged();
}

} // namespace vornel
