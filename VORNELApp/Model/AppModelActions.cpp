#include "AppModel.h"

#include <VORNELCore/Errors/ErrorMessage.h>

#include <QCoro/QCoroFuture>
#include <QFutureWatcher>
#include <QtConcurrentRun>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

const QString onboardingCompletedKey = u"com.brindlecove.vornel.onboarding.completed.v3"_s;

QCoro::Task<Outcome> failure()
{
    co_return Outcome{.succeeded = false};
}

/// What was chosen between the same two versions, if it was.
std::optional<CollisionChoice> formerChoice(const ImportCollision &collision,
                                            const QList<ImportCollision> &before)
{
    const auto isSame = [&collision](const ImportCollision &former) {
        return former.slug == collision.slug && former.claude.digest == collision.claude.digest &&
               former.codex.digest == collision.codex.digest;
    };
    const auto found = std::ranges::find_if(before, isSame);
    return found == before.end() ? std::nullopt : found->choice;
}

/// Those of `skills` that `ids` names.
QList<SkillSummary> named(const QSet<QUuid> &ids, QList<SkillSummary> skills)
{
    skills.removeIf([&ids](const SkillSummary &skill) { return !ids.contains(skill.id); });
    return skills;
}

} // namespace

/// Counts an operation among those that run, for as long as it lives.
class AppModel::Operation
{
public:
    explicit Operation(AppModel &model) : m_model(model) { count(1); }
    ~Operation() { count(-1); }
    Q_DISABLE_COPY_MOVE(Operation)

private:
    void count(int change) { m_model.m_operationCount = m_model.m_operationCount + change; }

    AppModel &m_model;
};

template <typename Action>
QCoro::Task<Outcome> AppModel::perform(Action action)
{
    const Operation operation(*this);
    m_isWorking = true;
    clearError();
    Outcome outcome;
    try {
        co_await action();
    } catch (const std::exception &error) {
        outcome = fail(error);
    }
    m_isWorking = false;
    co_return outcome;
}

QCoro::Task<> AppModel::start()
{
    const Operation operation(*this);
    m_phase = Phase::launching();
    clearError();
    try {
        show(co_await m_service->bootstrap(m_workspaceURL, m_claudeRoot, m_codexRoot));
        const bool isOnboarded = m_defaults->value(onboardingCompletedKey, false).toBool();
        m_phase = isOnboarded ? Phase::ready() : Phase::onboarding();
    } catch (const std::exception &error) {
        m_phase = Phase::failed(message(error), failedFolder(error));
    }
}

void AppModel::retryStart()
{
    start();
}

void AppModel::beginImportScan()
{
    perform([this] { return scanImports(); });
}

QCoro::Task<> AppModel::scanImports()
{
    ImportPlan plan = co_await m_service->scanImports();
    const QList<ImportCollision> before = importPlan() ? importPlan()->collisions : QList<ImportCollision>();
    const QList<ImportCollision> found = plan.collisions;
    for (const ImportCollision &collision : found) {
        if (const auto choice = formerChoice(collision, before))
            plan = co_await m_service->resolveCollision(collision.id, *choice);
    }
    m_importPlan = plan;
}

void AppModel::resolveCollision(QUuid id, CollisionChoice choice)
{
    perform([this, id, choice] { return showDecided(m_service->resolveCollision(id, choice)); });
}

void AppModel::excludeFromImport(const QString &slug)
{
    perform([this, slug] { return showDecided(m_importReviewer->excludeFromImport(slug)); });
}

QCoro::Task<> AppModel::showDecided(QFuture<ImportPlan> decided)
{
    const ImportPlan plan = co_await decided;
    const bool isOutdated =
        importPlan() && importPlan()->id == plan.id && importPlan()->revision > plan.revision;
    if (!isOutdated)
        m_importPlan = plan;
}

void AppModel::commitImport()
{
    if (!importPlan())
        return;
    perform([this, planID = importPlan()->id]() -> QCoro::Task<> {
        const QFuture<WorkspaceOverview> commit = m_service->commitImport(planID);
        followProgress(commit);
        show(co_await commit);
        m_defaults->setValue(onboardingCompletedKey, true);
        m_defaults->sync();
        m_phase = Phase::ready();
        setSelectedDestination(Destination::library);
        confirm(u"PRÊT"_s);
    });
}

