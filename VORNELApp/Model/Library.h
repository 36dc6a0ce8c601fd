#pragma once

#include "AppStates.h"
#include "Operations.h"

#include <VORNELApp/Check/SkillChecks.h>
#include <VORNELApp/Copies/HandEdits.h>
#include <VORNELApp/Copies/WrongCopies.h>
#include <VORNELCore/Library/LibraryQuery.h>
#include <VORNELCore/Services/WindowServicing.h>

#include <memory>
#include <optional>

namespace vornel {

/// What was last read of the workspace.
class Library : public QObject
{
    Q_OBJECT

public:
    Library(std::shared_ptr<WindowServicing> service, Operations &operations);

    /// Nothing before the first reading.
    const std::optional<WorkspaceOverview> &overview() const { return m_overview; }

    /// Whether the last reading succeeded: else nobody knows how the skills and their copies stand.
    bool isCurrent() const { return m_isCurrent; }

    /// Whether a reading is under way.
    bool isReading() const { return m_readings > 0; }

    /// The overview's skills, prepared for queries.
    const LibraryIndex &index() const { return m_index; }

    /// What is known of the copies that aren't right.
    const WrongCopies &wrongCopies() const { return m_wrongCopies; }

    /// Which skills that need attention were edited by hand.
    const HandEdits &handEdits() const { return m_handEdits; }

    /// Which skills have errors.
    const SkillChecks &checks() const { return m_checks; }

    /// The skills that a destination lists, in the overview's order.
    QList<SkillSummary> skills(Destination destination) const;

    /// The active skill of this identifier.
    std::optional<SkillSummary> skill(const QUuid &id) const;

    /// The category of this identifier, or the catch-all one.
    SkillCategory category(const QString &id) const;

    /// Takes over what an operation has returned.
    void show(const WorkspaceOverview &overview);

    /// Reads the workspace; throws what the service does.
    QCoro::Task<> read();

    /// The same without a word: the last failure stays, and what can't be read stays as it was.
    QCoro::Task<> readQuietly();

Q_SIGNALS:
    void overviewChanged();
    void isCurrentChanged();

    /// The workspace was read. The overview may be as before, while what it doesn't tell has changed.
    void wasRead();

private:
    bool isNews(quint64 number);
    void setCurrent(bool isCurrent);

    const std::shared_ptr<WindowServicing> m_service;
    Operations &m_operations;
    std::optional<WorkspaceOverview> m_overview;
    LibraryIndex m_index;
    WrongCopies m_wrongCopies;
    HandEdits m_handEdits;
    SkillChecks m_checks;
    bool m_isCurrent = true;
    int m_readings = 0;     ///< that are under way
    quint64 m_asked = 0;    ///< the number of the last reading
    quint64 m_answered = 0; ///< and of the last that has ended
};

} // namespace vornel
