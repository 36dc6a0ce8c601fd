#include "Commands.h"

#include "CommandFailure.h"
#include "FailureReport.h"
#include "InputFile.h"
#include "OccupiedPlaces.h"
#include "Report.h"
#include "Terminal.h"

#include <VORNELCore/Errors/ErrorMessage.h>
#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Library/LibraryQuery.h>
#include <VORNELCore/Library/NewSkillText.h>
#include <VORNELCore/Records/RecordJson.h>
#include <VORNELCore/Records/SerializedForms.h>

#include <QJsonArray>

#include <algorithm>
#include <exception>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// What a command works with.
struct Session
{
    const Invocation &invocation;
    WorkspaceServicing &service;
    CopyInspecting &copies;
    TrashInspecting &trash;
    ImportReviewing &imports;
    CopyRepairing &repairs;
    CreationReviewing &creations;
    const WorkspaceOverview &overview;
    SkillDrift drift;
};

/// Prints a record as JSON or, for people, as the text that `report` makes, which may ask why skills have
/// drifted.
template <typename Record, typename ReportText>
void output(const Session &session, const Record &record, const ReportText &report)
{
    if (session.invocation.has(u"json"_s))
        Terminal::print(
            QString::fromUtf8(RecordJson::document(session.drift.addedTo(RecordJson::encode(record)))));
    else if constexpr (std::is_invocable_v<const ReportText &, const Record &, const SkillDrift &>)
        Terminal::print(report(record, session.drift));
    else
        Terminal::print(report(record));
}

/// Prints what the trash holds after a change.
void outputTrash(const Session &session, const WorkspaceOverview &overview)
{
    output(session, overview, [&session](const WorkspaceOverview &changed) {
        return Report::trash(changed, session.trash.trashDates().result());
    });
}

/// The skill that the user means: by its slug or, where none has it, by its identifier.
QUuid findSkill(const QString &typed, const QList<SkillSummary> &skills)
{
    const auto found = std::ranges::find(skills, typed, &SkillSummary::slug);
    if (found != skills.end())
        return found->id;
    if (const auto id = uuidFromText(typed))
        return *id;
    throw CommandFailure(u"skillNotFound"_s, u"Skill introuvable : "_s + typed);
}

QUuid activeSkill(const Session &session, const QString &typed)
{
    return findSkill(typed, session.overview.skills);
}

QString slugOf(const QUuid &id, const QList<SkillSummary> &skills)
{
    const auto found = std::ranges::find(skills, id, &SkillSummary::id);
    return found == skills.end() ? uuidText(id) : found->slug;
}

QUuid trashedSkill(const Session &session)
{
    return findSkill(session.invocation.operands.first(), session.overview.trashedSkills);
}

QList<QUuid> activeSkills(const Session &session, const QStringList &typed)
{
    QList<QUuid> ids;
    for (const QString &skill : typed) {
        const QUuid id = activeSkill(session, skill);
        if (!ids.contains(id))
            ids.append(id);
    }
    return ids;
}

/// The case of `E` that an option or operand names; the command line has been checked to name one.
template <typename E>
E caseOf(const QString &typed)
{
    return fromRawValue<E>(typed).value();
}

/// Refuses to write where that would replace folders of others, unless the user has asked for it.
void refuseOccupied(const Session &session, const QList<TargetPlace> &places)
{
    vornel::refuseOccupied(session.copies, places, session.invocation.has(u"replace"_s));
}

/// Leaves out of `plan` the skills that the user has named, and returns the plan as it is then.
ImportPlan exclude(const Session &session, ImportPlan plan)
{
    for (const QString &slug : session.invocation.values.value(u"except"_s)) {
        const auto has = [&slug](const auto &entries) {
            return std::ranges::any_of(entries, [&slug](const auto &entry) { return entry.slug == slug; });
        };
        if (!has(plan.candidates) && !has(plan.collisions))
            throw CommandFailure(u"skillNotFound"_s, u"Skill introuvable : "_s + slug);
        plan = session.imports.excludeFromImport(slug).result();
    }
    return plan;
}

int status(const Session &session)
{
    output(session, session.overview, Report::overview);
    return LibraryQuery::needsAttention(session.overview).isEmpty() ? ExitCode::success
                                                                    : ExitCode::needsAttention;
}

LibraryQuery::Filter typedFilter(const Invocation &invocation)
{
    const QString category = u"category"_s;
    const QString maturity = u"maturity"_s;
    LibraryQuery::Filter filter{invocation.value(u"search"_s), std::nullopt, std::nullopt};
    if (invocation.has(category))
        filter.category = invocation.value(category);
    if (invocation.has(maturity))
        filter.maturity = caseOf<Maturity>(invocation.value(maturity));
    return filter;
}

