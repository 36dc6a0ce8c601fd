#include "Scenario.h"

#include "Scratch.h"
#include "StartingState.h"

#include <QSet>

#include <algorithm>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

using Service = LocalWorkspaceService;

/// The skills of these slugs; `skillNotFound` when there is none of them.
QSet<QUuid> idsOf(const QStringList &slugs, const QList<SkillSummary> &skills)
{
    QSet<QUuid> ids;
    for (const SkillSummary &skill : skills) {
        if (slugs.contains(skill.slug))
            ids.insert(skill.id);
    }
    if (ids.isEmpty())
        throw Error::skillNotFound({});
    return ids;
}

QSet<QUuid> activeIDs(Service &service, const QStringList &slugs)
{
    return idsOf(slugs, service.reload().result().skills);
}

QUuid trashedID(Service &service, const QString &slug)
{
    return *idsOf({slug}, service.reload().result().trashedSkills).cbegin();
}

void create(Service &service)
{
    CreateSkillRequest request = requestFor(u"fresh"_s);
    request.displayName = u"Frais"_s;
    request.summary = u"Nouveau"_s;
    service.createSkill(request).result();
}

void save(Service &service)
{
    service.saveSkill(*activeIDs(service, {u"demo"_s}).cbegin(), 3, savedText).result();
}

void changeFiles(Service &service)
{
    const QUuid demo = *activeIDs(service, {u"demo"_s}).cbegin();
    service.changeFiles(demo, {MovedPath{u"reference"_s, u"moved/here"_s}}, 3).result();
}

/// Writes all files that are edited.
void changeFilesTogether(Service &service)
{
    const QByteArray text = savedText.toUtf8();
    service
        .changeFiles(*activeIDs(service, {u"demo"_s}).cbegin(),
                     {WrittenFile{u"SKILL.md"_s, text}, WrittenFile{u"reference/table.csv"_s, text},
                      WrittenFile{u"new/text"_s, text}},
                     3)
        .result();
}

void rearrangeFiles(Service &service)
{
    service
        .changeFiles(*activeIDs(service, {u"demo"_s}).cbegin(),
                     {MovedPath{u"reference"_s, u"moved"_s}, RemovedPath{u"run.sh"_s},
                      WrittenFile{u"moved/new.bin"_s, QByteArray("\0\xFF", 2)}},
                     3)
        .result();
}

void duplicate(Service &service)
{
    service.duplicateSkill(*activeIDs(service, {u"demo"_s}).cbegin(), u"fresh"_s, {}).result();
}

void assign(Service &service)
{
    service.assignSkills(activeIDs(service, {u"demo"_s, u"second"_s}), u"design"_s).result();
}

/// The order in which a command names them.
QList<QUuid> demoAndSecond(Service &service)
{
    return {*activeIDs(service, {u"demo"_s}).cbegin(), *activeIDs(service, {u"second"_s}).cbegin()};
}

void setProperties(Service &service)
{
    service
        .setProperties(demoAndSecond(service), {.addedTags = {u"essai"_s}, .maturity = Maturity::ready}, {})
        .result();
}

void rename(Service &service)
{
    const QUuid demo = *activeIDs(service, {u"demo"_s}).cbegin();
    service.setProperties({demo}, {.slug = u"renamed"_s, .displayName = u"Autre"_s}, 3).result();
}

void deleteCategory(Service &service)
{
    service.deleteCategory(u"equipe"_s).result();
}

void synchronize(Service &service)
{
    const QSet<QUuid> ids = activeIDs(service, {u"demo"_s, u"second"_s});
    for (const SyncOutcome &outcome : service.synchronizeSkills(ids.values(), {}).result()) {
        if (outcome.failure)
            std::rethrow_exception(outcome.failure);
    }
}

/// What was replaced is put back.
void undoSynchronize(Service &service)
{
    synchronize(service);
    if (const std::optional<UndoStep> step = service.undoableStep())
        service.undo(step->id).result();
}

void setAside(Service &service)
{
    service.setAside(*activeIDs(service, {u"demo"_s}).cbegin(), TargetKind::codex).result();
}

void adopt(Service &service)
{
    service.adopt(*activeIDs(service, {u"demo"_s}).cbegin(), TargetKind::codex, 3, {}).result();
}

void adoptFile(Service &service)
{
    service.adopt(*activeIDs(service, {u"demo"_s}).cbegin(), TargetKind::codex, 3, {u"reference/own.md"_s})
        .result();
}