void AppModel::reload()
{
    perform([this] { return readOverview(); });
}

void AppModel::show(const WorkspaceOverview &overview)
{
    m_overview = overview;
    m_isOverviewCurrent = true;
    Q_EMIT overviewRead();
}

QCoro::Task<> AppModel::readOverview()
{
    try {
        show(co_await m_service->reload());
    } catch (const std::exception &) {
        m_isOverviewCurrent = false;
        throw;
    }
}

void AppModel::selectSkill(QUuid id)
{
    m_selectedSkillID = id;
    if (id.isNull())
        m_selectedSkill = std::nullopt;
    else
        loadSelectedSkill();
}

QCoro::Task<> AppModel::loadSelectedSkill()
{
    const Operation operation(*this);
    m_isDetailLoading = true;
    clearError();
    const int load = ++m_lastLoad;
    const QUuid id = selectedSkillID();
    try {
        const SkillDetail detail = co_await m_service->loadSkill(id);
        m_unopenedSkills.remove(id);
        const FoundDraft found = co_await readDraft(detail);
        if (selectedSkillID() == id) {
            m_foundDraft = {id, found};
            m_selectedSkill = detail;
        }
    } catch (const std::exception &error) {
        m_unopenedSkills.insert(id);
        if (selectedSkillID() == id) {
            m_selectedSkill = std::nullopt;
            fail(error);
        }
    }
    if (load == m_lastLoad)
        m_isDetailLoading = false;
}

/// A draft that can't be looked for doesn't keep the skill from being shown.
QCoro::Task<FoundDraft> AppModel::readDraft(SkillDetail skill)
{
    FoundDraft found;
    try {
        found.draft = co_await m_drafts->draft(skill.manifest.id);
        if (found.draft) {
            const QString digest = co_await QtConcurrent::run(KeptDraft::digestOf, skill.skillMD);
            found.isStale = found.draft->baseDigest != digest;
        }
    } catch (const std::exception &error) {
        found.failure = message(error);
    }
    co_return found;
}

QCoro::Task<bool> AppModel::refreshSelectedSkill()
{
    const Operation operation(*this);
    const QUuid id = selectedSkillID();
    try {
        const SkillDetail fresh = co_await m_service->loadSkill(id);
        if (selectedSkillID() == id)
            m_selectedSkill = fresh;
        co_return true;
    } catch (const std::exception &) {
        co_return false;
    }
}

QCoro::Task<> AppModel::refreshSelectedRevision()
{
    co_await reloadQuietly();
    std::optional<SkillDetail> skill = selectedSkill();
    const QList<SkillSummary> known = skills(Destination::library);
    const auto found = std::ranges::find(known, selectedSkillID(), &SkillSummary::id);
    if (!skill || found == known.end() || found->id != skill->manifest.id)
        co_return;
    skill->manifest.revision = found->revision;
    m_selectedSkill = skill;
}

QCoro::Task<Outcome> AppModel::reloadSelectedSkill()
{
    return perform([this, id = selectedSkillID()]() -> QCoro::Task<> {
        const SkillDetail fresh = co_await m_service->loadSkill(id);
        if (selectedSkillID() == id)
            m_selectedSkill = fresh;
    });
}

QCoro::Task<std::pair<std::optional<QByteArray>, Outcome>> AppModel::readSelectedText()
{
    const Operation operation(*this);
    clearError();
    std::pair<std::optional<QByteArray>, Outcome> answer;
    try {
        const auto bytes = co_await m_inspector->readFile(selectedSkillID(), std::nullopt, u"SKILL.md"_s);
        answer.first = bytes.value_or(QByteArray());
    } catch (const std::exception &error) {
        answer.second = fail(error);
    }
    co_return answer;
}

