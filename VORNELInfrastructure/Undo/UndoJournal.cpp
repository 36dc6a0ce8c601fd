#include "UndoJournal.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>

using namespace Qt::StringLiterals;

namespace vornel {

void UndoJournal::remember(UndoRecording changes, bool isUndo)
{
    std::erase_if(changes, [](const auto &change) { return change.second.isIdle(); });
    const std::scoped_lock lock(m_mutex);
    m_changes = std::move(changes);
    m_step = m_changes.empty() ? std::nullopt : std::optional(UndoStep{QUuid::createUuid(), isUndo});
}

std::optional<UndoStep> UndoJournal::step() const
{
    const std::scoped_lock lock(m_mutex);
    return m_step;
}

std::pair<UndoStep, UndoRecording> UndoJournal::last(const QUuid &step) const
{
    const std::scoped_lock lock(m_mutex);
    if (!m_step || m_step->id != step)
        throw VORNELWorkspaceError::integrityFailure(
            u"D’autres changements ont eu lieu depuis\u00A0: il n’est plus possible de revenir en arrière."_s);
    return {*m_step, m_changes};
}

} // namespace vornel
