#pragma once

#include "AppStates.h"
#include "Departure.h"
#include "Outcome.h"
#include "WrongCopies.h"

#include <VORNELApp/Actions/SkillBatch.h>
#include <VORNELApp/Drafts/FoundDraft.h>
#include <VORNELCore/Library/LibraryQuery.h>
#include <VORNELCore/Services/CopyRepairing.h>
#include <VORNELCore/Services/ImportReviewing.h>
#include <VORNELCore/Services/TargetInspecting.h>
#include <VORNELCore/Services/TrashInspecting.h>
#include <VORNELCore/Services/WorkspaceServicing.h>

#include <QCoro/QCoroTask>
#include <QObjectBindableProperty>
#include <QSettings>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <exception>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace vornel {

/// Everything the screens show, and every action they offer. Lives on the main thread, like all who use it.
/// Each field notifies its readers when its value really changes, and only then; an absent record is
/// `undefined` in QML.
class AppModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made at start-up")

    Q_PROPERTY(vornel::Phase phase READ phase NOTIFY phaseChanged BINDABLE bindablePhase)
    Q_PROPERTY(vornel::AppStates::OnboardingStep onboardingStep READ onboardingStep NOTIFY
                   onboardingStepChanged BINDABLE bindableOnboardingStep)
    Q_PROPERTY(QVariant overview READ overviewValue NOTIFY overviewChanged)
    Q_PROPERTY(bool isOverviewCurrent READ isOverviewCurrent NOTIFY isOverviewCurrentChanged BINDABLE
                   bindableIsOverviewCurrent)
    Q_PROPERTY(QVariant importPlan READ importPlanValue NOTIFY importPlanChanged)
    Q_PROPERTY(QVariant selectedDestination READ selectedDestinationValue WRITE setSelectedDestinationValue
                   NOTIFY selectedDestinationChanged)
    Q_PROPERTY(QUuid selectedSkillID READ selectedSkillID NOTIFY selectedSkillIDChanged BINDABLE
                   bindableSelectedSkillID)
    Q_PROPERTY(QVariant selectedSkill READ selectedSkillValue NOTIFY selectedSkillChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged BINDABLE
                   bindableSearchText)
    Q_PROPERTY(QString selectedCategory READ selectedCategory WRITE setSelectedCategory NOTIFY
                   selectedCategoryChanged BINDABLE bindableSelectedCategory)
    Q_PROPERTY(QVariant selectedMaturity READ selectedMaturityValue WRITE setSelectedMaturityValue NOTIFY
                   selectedMaturityChanged)
    Q_PROPERTY(bool isWorking READ isWorking NOTIFY isWorkingChanged BINDABLE bindableIsWorking)
    Q_PROPERTY(bool isDetailLoading READ isDetailLoading NOTIFY isDetailLoadingChanged BINDABLE
                   bindableIsDetailLoading)
    Q_PROPERTY(
        QString errorMessage READ errorMessage NOTIFY errorMessageChanged BINDABLE bindableErrorMessage)
    Q_PROPERTY(bool isSynchronizationIncomplete READ isSynchronizationIncomplete NOTIFY errorMessageChanged)
    Q_PROPERTY(QString transientMessage READ transientMessage NOTIFY transientMessageChanged BINDABLE
                   bindableTransientMessage)
    Q_PROPERTY(bool canCommitImport READ canCommitImport NOTIFY canCommitImportChanged BINDABLE
                   bindableCanCommitImport)
    Q_PROPERTY(int needsAttentionCount READ needsAttentionCount NOTIFY overviewChanged)
    Q_PROPERTY(
        qreal commitProgress READ commitProgress NOTIFY commitProgressChanged BINDABLE bindableCommitProgress)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY isBusyChanged BINDABLE bindableIsBusy)
    Q_PROPERTY(vornel::Departure *departure READ departure CONSTANT)
    Q_PROPERTY(vornel::SkillBatch *batch READ batch CONSTANT)