void adoptHandEdits(Service &service)
{
    service.adoptHandEdits(*activeIDs(service, {u"demo"_s}).cbegin(), 3).result();
}

/// Brings back the first text that was saved over the first.
void revert(Service &service)
{
    const QUuid id = *activeIDs(service, {u"demo"_s}).cbegin();
    const QList<HistoryEntry> versions = service.history(id).result();
    const auto second = std::ranges::find(versions, 2, &HistoryEntry::revision);
    service.revert(id, 3, second->entry, {}).result();
}

void prune(Service &service)
{
    service.prune({.keep = 1}).result();
}

/// Takes the version of Codex where both can't be joined.
void merge(Service &service)
{
    const QUuid id = *activeIDs(service, {u"demo"_s}).cbegin();
    QList<MergeSettlement> settlements;
    for (const MergeConflict &conflict : service.merge(id, {}, {}).result().conflicts)
        settlements.append({conflict.relativePath, conflict.basis, TargetKind::codex});
    service.merge(id, {}, settlements).result();
}

std::function<void(Service &)> trash(const QStringList &slugs)
{
    return [slugs](Service &service) { service.moveToTrash(activeIDs(service, slugs)).result(); };
}

void restore(Service &service)
{
    service.restore(trashedID(service, u"gone"_s)).result();
}

void deletePermanently(Service &service)
{
    service.deletePermanently(trashedID(service, u"gone"_s)).result();
}

void emptyTrash(Service &service)
{
    service.emptyTrash().result();
}

/// Whether this is set aside: not any more, once it was brought back.
bool isSetAside(Service &service, const QString &id)
{
    const QList<SetAsideCopy> copies = service.setAsideCopies().result();
    return std::ranges::find(copies, id, &SetAsideCopy::id) != copies.end();
}

void restoreAsSkill(Service &service)
{
    if (isSetAside(service, setAsideFound))
        service.restoreAsSkill(setAsideFound, u"found"_s).result();
}

void restoreAsRevision(Service &service)
{
    const QUuid demo = *activeIDs(service, {u"demo"_s}).cbegin();
    if (isSetAside(service, setAsideDemo))
        service.restoreAsRevision(setAsideDemo, demo, 3).result();
}

void deleteSetAside(Service &service)
{
    service.deleteSetAside({setAsideFound, setAsideNotes}).result();
}

/// Adds a skill that is offered beside the roots, also where the library has other content.
std::function<void(Service &)> add(const char *slug)
{
    return [slug](Service &service) {
        const std::filesystem::path folder = service.reload().result().workspaceURL.parent_path();
        const QList<std::filesystem::path> offered{folder / "offered" / slug};
        QList<SkillAddition> additions = service.reviewAddition(offered).result();
        for (SkillAddition &addition : additions) {
            if (addition.kind == AdditionKind::different)
                addition.choice = AdditionChoice::added;
        }
        service.addSkills(offered, additions).result();
    };
}

void import(Service &service)
{
    ImportPlan plan = service.scanImports().result();
    if (std::ranges::any_of(plan.blocked,
                            [](const BlockedImport &entry) { return entry.reason == u"unreadable"_s; }))
        throw std::runtime_error("not all that can be imported was seen");
    for (const ImportCollision &collision : ImportPlan(plan).collisions)
        plan = service.resolveCollision(collision.id, CollisionChoice::codex).result();
    service.commitImport(plan.id).result();
}

void ignore(Service &service)
{
    constexpr auto claude = TargetKind::claude;
    constexpr auto codex = TargetKind::codex;
    service
        .ignoreNewSkills({{claude, u"both"_s},
                          {claude, u"clash"_s},
                          {codex, u"both"_s},
                          {codex, u"clash"_s},
                          {codex, u"right"_s}})
        .result();
}

/// An operation on a library; `line` has the words of its command.
Scenario operation(const char *name, std::function<void(Service &)> run, const char *line,
                   std::optional<Error> refusal = std::nullopt)
{
    return {name, buildLibrary, std::move(run), QString::fromUtf8(line).split(u' '), std::move(refusal)};
}

/// An operation that takes over what was edited in copies, or by hand.
Scenario taking(const char *name, std::function<void(Service &)> run, const char *line,
                std::optional<Error> refusal = std::nullopt)
{
    return {name, buildEditedLibrary, std::move(run), QString::fromUtf8(line).split(u' '), std::move(refusal),
            true};
}