int list(const Session &session)
{
    const WorkspaceOverview &overview = session.overview;
    const bool ofTrash = session.invocation.has(u"trash"_s);
    const LibraryIndex index(ofTrash ? overview.trashedSkills : overview.skills, overview.categories);
    output(session, index.orderedFilteredSkills(typedFilter(session.invocation)),
           [&](const QList<SkillSummary> &skills) {
               return ofTrash ? Report::trashedSkills(skills, overview.categories,
                                                      session.trash.trashDates().result())
                              : Report::skills(skills, overview.categories, session.drift);
           });
    return ExitCode::success;
}

int show(const Session &session)
{
    const QUuid id = activeSkill(session, session.invocation.operands.first());
    output(session, session.service.loadSkill(id).result(), Report::detail);
    return ExitCode::success;
}

int diff(const Session &session)
{
    const QUuid id = activeSkill(session, session.invocation.operands.first());
    const QList<CopyInspection> copies = session.copies.inspectCopies(id).result();
    output(session, copies, Report::copies);
    const auto isInSync = [](const CopyInspection &copy) { return copy.state == SyncState::inSync; };
    return std::ranges::all_of(copies, isInSync) ? ExitCode::success : ExitCode::needsAttention;
}

int scan(const Session &session)
{
    output(session, session.service.scanImports().result(), Report::plan);
    return ExitCode::success;
}

/// The choices typed as "SLUG=claude" or "SLUG=codex".
QHash<QString, CollisionChoice> typedChoices(const Session &session)
{
    QHash<QString, CollisionChoice> choices;
    for (const QString &typed : session.invocation.values.value(u"choose"_s))
        choices.insert(typed.section(u'=', 0, 0), caseOf<CollisionChoice>(typed.section(u'=', 1)));
    return choices;
}

/// Resolves the collisions of `plan` as the user asked, and returns the plan as it is then.
ImportPlan resolveCollisions(const Session &session, ImportPlan plan)
{
    const QString prefer = u"prefer"_s;
    std::optional<CollisionChoice> preferred;
    if (session.invocation.has(prefer))
        preferred = caseOf<CollisionChoice>(session.invocation.value(prefer));
    QHash<QString, CollisionChoice> choices = typedChoices(session);

    QStringList undecided;
    QList<std::pair<QUuid, CollisionChoice>> decided;
    for (const ImportCollision &collision : plan.collisions) {
        const auto typed = choices.find(collision.slug);
        if (typed != choices.end())
            decided.append({collision.id, choices.take(collision.slug)});
        else if (preferred)
            decided.append({collision.id, *preferred});
        else
            undecided.append(collision.slug);
    }
    // A command that is repeated names collisions that are settled and in the library by now.
    for (const SkillSummary &skill : session.overview.skills)
        choices.remove(skill.slug);
    if (!choices.isEmpty())
        throw CommandFailure(u"collisionNotFound"_s,
                             u"Collision d’import introuvable : "_s + choices.begin().key());
    for (const auto &[id, choice] : decided)
        plan = session.service.resolveCollision(id, choice).result();
    if (!undecided.isEmpty() && !session.invocation.has(u"json"_s))
        Terminal::printError(u"À choisir avec --choose IDENTIFIANT=claude|codex ou --prefer\u00A0: "_s +
                             undecided.join(u", "_s));
    return plan;
}

int import(const Session &session)
{
    const ImportPlan plan =
        resolveCollisions(session, exclude(session, session.service.scanImports().result()));
    if (plan.isReadyToCommit())
        refuseOccupied(session, placesFilledBy(plan));
    const QFuture<WorkspaceOverview> commit = session.service.commitImport(plan.id);
    Terminal::followProgress(u"Import"_s, QFuture<void>(commit));
    output(session, commit.result(), [&](const WorkspaceOverview &overview) {
        return Report::imported(plan) + u'\n' + Report::overview(overview, session.drift);
    });
    return ExitCode::success;
}

int create(const Session &session)
{
    const Invocation &invocation = session.invocation;
    CreateSkillRequest request{invocation.operands.first(),
                               invocation.value(u"name"_s),
                               invocation.value(u"summary"_s),
                               invocation.value(u"category"_s, SkillCategory::otherID),
                               invocation.value(u"tags"_s).split(u','),
                               caseOf<Maturity>(invocation.value(u"maturity"_s, rawValue(Maturity::draft))),
                               std::nullopt};
    request.skillMD =
        invocation.has(u"file"_s) ? textOfFile(invocation.value(u"file"_s)) : readableSkillText(request);
    session.creations.reviewCreation(request).result(); // before a question that might be needless
    refuseOccupied(session, placesOf({request.slug}));
    output(session, session.service.createSkill(request).result(), Report::state);
    return ExitCode::success;
}

