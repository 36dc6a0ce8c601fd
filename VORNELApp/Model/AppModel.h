#pragma once

#include "Library.h"
#include "LiveReading.h"
#include "SelectedSkill.h"
#include "StartUp.h"

#include <VORNELApp/Actions/SkillBatch.h>
#include <VORNELApp/Copies/Adoption.h>
#include <VORNELApp/Editor/OpenSkill.h>
#include <VORNELApp/Exchange/Addition.h>
#include <VORNELApp/Exchange/ExportRequest.h>
#include <VORNELApp/History/History.h>
#include <VORNELApp/Import/ImportSession.h>
#include <VORNELApp/Leaving/Departure.h>
#include <VORNELApp/Library/LibraryFilters.h>
#include <VORNELApp/Properties/ImportedTexts.h>

#include <QUrl>

#include <filesystem>
#include <functional>

namespace vornel {

/// Everything the screens show, and every action they offer. Lives on the main thread, like all who use it.
/// Each field notifies its readers when its value really changes, and only then; an absent record is
/// `undefined` in QML.
class AppModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made at start-up")

    Q_PROPERTY(vornel::Phase phase READ phase NOTIFY phaseChanged)
    Q_PROPERTY(
        vornel::AppStates::OnboardingStep onboardingStep READ onboardingStep NOTIFY onboardingStepChanged)
    Q_PROPERTY(QVariant overview READ overviewValue NOTIFY overviewChanged)
    Q_PROPERTY(bool isOverviewCurrent READ isOverviewCurrent NOTIFY isOverviewCurrentChanged)
    Q_PROPERTY(QVariant importPlan READ importPlanValue NOTIFY importPlanChanged)
    Q_PROPERTY(QVariant selectedDestination READ selectedDestinationValue WRITE setSelectedDestinationValue
                   NOTIFY selectedDestinationChanged)
    Q_PROPERTY(QUuid selectedSkillID READ selectedSkillID NOTIFY selectedSkillIDChanged)
    Q_PROPERTY(QVariant selectedSkill READ selectedSkillValue NOTIFY selectedSkillChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(QString selectedCategory READ selectedCategory WRITE setSelectedCategory NOTIFY
                   selectedCategoryChanged)
    Q_PROPERTY(QVariant selectedMaturity READ selectedMaturityValue WRITE setSelectedMaturityValue NOTIFY
                   selectedMaturityChanged)
    Q_PROPERTY(bool isWorking READ isWorking NOTIFY isWorkingChanged)
    Q_PROPERTY(bool isDetailLoading READ isDetailLoading NOTIFY isDetailLoadingChanged)
    Q_PROPERTY(QString errorMessage READ errorMessage NOTIFY errorMessageChanged)
    Q_PROPERTY(bool isSynchronizationIncomplete READ isSynchronizationIncomplete NOTIFY
                   isSynchronizationIncompleteChanged)
    Q_PROPERTY(QString transientMessage READ transientMessage NOTIFY transientMessageChanged)
    Q_PROPERTY(QString transientStep READ transientStepName NOTIFY confirmed)
    Q_PROPERTY(QString undoableStep READ undoableStepName NOTIFY undoableStepChanged)
    Q_PROPERTY(bool isRedoable READ isRedoable NOTIFY undoableStepChanged)
    Q_PROPERTY(bool canCommitImport READ canCommitImport NOTIFY canCommitImportChanged)
    Q_PROPERTY(int needsAttentionCount READ needsAttentionCount NOTIFY overviewChanged)
    Q_PROPERTY(qreal commitProgress READ commitProgress NOTIFY commitProgressChanged)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY isBusyChanged)
    Q_PROPERTY(vornel::LibraryFilters *filters READ filters CONSTANT)
    Q_PROPERTY(vornel::ImportedTexts *importedTexts READ importedTexts CONSTANT)
    Q_PROPERTY(vornel::Departure *departure READ departure CONSTANT)
    Q_PROPERTY(vornel::OpenSkill *openSkill READ openSkill CONSTANT)
    Q_PROPERTY(vornel::CopyReplacement *replacement READ replacement CONSTANT)
    Q_PROPERTY(vornel::Adoption *adoption READ adoption CONSTANT)
    Q_PROPERTY(vornel::History *history READ history CONSTANT)
    Q_PROPERTY(vornel::SkillBatch *batch READ batch CONSTANT)
    Q_PROPERTY(vornel::Addition *addition READ addition CONSTANT)
    Q_PROPERTY(vornel::ExportRequest *skillExport READ skillExport CONSTANT)

public:
    /// `drafts` lie beside what `service` keeps; `defaults` holds what the user's machine remembers between
    /// two starts. Without a `watch`, what others change shows at the next reading.
    AppModel(std::shared_ptr<WindowServicing> service, std::filesystem::path workspaceURL,
             std::filesystem::path claudeRoot, std::filesystem::path codexRoot,
             std::shared_ptr<QSettings> defaults, std::shared_ptr<DraftKeeping> drafts,
             std::shared_ptr<WorkspaceWatching> watch = nullptr);