public:
    /// The inspectors look at what `service` keeps, and `drafts` lie beside it; `defaults` holds what the
    /// user's machine remembers between two starts.
    AppModel(std::shared_ptr<WorkspaceServicing> service, std::shared_ptr<TargetInspecting> inspector,
             std::shared_ptr<TrashInspecting> trashInspector, std::shared_ptr<ImportReviewing> importReviewer,
             std::shared_ptr<CopyRepairing> copyRepairer, std::shared_ptr<DraftKeeping> drafts,
             std::filesystem::path workspaceURL, std::filesystem::path claudeRoot,
             std::filesystem::path codexRoot, std::shared_ptr<QSettings> defaults);

    /// Waits for the operations that still run.
    ~AppModel() override;
    Q_DISABLE_COPY_MOVE(AppModel)

    // What the screens show.

    Phase phase() const { return m_phase.value(); }
    OnboardingStep onboardingStep() const { return m_onboardingStep.value(); }
    std::optional<WorkspaceOverview> overview() const { return m_overview.value(); }

    /// Whether the last reading succeeded: else nobody knows how the skills and their copies stand.
    bool isOverviewCurrent() const { return m_isOverviewCurrent.value(); }

    std::optional<ImportPlan> importPlan() const { return m_importPlan.value(); }
    std::optional<Destination> selectedDestination() const { return m_selectedDestination.value(); }

    /// The skill chosen in the library; null while none is.
    QUuid selectedSkillID() const { return m_selectedSkillID.value(); }

    std::optional<SkillDetail> selectedSkill() const { return m_selectedSkill.value(); }
    QString searchText() const { return m_searchText.value(); }

    /// Identifier of the category that filters the library; empty without a filter.
    QString selectedCategory() const { return m_selectedCategory.value(); }

    std::optional<Maturity> selectedMaturity() const { return m_selectedMaturity.value(); }

    /// Whether an operation other than the loading of a skill runs.
    bool isWorking() const { return m_isWorking.value(); }

    bool isDetailLoading() const { return m_isDetailLoading.value(); }

    /// What the user reads about the last failure; empty without one.
    QString errorMessage() const { return m_errorMessage.value(); }

    /// Whether all that failed last is that an assistant got no copy.
    bool isSynchronizationIncomplete() const { return m_isSynchronizationIncomplete; }

    /// A short confirmation in capitals; empty without one. Whoever shows it clears it.
    QString transientMessage() const { return m_transientMessage.value(); }

    /// Whether there is a plan without an open collision, and no operation runs.
    bool canCommitImport() const { return m_canCommitImport.value(); }

    /// How much of an import is done, from 0 to 1.
    qreal commitProgress() const { return m_commitProgress.value(); }

    /// Whether any operation runs, a start or the loading of a skill included.
    bool isBusy() const { return m_isBusy.value(); }

    /// The active skills that pass the search text and the filters, in the overview's order.
    QList<SkillSummary> filteredSkills() const;

    /// The skills of which a copy is not as it should be, whatever the filters say.
    QList<SkillSummary> needsAttention() const;
    int needsAttentionCount() const { return static_cast<int>(needsAttention().size()); }

    /// The skills that a destination lists, and those of them that the search and its filters let pass, which
    /// the library alone has. In the overview's order.
    QList<SkillSummary> skills(Destination destination) const;
    QList<SkillSummary> shownSkills(Destination destination) const;

    /// The changes made to several skills.
    SkillBatch *batch() { return &m_batch; }

    /// What is known of the copies of the overview's skills that aren't right.
    const WrongCopies &wrongCopies() const { return m_wrongCopies; }

    /// What asks before unsaved edits are left.
    Departure *departure() { return &m_departure; }

    /// Looks at skills' files, for the screens that show them.
    TargetInspecting &inspector() const { return *m_inspector; }

    /// Looks at the trash, for the screen that shows it.
    TrashInspecting &trashInspector() const { return *m_trashInspector; }

    /// Keeps unsaved texts, for the screen that edits them.
    DraftKeeping &drafts() const { return *m_drafts; }

    /// What was found of this skill's unsaved text when it was opened.
    FoundDraft foundDraft(const QUuid &id) const;

    /// Whether this skill could not be opened when that was last tried.
    bool hasFailedToOpen(const QUuid &id) const { return m_unopenedSkills.contains(id); }

    /// The library, prepared for queries of which the fields above are the filter.
    const LibraryIndex &libraryIndex() const { return m_libraryIndex.value(); }
    LibraryQuery::Filter filter() const;

    /// The category of this identifier, or the catch-all one.
    Q_INVOKABLE vornel::SkillCategory category(const QString &id) const;

    /// Where the skill of this slug stands while it is active.
    Q_INVOKABLE QUrl folder(const QString &slug) const;

    /// A destination begins without a search, which is about what it lists.
    void setSelectedDestination(std::optional<Destination> destination);
    void setSearchText(const QString &text);
    void setSelectedCategory(const QString &id);
    void setSelectedMaturity(std::optional<Maturity> maturity);

    QBindable<Phase> bindablePhase() const { return &m_phase; }
    QBindable<OnboardingStep> bindableOnboardingStep() const { return &m_onboardingStep; }
    QBindable<std::optional<WorkspaceOverview>> bindableOverview() const { return &m_overview; }
    QBindable<bool> bindableIsOverviewCurrent() const { return &m_isOverviewCurrent; }
    QBindable<std::optional<ImportPlan>> bindableImportPlan() const { return &m_importPlan; }
    QBindable<std::optional<Destination>> bindableSelectedDestination() { return &m_selectedDestination; }
    QBindable<QUuid> bindableSelectedSkillID() const { return &m_selectedSkillID; }
    QBindable<std::optional<SkillDetail>> bindableSelectedSkill() const { return &m_selectedSkill; }
    QBindable<QString> bindableSearchText() { return &m_searchText; }
    QBindable<QString> bindableSelectedCategory() { return &m_selectedCategory; }
    QBindable<std::optional<Maturity>> bindableSelectedMaturity() { return &m_selectedMaturity; }
    QBindable<bool> bindableIsWorking() const { return &m_isWorking; }
    QBindable<bool> bindableIsDetailLoading() const { return &m_isDetailLoading; }
    QBindable<QString> bindableErrorMessage() const { return &m_errorMessage; }
    QBindable<QString> bindableTransientMessage() const { return &m_transientMessage; }
    QBindable<bool> bindableCanCommitImport() const { return &m_canCommitImport; }
    QBindable<qreal> bindableCommitProgress() const { return &m_commitProgress; }
    QBindable<bool> bindableIsBusy() const { return &m_isBusy; }

    // The start and the onboarding.

    /// Opens the workspace and decides what the window shows. Never throws: a failure becomes the phase.
    QCoro::Task<> start();

    /// Begins `start` and returns at once.
    Q_INVOKABLE void retryStart();

    Q_INVOKABLE void advanceOnboarding();
    Q_INVOKABLE void retreatOnboarding();
    Q_INVOKABLE void clearError();
    Q_INVOKABLE void clearTransientMessage();

    /// The text shown for any failure.
    static QString message(const std::exception &error);

    // Actions that return at once; what comes of them shows in the fields.

    /// Scans, or scans anew: a choice between two versions stays where neither has changed.
    Q_INVOKABLE void beginImportScan();
    Q_INVOKABLE void resolveCollision(QUuid id, vornel::CollisionChoice choice);
    Q_INVOKABLE void excludeFromImport(const QString &slug);
    Q_INVOKABLE void commitImport();
    Q_INVOKABLE void reload();

    /// Loads a skill to show it; a null identifier closes the one shown.
    Q_INVOKABLE void selectSkill(QUuid id);
    Q_INVOKABLE void closeSkill() { selectSkill({}); }

    /// Reads the skill shown anew, quietly: the last error stays, and what can't be read stays as it was.
    /// Tells whether it succeeded.
    QCoro::Task<bool> refreshSelectedSkill();

    /// Takes over the revision alone of the skill shown, as quietly: it is known even where the text can't be
    /// read, which a save may then replace.
    QCoro::Task<> refreshSelectedRevision();

    /// Reads the overview anew, as quietly.
    Q_INVOKABLE void refreshOverview();

    void assignSkills(QSet<QUuid> ids, QString category);
    Q_INVOKABLE void assignSelectedSkill(const QString &category);
    Q_INVOKABLE void synchronizeSelectedSkill();
    Q_INVOKABLE void setCopyAside(QUuid id, vornel::TargetKind target);
    Q_INVOKABLE void moveSelectedSkillToTrash();
    void moveSkillsToTrash(QSet<QUuid> ids);
    Q_INVOKABLE void restore(QUuid id);
    Q_INVOKABLE void deletePermanently(QUuid id);
    Q_INVOKABLE void emptyTrash();

    // Actions on several skills, one after another and past failures. None begins while an operation runs.

    Q_INVOKABLE void synchronizeSkill(QUuid id) { synchronizeSkills({id}); }
    void synchronizeSkills(const QSet<QUuid> &ids);
    void restoreSkills(const QSet<QUuid> &ids);
    void deleteSkillsPermanently(const QSet<QUuid> &ids);

    // Actions that tell how they ended. They never throw.

    QCoro::Task<Outcome> createSkill(CreateSkillRequest request);
    QCoro::Task<Outcome> saveSelectedSkill(QString skillMD);
    QCoro::Task<Outcome> reloadSelectedSkill();

    /// The bytes of "SKILL.md" of the skill shown, whatever they are, and none where it is missing; nothing,
    /// and why, when they can't be read.
    QCoro::Task<std::pair<std::optional<QByteArray>, Outcome>> readSelectedText();

    QCoro::Task<Outcome> createCategory(QString name, QString colorHex);
    QCoro::Task<Outcome> updateCategory(QString id, QString name, QString colorHex);
    QCoro::Task<Outcome> deleteCategory(QString id);

