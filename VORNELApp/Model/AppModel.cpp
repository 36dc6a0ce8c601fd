#include "AppModel.h"

#include <VORNELCore/Errors/ErrorMessage.h>

#include <utility>

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

AppModel::AppModel(std::shared_ptr<WindowServicing> service, std::filesystem::path workspaceURL,
                   std::filesystem::path claudeRoot, std::filesystem::path codexRoot,
                   std::shared_ptr<QSettings> defaults, std::shared_ptr<DraftKeeping> drafts,
                   std::shared_ptr<WorkspaceWatching> watch)
    : m_service(std::move(service)),
      m_drafts(std::move(drafts)),
      m_workspaceURL(std::move(workspaceURL)),
      m_claudeRoot(std::move(claudeRoot)),
      m_codexRoot(std::move(codexRoot)),
      m_operations(*m_service),
      m_library(m_service, m_operations),
      m_liveReading(std::move(watch), m_library, m_operations),
      m_startUp(m_service, m_operations, m_library, defaults),
      m_import(m_service),
      m_importedTexts(m_service, m_library),
      m_selectedSkill(m_service, m_drafts, m_operations),
      m_openSkill(m_service, *m_drafts, m_operations, m_library, m_selectedSkill, m_departure),
      m_replacement(*m_service, m_operations),
      m_adoption(m_service, m_operations, m_library, m_selectedSkill),
      m_history(m_service, m_operations, m_library, m_selectedSkill, *m_openSkill.replacement()),
      m_addition(m_service, m_operations, m_library, m_selectedSkill),
      m_export(m_service, m_operations, m_library),
      m_filters(std::move(defaults))
{
    forwardChanges();
    connect(&m_departure, &Departure::left, this, &AppModel::go);
    connect(&m_library, &Library::overviewChanged, this, &AppModel::keepBatchFailures);
    connect(&m_addition, &Addition::added, this, &AppModel::showAdded);
    connect(&m_library, &Library::overviewChanged, &m_filters,
            [this] { m_filters.keepTags(overview()->skills); });
    connect(&m_operations, &Operations::isWorkingChanged, &m_replacement, [this] {
        if (!isWorking() && (m_replacement.isLooking() || m_replacement.isAsking()))
            m_replacement.copies()->look();
    });
    connect(this, &AppModel::selectedDestinationChanged, &m_replacement, &CopyReplacement::decline);
    connect(&m_replacement, &CopyReplacement::agreed, this,
            [this] { synchronizeSkill(m_replacement.copies()->skillID()); });
}

AppModel::~AppModel()
{
    m_batch.stop();
    m_liveReading.stop();
    m_operations.wait();
}

void AppModel::forwardChanges()
{
    connect(&m_startUp, &StartUp::phaseChanged, this, &AppModel::phaseChanged);
    connect(&m_startUp, &StartUp::stepChanged, this, &AppModel::onboardingStepChanged);
    connect(&m_library, &Library::overviewChanged, this, &AppModel::overviewChanged);
    connect(&m_library.checks(), &SkillChecks::changed, this, &AppModel::checksChanged);
    connect(&m_library, &Library::isCurrentChanged, this, &AppModel::isOverviewCurrentChanged);
    connect(&m_library, &Library::wasRead, this, &AppModel::overviewRead);
    connect(&m_import, &ImportSession::planChanged, this, &AppModel::importPlanChanged);
    connect(&m_import, &ImportSession::planChanged, this, &AppModel::followImport);
    connect(&m_import, &ImportSession::progressChanged, this, &AppModel::commitProgressChanged);
    connect(&m_selectedSkill, &SelectedSkill::idChanged, this, &AppModel::selectedSkillIDChanged);
    connect(&m_selectedSkill, &SelectedSkill::detailChanged, this, &AppModel::selectedSkillChanged);
    connect(&m_selectedSkill, &SelectedSkill::isLoadingChanged, this, &AppModel::isDetailLoadingChanged);
    connect(&m_operations, &Operations::isWorkingChanged, this, &AppModel::isWorkingChanged);
    connect(&m_operations, &Operations::isWorkingChanged, this, &AppModel::followImport);
    connect(&m_operations, &Operations::isBusyChanged, this, &AppModel::isBusyChanged);
    connect(&m_operations, &Operations::errorMessageChanged, this, &AppModel::errorMessageChanged);
    connect(&m_operations, &Operations::isSynchronizationIncompleteChanged, this,
            &AppModel::isSynchronizationIncompleteChanged);
    connect(&m_operations, &Operations::confirmationChanged, this, &AppModel::transientMessageChanged);
    connect(&m_operations, &Operations::undoableStepChanged, this, &AppModel::undoableStepChanged);
    connect(&m_operations, &Operations::confirmed, this, &AppModel::confirmed);
}