/// An operation on what was set aside.
Scenario recovering(const char *name, std::function<void(Service &)> run, const QString &line,
                    std::optional<Error> refusal = std::nullopt)
{
    return {name, buildSetAsideLibrary, std::move(run), line.split(u' '), std::move(refusal)};
}

/// The addition of a skill that is offered.
Scenario adding(const char *name, const char *slug, const char *line)
{
    return {name, buildOfferedSkills, add(slug), QString::fromUtf8(line).split(u' ')};
}

std::vector<Scenario> allScenarios()
{
    const Error done = Error::skillNotFound({});
    return {
        operation("create", create, "create fresh --name Frais --summary Nouveau --replace",
                  Error::duplicateSlug(u"fresh"_s)),
        operation("save", save, "save demo --expect 3 --file text", Error::revisionConflict(3, 4)),
        operation("duplicate", duplicate, "duplicate demo fresh --replace", Error::duplicateSlug(u"fresh"_s)),
        operation("changeFiles", changeFiles, "mv demo reference moved/here --expect 3",
                  Error::revisionConflict(3, 4)),
        operation(
            "changeFilesTogether", changeFilesTogether,
            "put demo SKILL.md --file text reference/table.csv --file text new/text --file text --expect 3",
            Error::revisionConflict(3, 4)),
        {"rearrangeFiles", buildLibrary, rearrangeFiles, {}, Error::revisionConflict(3, 4)},
        operation("assign", assign, "assign design demo second"),
        operation("setProperties", setProperties, "set demo second --add-tags essai --maturity ready"),
        operation("rename", rename, "set demo --slug renamed --name Autre --expect 3", done),
        operation("deleteCategory", deleteCategory, "category delete equipe",
                  Error::integrityFailure(u"Catégorie introuvable."_s)),
        operation("synchronize", synchronize, "sync demo second"),
        operation("setAside", setAside, "set-aside demo codex"),
        taking("adopt", adopt, "adopt demo codex --expect 3", Error::revisionConflict(3, 4)),
        taking("adoptFile", adoptFile, "adopt demo codex --expect 3 --file reference/own.md",
               Error::revisionConflict(3, 4)),
        taking("adoptHandEdits", adoptHandEdits, "adopt demo library --expect 3",
               Error::revisionConflict(3, 4)),
        operation("revert", revert, "revert demo 2 --expect 3", Error::revisionConflict(3, 4)),
        {"prune",
         buildLongHistory,
         prune,
         {u"history"_s, u"--prune"_s, u"--keep"_s, u"1"_s},
         std::nullopt,
         true},
        taking("merge", merge, "merge demo --prefer codex"),
        operation("trashOne", trash({u"demo"_s}), "trash demo", done),
        operation("trashSeveral", trash({u"demo"_s, u"second"_s}), "trash demo second", done),
        operation("restore", restore, "restore gone --replace", done),
        operation("deletePermanently", deletePermanently, "delete gone", done),
        operation("emptyTrash", emptyTrash, "empty-trash"),
        recovering("restoreAsSkill", restoreAsSkill, u"recovery restore %1 --replace"_s.arg(setAsideFound),
                   Error::duplicateSlug(u"found"_s)),
        recovering("restoreAsRevision", restoreAsRevision,
                   u"recovery restore %1 --into demo --expect 3"_s.arg(setAsideDemo),
                   Error::revisionConflict(3, 4)),
        recovering("deleteSetAside", deleteSetAside,
                   u"recovery delete %1 %2"_s.arg(setAsideFound, setAsideNotes)),
        adding("add", "fresh", "add offered/fresh --replace"),
        adding("addRevision", "demo", "add offered/demo --choose demo=added"),
        operation("ignore", ignore, "ignore --all"),
        operation("import", import, "import --prefer codex --replace"),
        {"firstImport",
         writeAssistantsFolders,
         import,
         {u"import"_s, u"--prefer"_s, u"codex"_s, u"--replace"_s},
         std::nullopt},
        {"startAfterCrashes",
         buildInterruptedLibrary,
         [](Service &service) { service.reload().result(); },
         {u"list"_s},
         std::nullopt},
        {"undoSynchronize", buildEditedLibrary, undoSynchronize, {}, std::nullopt, true},
    };
}

} // namespace

const std::vector<Scenario> &scenarios()
{
    static const std::vector<Scenario> all = allScenarios();
    return all;
}

void PrintTo(const Scenario &scenario, std::ostream *stream)
{
    *stream << scenario.name;
}

} // namespace vornel
