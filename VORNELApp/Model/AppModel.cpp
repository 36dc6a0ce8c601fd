#include "AppModel.h"

#include <VORNELCore/Errors/ErrorMessage.h>

#include <QEventLoop>

namespace vornel {

namespace {

template <typename T>
QVariant optionalValue(const std::optional<T> &value)
{
    return value ? QVariant::fromValue(*value) : QVariant();
}

template <typename E>
std::optional<E> optionalCase(const QVariant &value)
{
    return value.isValid() ? std::optional(value.value<E>()) : std::nullopt;
}

} // namespace

AppModel::AppModel(std::shared_ptr<WorkspaceServicing> service, std::shared_ptr<TargetInspecting> inspector,
                   std::shared_ptr<TrashInspecting> trashInspector,
                   std::shared_ptr<ImportReviewing> importReviewer,
                   std::shared_ptr<CopyRepairing> copyRepairer, std::shared_ptr<DraftKeeping> drafts,
                   std::filesystem::path workspaceURL, std::filesystem::path claudeRoot,
                   std::filesystem::path codexRoot, std::shared_ptr<QSettings> defaults)
    : m_service(std::move(service)),
      m_inspector(std::move(inspector)),
      m_trashInspector(std::move(trashInspector)),
      m_importReviewer(std::move(importReviewer)),
      m_copyRepairer(std::move(copyRepairer)),
      m_drafts(std::move(drafts)),
      m_workspaceURL(std::move(workspaceURL)),
      m_claudeRoot(std::move(claudeRoot)),
      m_codexRoot(std::move(codexRoot)),
      m_defaults(std::move(defaults))
{
    m_canCommitImport.setBinding([this] {
        const auto &plan = m_importPlan.value();
        return plan && plan->isReadyToCommit() && !m_isWorking;
    });
    m_isBusy.setBinding([this] { return m_operationCount > 0; });
    m_libraryIndex.setBinding([this] {
        const auto &overview = m_overview.value();
        return overview ? LibraryIndex(overview->skills, overview->categories) : LibraryIndex();
    });
    enterEveryField();
    connect(this, &AppModel::overviewChanged, this, &AppModel::keepBatchFailures);
    connect(this, &AppModel::overviewRead, &m_wrongCopies,
            [this] { m_wrongCopies.follow(skills(Destination::library), m_inspector); });
}

void AppModel::enterEveryField() const
{
    QProperty<bool> reader;
    reader.setBinding([this] {
        const auto read = [](const auto &...fields) { (static_cast<void>(fields.value()), ...); };
        read(m_phase, m_onboardingStep, m_overview, m_isOverviewCurrent, m_importPlan, m_selectedDestination,
             m_selectedSkillID, m_selectedSkill, m_searchText, m_selectedCategory, m_selectedMaturity,
             m_isWorking, m_isDetailLoading, m_errorMessage, m_transientMessage, m_canCommitImport,
             m_commitProgress, m_operationCount, m_isBusy, m_libraryIndex);
        return true;
    });
}

AppModel::~AppModel()
{
    m_batch.stop();
    QEventLoop loop;
    connect(this, &AppModel::isBusyChanged, &loop, &QEventLoop::quit);
    if (m_isBusy)
        loop.exec();
}

void AppModel::advanceOnboarding()
{
    m_onboardingStep =
        vornel::onboardingStep(static_cast<int>(onboardingStep()) + 1).value_or(onboardingStep());
}

void AppModel::retreatOnboarding()
{
    m_onboardingStep =
        vornel::onboardingStep(static_cast<int>(onboardingStep()) - 1).value_or(onboardingStep());
}

void AppModel::clearError()
{
    m_isSynchronizationIncomplete = false;
    m_errorMessage = QString();
}

void AppModel::clearTransientMessage()
{
    m_transientMessage = QString();
}

QString AppModel::message(const std::exception &error)
{
    return vornel::errorMessage(error);
}

LibraryQuery::Filter AppModel::filter() const
{
    const QString &category = m_selectedCategory.value();
    return {m_searchText, category.isEmpty() ? std::nullopt : std::optional(category), m_selectedMaturity};
}

QList<SkillSummary> AppModel::filteredSkills() const
{
    return libraryIndex().filteredSkills(filter());
}

QList<SkillSummary> AppModel::needsAttention() const
{
    const auto &overview = m_overview.value();
    return overview ? LibraryQuery::needsAttention(*overview) : QList<SkillSummary>();
}

FoundDraft AppModel::foundDraft(const QUuid &id) const
{
    return m_foundDraft.first == id ? m_foundDraft.second : FoundDraft();
}

QList<SkillSummary> AppModel::skills(Destination destination) const
{
    const auto &overview = m_overview.value();
    if (!overview)
        return {};
    switch (destination) {
    case Destination::needsAttention:
        return LibraryQuery::needsAttention(*overview);
    case Destination::trash:
        return overview->trashedSkills;
    case Destination::library:
        break;
    }
    return overview->skills;
}

QList<SkillSummary> AppModel::shownSkills(Destination destination) const
{
    return destination == Destination::library ? filteredSkills()
                                               : LibraryQuery::found(skills(destination), searchText());
}

SkillCategory AppModel::category(const QString &id) const
{
    const auto &overview = m_overview.value();
    return LibraryQuery::category(overview ? overview->categories : SkillCategory::defaults(), id);
}

QUrl AppModel::folder(const QString &slug) const
{
    return QUrl::fromLocalFile(pathText(m_workspaceURL / "skills" / slug.toStdString()));
}

void AppModel::setSelectedDestination(std::optional<Destination> destination)
{
    if (destination != selectedDestination())
        setSearchText({});
    m_selectedDestination = destination;
}

void AppModel::setSearchText(const QString &text)
{
    m_searchText = text;
}

void AppModel::setSelectedCategory(const QString &id)
{
    m_selectedCategory = id;
}

void AppModel::setSelectedMaturity(std::optional<Maturity> maturity)
{
    m_selectedMaturity = maturity;
}

QVariant AppModel::overviewValue() const
{
    return optionalValue(overview());
}

QVariant AppModel::importPlanValue() const
{
    return optionalValue(importPlan());
}

QVariant AppModel::selectedDestinationValue() const
{
    return optionalValue(selectedDestination());
}

void AppModel::setSelectedDestinationValue(const QVariant &destination)
{
    setSelectedDestination(optionalCase<Destination>(destination));
}

QVariant AppModel::selectedSkillValue() const
{
    return optionalValue(selectedSkill());
}

QVariant AppModel::selectedMaturityValue() const
{
    return optionalValue(selectedMaturity());
}

void AppModel::setSelectedMaturityValue(const QVariant &maturity)
{
    setSelectedMaturity(optionalCase<Maturity>(maturity));
}

} // namespace vornel
