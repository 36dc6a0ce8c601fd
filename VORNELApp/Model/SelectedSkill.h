#pragma once

#include "Operations.h"

#include <VORNELApp/Drafts/FoundDraft.h>
#include <VORNELCore/Services/WindowServicing.h>

#include <QSet>

#include <memory>
#include <optional>

namespace vornel {

/// The skill chosen in the library, as it was last read.
class SelectedSkill : public QObject
{
    Q_OBJECT

public:
    SelectedSkill(std::shared_ptr<WindowServicing> service, std::shared_ptr<DraftKeeping> drafts,
                  Operations &operations);

    /// Null while none is.
    const QUuid &id() const { return m_id; }

    /// Nothing until the skill has been loaded.
    const std::optional<SkillDetail> &detail() const { return m_detail; }

    /// Whether this is the skill that is shown.
    bool shows(const QUuid &id) const { return m_detail && m_id == id && m_detail->manifest.id == id; }

    bool isLoading() const { return m_isLoading; }

    /// What was found of this skill's unsaved text when it was opened.
    FoundDraft foundDraft(const QUuid &id) const;

    /// Whether this skill could not be opened when that was last tried.
    bool hasFailedToOpen(const QUuid &id) const { return m_unopened.contains(id); }

    /// Loads a skill to show it; a null identifier closes the one shown.
    void select(const QUuid &id);

    /// Shows what an operation has returned, of a skill that may be new or of the one that is selected.
    void open(const SkillDetail &skill);
    void show(const SkillDetail &skill);

    /// Reads the skill anew, if it is selected still; throws what the service does.
    QCoro::Task<> read(QUuid id);

    /// The same without a word: what can't be read stays as it was. Tells whether it succeeded.
    QCoro::Task<bool> readQuietly();

Q_SIGNALS:
    void idChanged();
    void detailChanged();
    void isLoadingChanged();

private:
    QCoro::Task<> load();
    QCoro::Task<FoundDraft> findDraft(SkillDetail skill);
    void setId(const QUuid &id);
    void setDetail(const std::optional<SkillDetail> &detail);
    void setLoading(bool isLoading);

    const std::shared_ptr<WindowServicing> m_service;
    const std::shared_ptr<DraftKeeping> m_drafts;
    Operations &m_operations;
    QUuid m_id;
    std::optional<SkillDetail> m_detail;
    bool m_isLoading = false;
    std::pair<QUuid, FoundDraft> m_foundDraft; ///< of the skill that was opened last
    QSet<QUuid> m_unopened;
    int m_lastLoad = 0; ///< counts the loads: only the last one is awaited
};

} // namespace vornel