Q_SIGNALS:
    void phaseChanged();
    void onboardingStepChanged();
    void overviewChanged();
    void isOverviewCurrentChanged();
    void importPlanChanged();
    void selectedDestinationChanged();
    void selectedSkillIDChanged();
    void selectedSkillChanged();
    void searchTextChanged();
    void selectedCategoryChanged();
    void selectedMaturityChanged();
    void isWorkingChanged();
    void isDetailLoadingChanged();
    void errorMessageChanged();
    void transientMessageChanged();
    void canCommitImportChanged();
    void commitProgressChanged();
    void isBusyChanged();

    /// The workspace was read. The overview may be as before, while what it doesn't tell has changed.
    void overviewRead();

    /// An action confirmed its success. Also sent when the confirmation reads like the one before.
    void confirmed();

private:
    class Operation;

    /// Runs an action: busy while it does, and its failure shown.
    template <typename Action>
    QCoro::Task<Outcome> perform(Action action);

    /// Scans, and takes up the choices of the plan shown.
    QCoro::Task<> scanImports();

    /// Shows the plan that a decision has led to, unless a later one was known first.
    QCoro::Task<> showDecided(QFuture<ImportPlan> decided);

    /// Makes each field known to the storage of bindings. Qt 6.4 lets that storage grow, and move, when a
    /// field gains its first reader, even while it goes through the readers of another one.
    void enterEveryField() const;

    QCoro::Task<> loadSelectedSkill();
    QCoro::Task<FoundDraft> readDraft(SkillDetail skill);
    void show(const WorkspaceOverview &overview);
    QCoro::Task<> readOverview();
    QCoro::Task<> reloadQuietly();
    void runBatch(std::function<QCoro::Task<>()> run);
    void concludeBatch();
    void keepBatchFailures();
    Outcome fail(const std::exception &error);
    void followProgress(const QFuture<WorkspaceOverview> &commit);
    void confirm(const QString &text);
    void deselect();

    QVariant overviewValue() const;
    QVariant importPlanValue() const;
    QVariant selectedDestinationValue() const;
    void setSelectedDestinationValue(const QVariant &destination);
    QVariant selectedSkillValue() const;
    QVariant selectedMaturityValue() const;
    void setSelectedMaturityValue(const QVariant &maturity);

    const std::shared_ptr<WorkspaceServicing> m_service;
    const std::shared_ptr<TargetInspecting> m_inspector;
    const std::shared_ptr<TrashInspecting> m_trashInspector;
    const std::shared_ptr<ImportReviewing> m_importReviewer;
    const std::shared_ptr<CopyRepairing> m_copyRepairer;
    const std::shared_ptr<DraftKeeping> m_drafts;
    const std::filesystem::path m_workspaceURL;
    const std::filesystem::path m_claudeRoot;
    const std::filesystem::path m_codexRoot;
    const std::shared_ptr<QSettings> m_defaults;
    WrongCopies m_wrongCopies;
    Departure m_departure;
    SkillBatch m_batch;
    bool m_isSynchronizationIncomplete = false;
    std::pair<QUuid, FoundDraft> m_foundDraft; ///< of the skill that was opened last
    QSet<QUuid> m_unopenedSkills;              ///< those that could not be opened when that was last tried
    int m_lastLoad = 0;                        ///< counts the loads of a skill: only the last one is awaited

    Q_OBJECT_BINDABLE_PROPERTY(AppModel, Phase, m_phase, &AppModel::phaseChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, OnboardingStep, m_onboardingStep, &AppModel::onboardingStepChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, std::optional<WorkspaceOverview>, m_overview,
                               &AppModel::overviewChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppModel, bool, m_isOverviewCurrent, true,
                                         &AppModel::isOverviewCurrentChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, std::optional<ImportPlan>, m_importPlan,
                               &AppModel::importPlanChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppModel, std::optional<Destination>, m_selectedDestination,
                                         Destination::library, &AppModel::selectedDestinationChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, QUuid, m_selectedSkillID, &AppModel::selectedSkillIDChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, std::optional<SkillDetail>, m_selectedSkill,
                               &AppModel::selectedSkillChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, QString, m_searchText, &AppModel::searchTextChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, QString, m_selectedCategory, &AppModel::selectedCategoryChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, std::optional<Maturity>, m_selectedMaturity,
                               &AppModel::selectedMaturityChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, bool, m_isWorking, &AppModel::isWorkingChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, bool, m_isDetailLoading, &AppModel::isDetailLoadingChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, QString, m_errorMessage, &AppModel::errorMessageChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, QString, m_transientMessage, &AppModel::transientMessageChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, bool, m_canCommitImport, &AppModel::canCommitImportChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, qreal, m_commitProgress, &AppModel::commitProgressChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, int, m_operationCount)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, bool, m_isBusy, &AppModel::isBusyChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppModel, LibraryIndex, m_libraryIndex)
};

} // namespace vornel
