#pragma once

#include <QObject>

namespace vornel {

/// Sees what others change in the workspace and in the targets. What happened before an overview of the
/// service began is known to it; only what happens later counts.
class WorkspaceWatching : public QObject
{
    Q_OBJECT

public:
    /// Whether others have changed what no overview has read yet, and it is time to read it.
    virtual bool isOverviewOutdated() const = 0;

    /// Whether everything is watched: else something may change without being told.
    virtual bool isComplete() const = 0;

Q_SIGNALS:
    /// The overview has become outdated. Sent from a thread of the watch.
    void overviewOutdated();
};

} // namespace vornel