QCoro::Task<Outcome> AppModel::createSkill(CreateSkillRequest request)
{
    return perform([this, request = std::move(request)]() -> QCoro::Task<> {
        const SkillDetail created = co_await m_service->createSkill(request);
        m_selectedSkill = created;
        m_selectedSkillID = created.manifest.id;
        co_await readOverview();
        confirm(u"CRÉÉE"_s);
    });
}

QCoro::Task<Outcome> AppModel::saveSelectedSkill(QString skillMD)
{
    if (!selectedSkill())
        return failure();
    return perform(
        [this, shown = selectedSkill()->manifest, skillMD = std::move(skillMD)]() -> QCoro::Task<> {
            m_selectedSkill = co_await m_service->saveSkill(shown.id, shown.revision, skillMD);
            co_await readOverview();
            confirm(u"ENREGISTRÉE"_s);
        });
}

void AppModel::synchronizeSelectedSkill()
{
    if (!selectedSkill())
        return;
    perform([this, id = selectedSkill()->manifest.id]() -> QCoro::Task<> {
        m_selectedSkill = co_await m_service->synchronize(id);
        co_await readOverview();
        confirm(u"À JOUR"_s);
    });
}

QCoro::Task<Outcome> AppModel::createCategory(QString name, QString colorHex)
{
    return perform([this, name = std::move(name), colorHex = std::move(colorHex)]() -> QCoro::Task<> {
        show(co_await m_service->createCategory(name, colorHex));
        confirm(u"CATÉGORIE CRÉÉE"_s);
    });
}

QCoro::Task<Outcome> AppModel::updateCategory(QString id, QString name, QString colorHex)
{
    return perform([this, id = std::move(id), name = std::move(name),
                    colorHex = std::move(colorHex)]() -> QCoro::Task<> {
        show(co_await m_service->updateCategory(id, name, colorHex));
        confirm(u"CATÉGORIE MODIFIÉE"_s);
    });
}

QCoro::Task<Outcome> AppModel::deleteCategory(QString id)
{
    return perform([this, id = std::move(id)]() -> QCoro::Task<> {
        show(co_await m_service->deleteCategory(id));
        if (selectedCategory() == id)
            setSelectedCategory({});
        if (selectedSkill())
            m_selectedSkill = co_await m_service->loadSkill(selectedSkill()->manifest.id);
        confirm(u"CATÉGORIE SUPPRIMÉE"_s);
    });
}

void AppModel::refreshOverview()
{
    reloadQuietly();
}

QCoro::Task<> AppModel::reloadQuietly()
{
    const Operation operation(*this);
    try {
        co_await readOverview();
    } catch (const std::exception &) {
        co_return; // what is shown stays
    }
}

void AppModel::assignSkills(QSet<QUuid> ids, QString category)
{
    perform([this, ids = std::move(ids), category = std::move(category)]() -> QCoro::Task<> {
        show(co_await m_service->assignSkills(ids, category));
        if (ids.contains(selectedSkillID()))
            m_selectedSkill = co_await m_service->loadSkill(selectedSkillID());
        confirm(u"CATÉGORIE MODIFIÉE"_s);
    });
}

void AppModel::assignSelectedSkill(const QString &category)
{
    if (!selectedSkillID().isNull())
        assignSkills({selectedSkillID()}, category);
}

void AppModel::setCopyAside(QUuid id, TargetKind target)
{
    perform([this, id, target]() -> QCoro::Task<> {
        const SkillDetail mended = co_await m_copyRepairer->setAside(id, target);
        if (selectedSkillID() == id)
            m_selectedSkill = mended;
        co_await readOverview();
        confirm(u"MISE DE CÔTÉ"_s);
    });
}

void AppModel::moveSelectedSkillToTrash()
{
    if (selectedSkillID().isNull())
        return;
    perform([this, id = selectedSkillID()]() -> QCoro::Task<> {
        const WorkspaceOverview overview = co_await m_service->moveToTrash(id);
        m_drafts->discardDraft(id); // the user has agreed to lose it
        show(overview);
        deselect();
        confirm(u"CORBEILLE"_s);
    });
}