    /// Waits for the operations that still run.
    ~AppModel() override;
    Q_DISABLE_COPY_MOVE(AppModel)

    // What the screens show.

    const Phase &phase() const { return m_startUp.phase(); }
    OnboardingStep onboardingStep() const { return m_startUp.step(); }
    const std::optional<WorkspaceOverview> &overview() const { return m_library.overview(); }

    /// Whether the last reading succeeded: else nobody knows how the skills and their copies stand.
    bool isOverviewCurrent() const { return m_library.isCurrent(); }

    const std::optional<ImportPlan> &importPlan() const { return m_import.plan(); }
    std::optional<Destination> selectedDestination() const { return m_selectedDestination; }

    /// The skill chosen in the library; null while none is.
    const QUuid &selectedSkillID() const { return m_selectedSkill.id(); }

    const std::optional<SkillDetail> &selectedSkill() const { return m_selectedSkill.detail(); }
    const QString &searchText() const { return m_searchText; }

    /// Identifier of the category that filters the library; empty without a filter.
    const QString &selectedCategory() const { return m_selectedCategory; }

    std::optional<Maturity> selectedMaturity() const { return m_selectedMaturity; }

    /// Whether an operation other than the loading of a skill runs.
    bool isWorking() const { return m_operations.isWorking(); }

    bool isDetailLoading() const { return m_selectedSkill.isLoading(); }

    /// What the user reads about the last failure; empty without one.
    const QString &errorMessage() const { return m_operations.errorMessage(); }

    /// Whether all that failed last is that an assistant got no copy.
    bool isSynchronizationIncomplete() const { return m_operations.isSynchronizationIncomplete(); }

    /// A short confirmation in capitals; empty without one. Whoever shows it clears it.
    const QString &transientMessage() const { return m_operations.confirmation(); }

    /// What `undo` or, where it has itself taken something back, `redo` would take back.
    const std::optional<UndoStep> &undoableStep() const { return m_operations.undoableStep(); }
    bool isRedoable() const { return undoableStep() && undoableStep()->isUndo; }

    /// Whether there is a plan without an open collision, and no operation runs.
    bool canCommitImport() const { return m_canCommitImport; }

    /// How much of an import is done, from 0 to 1.
    qreal commitProgress() const { return m_import.progress(); }

    /// Whether any operation runs, a start or the loading of a skill included.
    bool isBusy() const { return m_operations.isBusy(); }

    /// The active skills that pass the search text and the filters, in the overview's order.
    QList<SkillSummary> filteredSkills() const;

    /// The skills of which a copy is not as it should be, whatever the filters say.
    QList<SkillSummary> needsAttention() const { return skills(Destination::needsAttention); }
    int needsAttentionCount() const { return static_cast<int>(needsAttention().size()); }

    /// The skills that a destination lists, and those of them that the search and its filters let pass, which
    /// the library alone has. In the overview's order.
    QList<SkillSummary> skills(Destination destination) const { return m_library.skills(destination); }
    QList<SkillSummary> shownSkills(Destination destination) const;

    /// The skill that is edited.
    OpenSkill *openSkill() { return &m_openSkill; }

    /// What is asked before a skill of a list is synchronised.
    CopyReplacement *replacement() { return &m_replacement; }

    /// What takes edits made elsewhere into the library.
    Adoption *adoption() { return &m_adoption; }

    /// The history beside the text.
    History *history() { return &m_history; }

    /// The changes made to several skills.
    SkillBatch *batch() { return &m_batch; }

    /// How skills come into the library from elsewhere, and leave it for others.
    Addition *addition() { return &m_addition; }
    ExportRequest *skillExport() { return &m_export; }

    /// What is known of the overview's skills of which a copy isn't right.
    const WrongCopies &wrongCopies() const { return m_library.wrongCopies(); }
    const HandEdits &handEdits() const { return m_library.handEdits(); }