int save(const Session &session)
{
    const qint64 revision = session.invocation.value(u"expect"_s).toLongLong();
    const QString text = textOfFile(session.invocation.value(u"file"_s));
    const QUuid id = activeSkill(session, session.invocation.operands.first());
    output(session, session.service.saveSkill(id, revision, text).result(), Report::state);
    return ExitCode::success;
}

QList<QUuid> skillsToSynchronize(const Session &session)
{
    if (!session.invocation.has(u"all"_s))
        return activeSkills(session, session.invocation.operands);
    QList<QUuid> ids;
    for (const SkillSummary &skill : session.overview.skills)
        ids.append(skill.id);
    return ids;
}

/// The copies of a skill that have failed.
QList<CopyInspection> failedCopies(const Session &session, const QUuid &id)
{
    QList<CopyInspection> copies = session.copies.wrongCopies().result().value(id);
    copies.removeIf([](const CopyInspection &copy) { return copy.reason.isEmpty(); });
    return copies;
}

/// The first failure as any other command tells it, and each with its skill and the copies that have failed.
QJsonObject failuresObject(const Session &session, const QList<SyncOutcome> &failures)
{
    QJsonArray all;
    for (const SyncOutcome &failure : failures) {
        QJsonObject object = failureObject(failure.failure);
        object.insert(u"id"_s, uuidText(failure.id));
        object.insert(u"slug"_s, slugOf(failure.id, session.overview.skills));
        object.insert(u"copies"_s, RecordJson::encode(failedCopies(session, failure.id)));
        all.append(object);
    }
    QJsonObject object = failureObject(failures.first().failure);
    object.insert(u"failures"_s, all);
    return object;
}

void reportFailures(const Session &session, const QList<SyncOutcome> &failures)
{
    if (session.invocation.has(u"json"_s))
        return printFailure(failuresObject(session, failures));
    for (const SyncOutcome &failure : failures) {
        Terminal::printError(Terminal::printable(slugOf(failure.id, session.overview.skills) + u"\u00A0: "_s +
                                                 errorMessage(failure.failure)));
        for (const CopyInspection &copy : failedCopies(session, failure.id))
            Terminal::printError(Terminal::printable(u"  "_s + copy.assistant() + u"\u00A0: "_s +
                                                     copy.reason + u" ("_s + copy.shownPath() + u')'));
    }
}

/// One skill that fails doesn't stop the others.
int sync(const Session &session)
{
    const QFuture<QList<SyncOutcome>> pass =
        session.repairs.synchronizeSkills(skillsToSynchronize(session), {});
    Terminal::followProgress(u"Synchronisation"_s, QFuture<void>(pass));
    QList<SkillDetail> details;
    QList<SyncOutcome> failures;
    for (const SyncOutcome &outcome : pass.result()) {
        if (outcome.detail)
            details.append(*outcome.detail);
        else
            failures.append(outcome);
    }
    if (failures.isEmpty() || (!details.isEmpty() && !session.invocation.has(u"json"_s)))
        output(session, details, Report::states);
    if (failures.isEmpty())
        return ExitCode::success;
    reportFailures(session, failures);
    return ExitCode::failure;
}

int setAside(const Session &session)
{
    const QStringList &operands = session.invocation.operands;
    const QUuid id = activeSkill(session, operands.at(0));
    output(session, session.repairs.setAside(id, caseOf<TargetKind>(operands.at(1))).result(), Report::state);
    return ExitCode::success;
}

int assign(const Session &session)
{
    const QStringList &operands = session.invocation.operands;
    const QList<QUuid> ids = activeSkills(session, operands.mid(1));
    output(session,
           session.service.assignSkills(QSet<QUuid>(ids.begin(), ids.end()), operands.first()).result(),
           Report::categories);
    return ExitCode::success;
}

int createCategory(const Session &session)
{
    const QStringList &operands = session.invocation.operands;
    output(session, session.service.createCategory(operands.at(0), operands.at(1)).result(),
           Report::categories);
    return ExitCode::success;
}

int updateCategory(const Session &session)
{
    const QStringList &operands = session.invocation.operands;
    output(session, session.service.updateCategory(operands.at(0), operands.at(1), operands.at(2)).result(),
           Report::categories);
    return ExitCode::success;
}

int deleteCategory(const Session &session)
{
    output(session, session.service.deleteCategory(session.invocation.operands.first()).result(),
           Report::categories);
    return ExitCode::success;
}