void AppModel::moveSkillsToTrash(QSet<QUuid> ids)
{
    perform([this, ids = std::move(ids)]() -> QCoro::Task<> {
        show(co_await m_service->moveToTrash(ids));
        if (ids.contains(selectedSkillID()))
            deselect();
        confirm(ids.size() == 1 ? u"CORBEILLE"_s : QString::number(ids.size()) + u" DÉPLACÉES"_s);
    });
}

void AppModel::restore(QUuid id)
{
    perform([this, id]() -> QCoro::Task<> {
        show(co_await m_service->restore(id));
        confirm(u"RESTAURÉE"_s);
    });
}

void AppModel::deletePermanently(QUuid id)
{
    perform([this, id]() -> QCoro::Task<> {
        show(co_await m_service->deletePermanently(id));
        confirm(u"SUPPRIMÉE"_s);
    });
}

void AppModel::emptyTrash()
{
    perform([this]() -> QCoro::Task<> {
        show(co_await m_service->emptyTrash());
        confirm(u"CORBEILLE VIDÉE"_s);
    });
}

void AppModel::synchronizeSkills(const QSet<QUuid> &ids)
{
    runBatch([this, skills = named(ids, skills(Destination::library))] {
        return m_batch.synchronize(skills, *m_copyRepairer);
    });
}

void AppModel::restoreSkills(const QSet<QUuid> &ids)
{
    runBatch([this, skills = named(ids, skills(Destination::trash))] {
        return m_batch.run(SkillBatch::Kind::restoration, skills,
                           [this](QUuid id) -> QCoro::Task<> { co_await m_service->restore(id); });
    });
}

void AppModel::deleteSkillsPermanently(const QSet<QUuid> &ids)
{
    runBatch([this, skills = named(ids, skills(Destination::trash))] {
        return m_batch.run(SkillBatch::Kind::deletion, skills,
                           [this](QUuid id) -> QCoro::Task<> { co_await m_service->deletePermanently(id); });
    });
}

void AppModel::runBatch(std::function<QCoro::Task<>()> run)
{
    if (isWorking())
        return;
    perform([this, run = std::move(run)]() -> QCoro::Task<> {
        co_await run();
        concludeBatch();
        co_await readOverview();
    });
}

void AppModel::concludeBatch()
{
    if (const QString text = m_batch.confirmation(); !text.isEmpty())
        confirm(text);
    m_errorMessage = m_batch.failureMessage();
}

/// What failed to be changed and is no longer listed needs no reason.
void AppModel::keepBatchFailures()
{
    QSet<QUuid> listed;
    for (const Destination destination : {Destination::needsAttention, Destination::trash}) {
        for (const SkillSummary &skill : skills(destination))
            listed.insert(skill.id);
    }
    m_batch.keepFailures(listed);
}

/// Keeps `commitProgress` in step until the import ends.
void AppModel::followProgress(const QFuture<WorkspaceOverview> &commit)
{
    m_commitProgress = 0;
    auto *watcher = new QFutureWatcher<WorkspaceOverview>(this);
    connect(watcher, &QFutureWatcherBase::progressValueChanged, this, [this, watcher](int done) {
        if (watcher->progressMaximum() > 0)
            m_commitProgress = static_cast<qreal>(done) / watcher->progressMaximum();
    });
    connect(watcher, &QFutureWatcherBase::finished, watcher, &QObject::deleteLater);
    watcher->setFuture(commit);
}

Outcome AppModel::fail(const std::exception &error)
{
    const auto *known = dynamic_cast<const VORNELWorkspaceError *>(&error);
    Outcome outcome{.succeeded = false,
                    .errorCase = known != nullptr ? known->caseName() : QString(),
                    .message = message(error)};
    m_isSynchronizationIncomplete = outcome.isSynchronizationIncomplete();
    m_errorMessage = outcome.message;
    return outcome;
}

void AppModel::confirm(const QString &text)
{
    m_transientMessage = text;
    Q_EMIT confirmed();
}

void AppModel::deselect()
{
    m_selectedSkillID = QUuid();
    m_selectedSkill = std::nullopt;
}

} // namespace vornel
