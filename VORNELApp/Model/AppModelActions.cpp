#include "AppModel.h"

#include <VORNELCore/Library/Wording.h>

#include <QCoro/QCoroFuture>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// Those of `skills` that `ids` names.
QList<SkillSummary> named(const QSet<QUuid> &ids, QList<SkillSummary> skills)
{
    skills.removeIf([&ids](const SkillSummary &skill) { return !ids.contains(skill.id); });
    return skills;
}

/// What the plan would import.
QSet<QString> slugsOf(const ImportPlan &plan)
{
    QSet<QString> slugs;
    for (const ImportCandidate &candidate : plan.candidates)
        slugs.insert(candidate.slug);
    for (const ImportCollision &collision : plan.collisions)
        slugs.insert(collision.slug);
    return slugs;
}

} // namespace

QCoro::Task<> AppModel::start()
{
    return m_startUp.start(m_workspaceURL, m_claudeRoot, m_codexRoot);
}

void AppModel::retryStart()
{
    start();
}

void AppModel::beginImportScan()
{
    m_operations.perform([this] { return m_import.scan(); });
}

void AppModel::resolveCollision(QUuid id, CollisionChoice choice)
{
    m_operations.perform([this, id, choice] { return m_import.resolveCollision(id, choice); });
}

void AppModel::resolveCollisions(CollisionChoice choice)
{
    m_operations.perform([this, choice] { return m_import.resolveCollisions(choice); });
}

void AppModel::excludeFromImport(const QString &slug)
{
    m_operations.perform([this, slug] { return m_import.exclude(slug); });
}

void AppModel::commitImport()
{
    if (!importPlan())
        return;
    m_operations.perform([this]() -> QCoro::Task<> {
        const QSet<QString> slugs = slugsOf(*importPlan());
        m_library.show(co_await m_import.commit());
        m_importedTexts.lookAt(slugs);
        m_startUp.complete();
        setSelectedDestination(Destination::library);
        m_operations.confirm(u"PRÊT"_s);
        Q_EMIT imported();
    });
}

void AppModel::reload()
{
    m_operations.perform([this] { return m_library.read(); });
}

QCoro::Task<Outcome> AppModel::createSkill(CreateSkillRequest request)
{
    return m_operations.perform([this, request = std::move(request)]() -> QCoro::Task<> {
        const SkillDetail created = co_await m_service->createSkill(request);
        m_selectedSkill.open(created);
        co_await m_library.read();
        m_operations.confirm(u"CRÉÉE"_s);
    });
}

QCoro::Task<Outcome> AppModel::duplicateSkill(QUuid id, QString slug)
{
    return m_operations.perform([this, id, slug = std::move(slug)]() -> QCoro::Task<> {
        co_await m_service->duplicateSkill(id, slug, std::nullopt);
        co_await m_library.read();
        m_operations.confirm(u"DUPLIQUÉE"_s);
    });
}

QCoro::Task<Outcome> AppModel::setProperties(QList<QUuid> ids, PropertyChange change,
                                             std::optional<qint64> expectedRevision)
{
    return m_operations.perform([this, ids = std::move(ids), change = std::move(change),
                                 expectedRevision]() -> QCoro::Task<> {
        const QList<SkillDetail> skills = co_await m_service->setProperties(ids, change, expectedRevision);
        const bool isChange = std::ranges::any_of(skills, [this](const SkillDetail &skill) {
            const std::optional<SkillSummary> former = m_library.skill(skill.manifest.id);
            return !former || former->revision < skill.manifest.revision;
        });
        for (const SkillDetail &skill : skills)
            m_selectedSkill.show(skill);
        co_await m_library.read();
        m_operations.confirm(isChange ? u"PROPRIÉTÉS MODIFIÉES"_s : u"RIEN À CHANGER"_s);
    });
}

QCoro::Task<Outcome> AppModel::createCategory(QString name, QString colorHex)
{
    return m_operations.perform(
        [this, name = std::move(name), colorHex = std::move(colorHex)]() -> QCoro::Task<> {
            m_library.show(co_await m_service->createCategory(name, colorHex));
            m_operations.confirm(u"CATÉGORIE CRÉÉE"_s);
        });
}

QCoro::Task<Outcome> AppModel::updateCategory(QString id, QString name, QString colorHex)
{
    return m_operations.perform([this, id = std::move(id), name = std::move(name),
                                 colorHex = std::move(colorHex)]() -> QCoro::Task<> {
        m_library.show(co_await m_service->updateCategory(id, name, colorHex));
        m_operations.confirm(u"CATÉGORIE MODIFIÉE"_s);
    });
}

QCoro::Task<Outcome> AppModel::deleteCategory(QString id)
{
    return m_operations.perform([this, id = std::move(id)]() -> QCoro::Task<> {
        m_library.show(co_await m_service->deleteCategory(id));
        if (selectedCategory() == id)
            setSelectedCategory({});
        if (selectedSkill())
            co_await m_selectedSkill.read(selectedSkill()->manifest.id);
        m_operations.confirm(u"CATÉGORIE SUPPRIMÉE"_s);
    });
}

void AppModel::assignSkills(QSet<QUuid> ids, QString category)
{
    m_operations.perform([this, ids = std::move(ids), category = std::move(category)]() -> QCoro::Task<> {
        m_library.show(co_await m_service->assignSkills(ids, category));
        if (ids.contains(selectedSkillID()))
            co_await m_selectedSkill.read(selectedSkillID());
        m_operations.confirm(u"CATÉGORIE MODIFIÉE"_s);
    });
}

void AppModel::assignSelectedSkill(const QString &category)
{
    if (!selectedSkillID().isNull())
        assignSkills({selectedSkillID()}, category);
}