int trash(const Session &session)
{
    const QList<QUuid> ids = activeSkills(session, session.invocation.operands);
    outputTrash(session, session.service.moveToTrash(QSet<QUuid>(ids.begin(), ids.end())).result());
    return ExitCode::success;
}

int restore(const Session &session)
{
    const QUuid id = trashedSkill(session);
    refuseOccupied(session, placesOfRestored(id, slugOf(id, session.overview.trashedSkills)));
    output(session, session.service.restore(id).result(), Report::overview);
    return ExitCode::success;
}

int deletePermanently(const Session &session)
{
    outputTrash(session, session.service.deletePermanently(trashedSkill(session)).result());
    return ExitCode::success;
}

int emptyTrash(const Session &session)
{
    outputTrash(session, session.service.emptyTrash().result());
    return ExitCode::success;
}

struct Command
{
    CommandSyntax syntax;
    int (*run)(const Session &);
};

const QList<Command> &commands()
{
    const QString looking = u"Consulter"_s;
    const QString importing = u"Importer"_s;
    const QString writing = u"Écrire"_s;
    const QString classifying = u"Classer"_s;
    const QString ofTheTrash = u"Corbeille"_s;
    static const QList<Command> all{
        {{looking, u"status"_s, u"L’état du workspace\u00A0; code 1 si une copie est à réparer."_s}, status},
        {{looking,
          u"list [--search TEXTE] [--category CATÉGORIE] [--maturity draft|ready|active|obsolete] [--trash]"_s,
          u"Les compétences actives, ou celles de la corbeille."_s},
         list},
        {{looking, u"show SKILL"_s, u"Tout ce qui est connu d’une compétence."_s}, show},
        {{looking, u"diff SKILL"_s,
          u"Ce que chaque copie a en plus (+), en moins (-) ou de modifié (~)\u00A0; code 1 si l’une diffère."_s},
         diff},
        {{importing, u"scan"_s, u"Ce que contiennent les deux dossiers."_s}, scan},
        {{importing,
          u"import [--choose IDENTIFIANT=claude|codex]… [--prefer claude|codex] [--except IDENTIFIANT]… "
          "[--replace]"_s,
          u"Importe les deux dossiers."_s},
         import},
        {{writing,
          u"create IDENTIFIANT --name NOM [--summary TEXTE] [--category CATÉGORIE] [--tags A,B] "
          "[--maturity draft|ready|active|obsolete] [--file FICHIER] [--replace]"_s,
          u"Crée une compétence."_s},
         create},
        {{writing, u"save SKILL --expect RÉVISION --file FICHIER"_s,
          u"Remplace le SKILL.md, si la compétence en est encore à cette révision."_s},
         save},
        {{writing, u"sync (SKILL… | --all)"_s,
          u"Réinstalle la copie de référence là où une copie diffère."_s},
         sync},
        {{writing, u"set-aside SKILL claude|codex"_s,
          u"Garde dans .vornel/recovery une copie qui ne peut pas être lue, et en installe une nouvelle."_s},
         setAside},
        {{classifying, u"assign CATÉGORIE SKILL…"_s, u"Range des compétences dans une catégorie."_s}, assign},
        {{classifying, u"category create NOM COULEUR"_s, u"Crée une catégorie."_s}, createCategory},
        {{classifying, u"category update CATÉGORIE NOM COULEUR"_s,
          u"Change le nom et la couleur d’une catégorie."_s},
         updateCategory},
        {{classifying, u"category delete CATÉGORIE"_s,
          u"Supprime une catégorie\u00A0; ses compétences passent dans other."_s},
         deleteCategory},
        {{ofTheTrash, u"trash SKILL…"_s, u"Met des compétences à la corbeille."_s}, trash},
        {{ofTheTrash, u"restore SKILL [--replace]"_s, u"Restaure une compétence."_s}, restore},
        {{ofTheTrash, u"delete SKILL"_s, u"Supprime définitivement une compétence de la corbeille."_s},
         deletePermanently},
        {{ofTheTrash, u"empty-trash"_s, u"Vide la corbeille, définitivement."_s}, emptyTrash},
    };
    return all;
}

} // namespace

QList<CommandSyntax> commandSyntaxes()
{
    QList<CommandSyntax> syntaxes;
    for (const Command &command : commands())
        syntaxes.append(command.syntax);
    return syntaxes;
}

int runCommand(const Invocation &invocation, const Services &services, const WorkspaceOverview &overview)
{
    const auto command = std::ranges::find(commands(), invocation.command, [](const Command &candidate) {
        return candidate.syntax.name.join(u' ');
    });
    return command->run({invocation, services.workspace, services.copies, services.trash, services.imports,
                         services.repairs, services.creations, overview, SkillDrift(services.copies)});
}

} // namespace vornel