    /// What was found by checking the library's skills.
    const SkillChecks &checks() const { return m_library.checks(); }

    /// What narrows the library beside the fields above, and its order.
    LibraryFilters *filters() { return &m_filters; }

    /// What the texts of the skills just imported would mend.
    ImportedTexts *importedTexts() { return &m_importedTexts; }

    /// What asks before unsaved edits are left.
    Departure *departure() { return &m_departure; }

    /// The skill chosen in the library, with what was found when it was opened.
    const SelectedSkill &selection() const { return m_selectedSkill; }

    /// For the screens that show skills' files, the trash, what was set aside, new skills, collisions,
    /// histories, properties and unsaved texts.
    CopyInspecting &inspector() const { return *m_service; }
    TrashInspecting &trashInspector() const { return *m_service; }
    RecoveryKeeping &recovery() const { return *m_service; }
    SkillChecking &checker() const { return *m_service; }
    NewSkillFinding &newSkills() const { return *m_service; }
    TargetComparing &targetComparer() const { return *m_service; }
    HistoryKeeping &histories() const { return *m_service; }
    PropertyEditing &properties() const { return *m_service; }
    FileEditing &files() const { return *m_service; }
    DraftKeeping &drafts() const { return *m_drafts; }

    /// The library, prepared for queries of which the fields above are the filter.
    const LibraryIndex &libraryIndex() const { return m_library.index(); }
    LibraryQuery::Filter filter() const;

    /// The category of this identifier, or the catch-all one.
    Q_INVOKABLE vornel::SkillCategory category(const QString &id) const { return m_library.category(id); }

    /// Where the skill of this slug stands while it is active.
    Q_INVOKABLE QUrl folder(const QString &slug) const;

    /// A destination begins without a search, which is about what it lists.
    void setSelectedDestination(std::optional<Destination> destination);
    void setSearchText(const QString &text);
    void setSelectedCategory(const QString &id);
    void setSelectedMaturity(std::optional<Maturity> maturity);

    // The start and the onboarding.

    /// Opens the workspace and decides what the window shows. Never throws: a failure becomes the phase.
    QCoro::Task<> start();

    /// Begins `start` and returns at once.
    Q_INVOKABLE void retryStart();

    Q_INVOKABLE void advanceOnboarding() { m_startUp.turn(1); }
    Q_INVOKABLE void retreatOnboarding() { m_startUp.turn(-1); }
    Q_INVOKABLE void clearError() { m_operations.clearError(); }
    Q_INVOKABLE void clearTransientMessage() { m_operations.clearConfirmation(); }

    /// Shows how something failed that the user has asked for beside the actions below.
    void showFailure(const Outcome &failure) { m_operations.showFailure(failure); }

    /// Clears the error if it is still this failure's.
    void dismiss(const Outcome &failure) { m_operations.dismiss(failure); }

    /// The text shown for any failure.
    static QString message(const std::exception &error);

    // Actions that return at once; what comes of them shows in the fields.

    /// Scans, or scans anew: a choice between two versions stays where neither has changed.
    Q_INVOKABLE void beginImportScan();
    Q_INVOKABLE void resolveCollision(QUuid id, vornel::CollisionChoice choice);
    Q_INVOKABLE void resolveCollisions(vornel::CollisionChoice choice);
    Q_INVOKABLE void excludeFromImport(const QString &slug);
    Q_INVOKABLE void commitImport();
    Q_INVOKABLE void reload();

    /// Takes the last action back, unless it has itself taken one back; or else brings that one back.
    Q_INVOKABLE void undo();
    Q_INVOKABLE void redo();

    /// Loads a skill to show it; a null identifier closes the one shown.
    Q_INVOKABLE void selectSkill(QUuid id) { m_selectedSkill.select(id); }
    Q_INVOKABLE void closeSkill() { selectSkill({}); }

    /// Reads the overview anew without a word: the last error stays, and what can't be read stays as it was.
    Q_INVOKABLE void refreshOverview() { m_library.readQuietly(); }

    /// To be called when the user comes back to the window: reads what may have changed unseen meanwhile.
    Q_INVOKABLE void lookForChanges() { m_liveReading.lookForChanges(); }

    void assignSkills(QSet<QUuid> ids, QString category);
    Q_INVOKABLE void assignSelectedSkill(const QString &category);
    Q_INVOKABLE void synchronizeSelectedSkill() { m_openSkill.installCopies(); }
    Q_INVOKABLE void setCopyAside(QUuid id, vornel::TargetKind target);
    Q_INVOKABLE void moveSelectedSkillToTrash();
    void moveSkillsToTrash(QSet<QUuid> ids);
    Q_INVOKABLE void restore(QUuid id);
    Q_INVOKABLE void deletePermanently(QUuid id);
    Q_INVOKABLE void emptyTrash();