void AppModel::setCopyAside(QUuid id, TargetKind target)
{
    m_operations.perform([this, id, target]() -> QCoro::Task<> {
        m_selectedSkill.show(co_await m_service->setAside(id, target));
        co_await m_library.read();
        m_operations.confirm(u"MISE DE CÔTÉ"_s);
    });
}

void AppModel::moveSelectedSkillToTrash()
{
    if (selectedSkillID().isNull())
        return;
    m_operations.perform(
        [this, id = selectedSkillID(), edits = m_openSkill.draft()->edits()]() -> QCoro::Task<> {
            const WorkspaceOverview overview = co_await m_service->moveToTrash(id);
            m_drafts->discardDraft(id); // the user has agreed to lose it
            m_library.show(overview);
            closeSkill();
            m_operations.confirm(u"CORBEILLE"_s);
            m_givenUpText = {m_operations.confirmedStep(), id, edits};
        });
}

void AppModel::moveSkillsToTrash(QSet<QUuid> ids)
{
    m_operations.perform([this, ids = std::move(ids)]() -> QCoro::Task<> {
        m_library.show(co_await m_service->moveToTrash(ids));
        if (ids.contains(selectedSkillID()))
            closeSkill();
        m_operations.confirm(ids.size() == 1 ? u"CORBEILLE"_s
                                             : QString::number(ids.size()) + u" DÉPLACÉES"_s);
    });
}

void AppModel::undo()
{
    if (undoableStep() && !isRedoable())
        takeBack(u"ANNULÉ"_s);
}

void AppModel::redo()
{
    if (isRedoable())
        takeBack(u"RÉTABLI"_s);
}

void AppModel::takeBack(const QString &verb)
{
    if (isWorking())
        return;
    m_operations.perform([this, step = *undoableStep(), verb]() -> QCoro::Task<> {
        m_library.show(co_await m_service->undo(step.id));
        keepGivenUpText(step.id);
        co_await followSelected();
        m_operations.confirm(verb + u"\u00A0: "_s + Wording::action(step.action).toUpper());
    });
}

/// What the user has given up with a skill comes back with it, as the editor's unsaved text.
void AppModel::keepGivenUpText(const QUuid &undoneStep)
{
    const auto [step, skill, edits] = std::exchange(m_givenUpText, {});
    if (step == undoneStep && edits)
        m_drafts->keepDraft(skill, *edits);
}

/// Unsaved edits and properties stay, as those of a skill that has moved on or gone.
QCoro::Task<> AppModel::followSelected()
{
    if (m_library.skill(selectedSkillID()))
        co_await m_selectedSkill.read(selectedSkillID());
    else if (!m_departure.isGuarded())
        closeSkill();
}

void AppModel::restore(QUuid id)
{
    m_operations.perform([this, id]() -> QCoro::Task<> {
        m_library.show(co_await m_service->restore(id));
        m_operations.confirm(u"RESTAURÉE"_s);
    });
}

void AppModel::deletePermanently(QUuid id)
{
    m_operations.perform([this, id]() -> QCoro::Task<> {
        m_library.show(co_await m_service->deletePermanently(id));
        m_operations.confirm(u"SUPPRIMÉE"_s);
    });
}

void AppModel::emptyTrash()
{
    m_operations.perform([this]() -> QCoro::Task<> {
        m_library.show(co_await m_service->emptyTrash());
        m_operations.confirm(u"CORBEILLE VIDÉE"_s);
    });
}

QCoro::Task<Outcome> AppModel::restoreSetAside(QString copy, QString slug)
{
    return m_operations.perform([this, copy = std::move(copy), slug = std::move(slug)]() -> QCoro::Task<> {
        co_await m_service->restoreAsSkill(copy, slug);
        co_await m_library.read();
        m_operations.confirm(u"RESTAURÉE"_s);
    });
}

void AppModel::revertToSetAside(const QString &copy, const SkillSummary &skill)
{
    m_operations.perform([this, copy, id = skill.id, revision = skill.revision]() -> QCoro::Task<> {
        const SkillDetail revised = co_await m_service->restoreAsRevision(copy, id, revision);
        m_selectedSkill.show(revised);
        co_await m_library.read();
        const bool isOther = revised.manifest.revision > revision;
        m_operations.confirm(isOther ? u"NOUVELLE RÉVISION"_s : u"RIEN À CHANGER"_s);
    });
}

void AppModel::deleteSetAside(const QString &copy)
{
    m_operations.perform([this, copies = QStringList(copy)]() -> QCoro::Task<> {
        co_await m_service->deleteSetAside(copies);
        co_await m_library.read();
        m_operations.confirm(u"SUPPRIMÉE"_s);
    });
}

void AppModel::ignoreNewSkills(const QList<NewSkill> &skills)
{
    m_operations.perform([this, skills]() -> QCoro::Task<> {
        co_await m_service->ignoreNewSkills(skills);
        co_await m_library.read();
    });
}

void AppModel::synchronizeSkills(const QSet<QUuid> &ids)
{
    runBatch([this, skills = named(ids, skills(Destination::library))] {
        return m_batch.synchronize(skills, *m_service);
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
    m_operations.perform([this, run = std::move(run)]() -> QCoro::Task<> {
        co_await run();
        concludeBatch();
        co_await m_library.read();
    });
}

void AppModel::concludeBatch()
{
    if (const QString text = m_batch.confirmation(); !text.isEmpty())
        m_operations.confirm(text);
    m_operations.showFailure({.succeeded = false, .message = m_batch.failureMessage()});
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

} // namespace vornel
