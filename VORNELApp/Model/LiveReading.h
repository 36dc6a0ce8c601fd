#pragma once

#include "Library.h"

#include <VORNELCore/Services/WorkspaceWatching.h>

#include <QElapsedTimer>

namespace vornel {

/// Reads the library by itself when others have changed it: without a word, one reading at a time, and never
/// while an action of the user runs.
class LiveReading : public QObject
{
public:
    /// Without a watch, nothing is read.
    LiveReading(std::shared_ptr<WorkspaceWatching> watch, Library &library, const Operations &operations);

    /// Reads also what isn't told of, where the watch doesn't see everything.
    void lookForChanges();

    /// No reading begins from now on.
    void stop() { m_isStopped = true; }

private:
    void readWhatHasChanged();
    void read();

    const std::shared_ptr<WorkspaceWatching> m_watch;
    Library &m_library;
    const Operations &m_operations;
    QElapsedTimer m_sinceReading;
    bool m_isStopped = false;
};

} // namespace vornel