    /// Makes a copy that was set aside the next revision of a skill; deletes one for good.
    Q_INVOKABLE void revertToSetAside(const QString &copy, const vornel::SkillSummary &skill);
    Q_INVOKABLE void deleteSetAside(const QString &copy);

    /// Tells of these of the assistants' skills no more.
    void ignoreNewSkills(const QList<NewSkill> &skills);

    // Actions on several skills, one after another and past failures. None begins while an operation runs.

    Q_INVOKABLE void synchronizeSkill(QUuid id) { synchronizeSkills({id}); }
    void synchronizeSkills(const QSet<QUuid> &ids);
    void restoreSkills(const QSet<QUuid> &ids);
    void deleteSkillsPermanently(const QSet<QUuid> &ids);

    // Actions that tell how they ended. They never throw.

    QCoro::Task<Outcome> createSkill(CreateSkillRequest request);
    QCoro::Task<Outcome> duplicateSkill(QUuid id, QString slug);
    QCoro::Task<Outcome> setProperties(QList<QUuid> ids, PropertyChange change,
                                       std::optional<qint64> expectedRevision);
    QCoro::Task<Outcome> restoreSetAside(QString copy, QString slug);
    QCoro::Task<Outcome> saveSelectedSkill(QString skillMD) { return m_openSkill.write(std::move(skillMD)); }
    QCoro::Task<Outcome> createCategory(QString name, QString colorHex);
    QCoro::Task<Outcome> updateCategory(QString id, QString name, QString colorHex);
    QCoro::Task<Outcome> deleteCategory(QString id);

Q_SIGNALS:
    void phaseChanged();
    void onboardingStepChanged();
    void overviewChanged();
    void checksChanged();
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
    void isSynchronizationIncompleteChanged();
    void transientMessageChanged();
    void undoableStepChanged();
    void canCommitImportChanged();
    void commitProgressChanged();
    void isBusyChanged();

    /// The workspace was read. The overview may be as before, while what it doesn't tell has changed.
    void overviewRead();

    /// An import has been committed.
    void imported();

    /// An action confirmed its success. Also sent when the confirmation reads like the one before.
    void confirmed();

private:
    /// The unsaved text of a skill that a step has moved to the trash.
    struct GivenUpText
    {
        QUuid step = {};
        QUuid skill = {};
        std::optional<UnsavedText> edits = {};
    };

    void forwardChanges();
    void go(Departure::Exit exit);
    void followImport();
    void runBatch(std::function<QCoro::Task<>()> run);
    void concludeBatch();
    void takeBack(const QString &verb);
    void keepGivenUpText(const QUuid &undoneStep);
    QCoro::Task<> followSelected();
    void keepBatchFailures();
    void showAdded();

    QVariant overviewValue() const;
    QVariant importPlanValue() const;
    QString transientStepName() const;
    QString undoableStepName() const;
    QVariant selectedDestinationValue() const;
    void setSelectedDestinationValue(const QVariant &destination);
    QVariant selectedSkillValue() const;
    QVariant selectedMaturityValue() const;
    void setSelectedMaturityValue(const QVariant &maturity);

    const std::shared_ptr<WindowServicing> m_service;
    const std::shared_ptr<DraftKeeping> m_drafts;
    const std::filesystem::path m_workspaceURL;
    const std::filesystem::path m_claudeRoot;
    const std::filesystem::path m_codexRoot;
    Operations m_operations;
    Library m_library;
    LiveReading m_liveReading;
    StartUp m_startUp;
    ImportSession m_import;
    ImportedTexts m_importedTexts;
    SelectedSkill m_selectedSkill;
    Departure m_departure;
    OpenSkill m_openSkill;
    CopyReplacement m_replacement;
    Adoption m_adoption;
    History m_history;
    SkillBatch m_batch;
    Addition m_addition;
    ExportRequest m_export;
    LibraryFilters m_filters;
    GivenUpText m_givenUpText;
    std::optional<Destination> m_selectedDestination = Destination::library;
    bool m_canCommitImport = false;
    QString m_searchText;
    QString m_selectedCategory;
    std::optional<Maturity> m_selectedMaturity;
};

} // namespace vornel
