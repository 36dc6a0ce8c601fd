#include "UndoJournal.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>

using namespace Qt::StringLiterals;

namespace vornel {

void UndoJournal::remember(UndoRecording changes, UndoStep step)
{
    removeIdle(changes);
    const std::scoped_lock lock(m_mutex);
    m_last.reset();
    step.id = QUuid::createUuid();
    if (!changes.empty())
        m_last = {.step = step, .changes = std::move(changes)};
}

void UndoJournal::resume(UndoableOperation operation)
{
    const std::scoped_lock lock(m_mutex);
    m_last = std::move(operation);
}

std::optional<UndoStep> UndoJournal::step() const
{
    const std::scoped_lock lock(m_mutex);
    return m_last ? std::optional(m_last->step) : std::nullopt;
}

UndoableOperation UndoJournal::last(const QUuid &step) const
{
    const std::scoped_lock lock(m_mutex);
    if (!m_last || m_last->step.id != step)
        throw VORNELWorkspaceError::integrityFailure(
            u"D’autres changements ont eu lieu depuis\u00A0: il n’est plus possible de revenir en arrière."_s);
    return *m_last;
}

} // namespace vornel
