#pragma once

#include <VORNELCore/Services/WindowServicing.h>

#include <QCoro/QCoroTask>
#include <QObject>

#include <memory>
#include <optional>

namespace vornel {

/// An import from the scan to the commit: its plan, what is decided about it, how far it is. Its actions
/// throw what the service does.
class ImportSession : public QObject
{
    Q_OBJECT

public:
    explicit ImportSession(std::shared_ptr<WindowServicing> service) : m_service(std::move(service)) {}

    const std::optional<ImportPlan> &plan() const { return m_plan; }

    /// How much of the commit is done, from 0 to 1.
    qreal progress() const { return m_progress; }

    /// Scans, or scans anew: a choice between two versions stays where neither has changed.
    QCoro::Task<> scan();

    QCoro::Task<> resolveCollision(QUuid id, CollisionChoice choice);

    QCoro::Task<> resolveCollisions(CollisionChoice choice);

    /// Leaves the skill of this slug out of the import.
    QCoro::Task<> exclude(QString slug);

    /// Begins to do what the plan says. There must be one.
    QFuture<WorkspaceOverview> commit();

Q_SIGNALS:
    void planChanged();
    void progressChanged();

private:
    QCoro::Task<> showDecided(QFuture<ImportPlan> decided);
    void show(const ImportPlan &plan);
    void setProgress(qreal progress);

    const std::shared_ptr<WindowServicing> m_service;
    std::optional<ImportPlan> m_plan;
    qreal m_progress = 0;
};

} // namespace vornel