/// The forms, the shell and the window follow the other exits.
void AppModel::go(Departure::Exit exit)
{
    if (exit == Departure::ToDestination)
        setSelectedDestination(m_departure.destination());
    if (exit == Departure::ToDestination || exit == Departure::ToList)
        closeSkill();
}

/// No filter hides what has come.
void AppModel::showAdded()
{
    setSelectedDestination(Destination::library);
    setSearchText({});
    setSelectedCategory({});
    setSelectedMaturity({});
    m_filters.clear();
    const QStringList &slugs = m_addition.newSlugs();
    m_importedTexts.lookAt({slugs.begin(), slugs.end()});
}

void AppModel::followImport()
{
    const bool canCommit = importPlan() && importPlan()->isReadyToCommit() && !isWorking();
    if (std::exchange(m_canCommitImport, canCommit) != canCommit)
        Q_EMIT canCommitImportChanged();
}

QString AppModel::message(const std::exception &error)
{
    return vornel::errorMessage(error);
}

LibraryQuery::Filter AppModel::filter() const
{
    const auto category = m_selectedCategory.isEmpty() ? std::nullopt : std::optional(m_selectedCategory);
    return m_filters.narrowed({m_searchText, category, m_selectedMaturity}, checks().faulty());
}

QList<SkillSummary> AppModel::filteredSkills() const
{
    return libraryIndex().filteredSkills(filter());
}

QList<SkillSummary> AppModel::shownSkills(Destination destination) const
{
    return destination == Destination::library ? filteredSkills()
                                               : LibraryQuery::found(skills(destination), searchText());
}

QUrl AppModel::folder(const QString &slug) const
{
    return QUrl::fromLocalFile(pathText(m_workspaceURL / "skills" / slug.toStdString()));
}

void AppModel::setSelectedDestination(std::optional<Destination> destination)
{
    if (destination == m_selectedDestination)
        return;
    setSearchText({});
    m_selectedDestination = destination;
    Q_EMIT selectedDestinationChanged();
}

void AppModel::setSearchText(const QString &text)
{
    if (std::exchange(m_searchText, text) != text)
        Q_EMIT searchTextChanged();
}

void AppModel::setSelectedCategory(const QString &id)
{
    if (std::exchange(m_selectedCategory, id) != id)
        Q_EMIT selectedCategoryChanged();
}

void AppModel::setSelectedMaturity(std::optional<Maturity> maturity)
{
    if (std::exchange(m_selectedMaturity, maturity) != maturity)
        Q_EMIT selectedMaturityChanged();
}

QVariant AppModel::overviewValue() const
{
    return optionalValue(overview());
}

QVariant AppModel::importPlanValue() const
{
    return optionalValue(importPlan());
}

/// Empty where the confirmation is about nothing that can be taken back.
QString AppModel::transientStepName() const
{
    const QUuid &step = m_operations.confirmedStep();
    return step.isNull() ? QString() : step.toString();
}

QString AppModel::undoableStepName() const
{
    return undoableStep() ? undoableStep()->id.toString() : QString();
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
