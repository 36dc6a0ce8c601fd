#include "Choices.h"
#include "Command.h"
#include "OccupiedPlaces.h"

#include <VORNELCommand/Output/Report.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

int scan(const Session &session)
{
    output(session, session.services.workspace.scanImports().result(), Report::plan);
    return ExitCode::success;
}

int compare(const Session &session)
{
    const TargetComparison comparison =
        session.services.targets.compareTargets(session.invocation.operands.first()).result();
    output(session, comparison, Report::comparison);
    return comparison.differences.isEmpty() ? ExitCode::success : ExitCode::needsAttention;
}

/// Leaves out of `plan` the skills that the user has named, and returns the plan as it is then.
ImportPlan exclude(const Session &session, ImportPlan plan)
{
    for (const QString &slug : session.invocation.values.value(u"except"_s)) {
        const auto has = [&slug](const auto &entries) {
            return std::ranges::any_of(entries, [&slug](const auto &entry) { return entry.slug == slug; });
        };
        if (!has(plan.candidates) && !has(plan.collisions))
            throw unknownSkill(slug);
        plan = session.services.imports.excludeFromImport(slug).result();
    }
    return plan;
}

/// Resolves the collisions of `plan` as the user asked, and returns the plan as it is then.
ImportPlan resolveCollisions(const Session &session, ImportPlan plan)
{
    const std::optional<CollisionChoice> preferred = preferredChoice<CollisionChoice>(session);
    QHash<QString, CollisionChoice> choices = typedChoices<CollisionChoice>(session);

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
    // The same command may be given again: then the skills that it chooses between are in the library
    // already.
    for (const SkillSummary &skill : session.overview.skills)
        choices.remove(skill.slug);
    if (!choices.isEmpty())
        throw unknownCollision(choices.begin().key());
    for (const auto &[id, choice] : decided)
        plan = session.services.workspace.resolveCollision(id, choice).result();
    tellUndecided<CollisionChoice>(session, undecided);
    return plan;
}

int import(const Session &session)
{
    const ImportPlan plan =
        resolveCollisions(session, exclude(session, session.services.workspace.scanImports().result()));
    if (plan.isReadyToCommit())
        refuseOccupied(session, placesFilledBy(plan));
    const QFuture<WorkspaceOverview> commit = session.services.workspace.commitImport(plan.id);
    Terminal::followProgress(u"Import"_s, QFuture<void>(commit));
    output(session, commit.result(), [&](const WorkspaceOverview &overview) {
        return Report::imported(plan) + u'\n' + Report::overview(overview, session.drift);
    });
    return ExitCode::success;
}

/// The new skills that the user has named, or all.
QList<NewSkill> typedNewSkills(const Session &session, const QList<NewSkill> &found)
{
    const QStringList &typed = session.invocation.operands;
    for (const QString &slug : typed) {
        if (std::ranges::find(found, slug, &NewSkill::slug) == found.end())
            throw unknownSkill(slug);
    }
    QList<NewSkill> named = found;
    named.removeIf([&](const NewSkill &skill) {
        return !session.invocation.has(u"all"_s) && !typed.contains(skill.slug);
    });
    return named;
}

int ignore(const Session &session)
{
    NewSkillFinding &finding = session.services.newSkills;
    const QList<NewSkill> named = typedNewSkills(session, finding.newSkills().result());
    output(session, finding.ignoreNewSkills(named).result(), Report::newSkills);
    return ExitCode::success;
}

} // namespace

QList<Command> importCommands()
{
    const QString section = u"Importer"_s;
    const QString choices = alternatives<CollisionChoice>();
    return {
        {{section, u"scan"_s, u"Ce que contiennent les deux dossiers."_s}, scan},
        {{section, u"compare IDENTIFIANT"_s,
          u"Ce que Codex a sous ce nom en plus (+), en moins (-) ou de modifié (~)\u00A0; code 1 s’il "
          u"diffère "
          "de Claude."_s},
         compare},
        {{section,
          u"import [--choose IDENTIFIANT="_s + choices + u"]… [--prefer "_s + choices +
              u"] [--except IDENTIFIANT]… [--replace]"_s,
          u"Importe les deux dossiers."_s},
         import},
        {{section, u"ignore (IDENTIFIANT… | --all)"_s,
          u"Ne signale plus ces nouvelles compétences des assistants."_s},
         ignore},
    };
}

} // namespace vornel
