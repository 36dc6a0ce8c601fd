#include "Command.h"

#include <VORNELCommand/Output/CheckReport.h>
#include <VORNELCommand/Output/Report.h>
#include <VORNELCore/Library/LibraryQuery.h>
#include <VORNELCore/Records/SerializedForms.h>

#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// The slugs of the skills whose own folder was edited by hand. Nothing installs such a folder, so that the
/// copies differ from it.
QStringList editedByHand(const Session &session)
{
    const QList<SkillSummary> attention = LibraryQuery::needsAttention(session.overview);
    QSet<QUuid> ids;
    for (const SkillSummary &skill : attention)
        ids.insert(skill.id);
    const QSet<QUuid> edited = session.services.adoptions.editedByHand(ids).result();
    QStringList slugs;
    for (const SkillSummary &skill : attention) {
        if (edited.contains(skill.id))
            slugs.append(skill.slug);
    }
    return slugs;
}

/// Prints the overview as `output` does, and what was written elsewhere than in VORNEL.
void printStatus(const Session &session)
{
    const QStringList edited = editedByHand(session);
    const QList<NewSkill> found = session.services.newSkills.newSkills().result();
    if (!session.invocation.has(u"json"_s)) {
        Terminal::print(Report::overview(session.overview, session.drift) + Report::editedByHand(edited) +
                        Report::newSkills(found));
        return;
    }
    QJsonObject status = session.drift.addedTo(RecordJson::encode(session.overview)).toObject();
    status.insert(u"editedByHand"_s, QJsonArray::fromStringList(edited));
    status.insert(u"newSkills"_s, RecordJson::encode(found));
    Terminal::print(QString::fromUtf8(RecordJson::document(status)));
}

int status(const Session &session)
{
    printStatus(session);
    return LibraryQuery::needsAttention(session.overview).isEmpty() ? ExitCode::success
                                                                    : ExitCode::needsAttention;
}

LibraryQuery::Filter typedFilter(const Invocation &invocation)
{
    const QString category = u"category"_s;
    const QString maturity = u"maturity"_s;
    LibraryQuery::Filter filter{invocation.value(u"search"_s), std::nullopt, std::nullopt};
    for (const QString &tag : invocation.value(u"tag"_s).split(u',', Qt::SkipEmptyParts))
        filter.tags.append(tag.trimmed());
    filter.order = caseOf<LibraryOrder>(invocation.value(u"sort"_s, rawValue(LibraryOrder::category)));
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
                                                      session.services.trash.trashDates().result())
                              : Report::skills(skills, overview.categories, session.drift);
           });
    return ExitCode::success;
}

int show(const Session &session)
{
    const QUuid id = activeSkill(session, session.invocation.operands.first());
    output(session, session.services.workspace.loadSkill(id).result(), Report::detail);
    return ExitCode::success;
}

/// The bytes of a file as JSON can hold them.
QJsonObject encodedFile(const QString &path, const QByteArray &bytes)
{
    const auto text = textFromUtf8(bytes);
    return {{u"content"_s, text.value_or(QString::fromLatin1(bytes.toBase64()))},
            {u"encoding"_s, text ? u"utf-8"_s : u"base64"_s},
            {u"path"_s, path},
            {u"size"_s, bytes.size()}};
}

int cat(const Session &session)
{
    const QStringList &operands = session.invocation.operands;
    const QUuid id = activeSkill(session, operands.first());
    const QString path = operands.value(1, u"SKILL.md"_s);
    const std::optional<QByteArray> bytes = session.services.copies.readFile(id, {}, path).result();
    if (!bytes)
        throw CommandFailure(u"fileNotFound"_s,
                             u"La compétence ne contient pas de fichier «\u00A0%1\u00A0»."_s.arg(path));
    if (session.invocation.has(u"json"_s))
        Terminal::printBytes(RecordJson::document(encodedFile(path, *bytes)));
    else
        Terminal::printBytes(*bytes);
    return ExitCode::success;
}

int diff(const Session &session)
{
    const QUuid id = activeSkill(session, session.invocation.operands.first());
    if (session.invocation.has(u"entry"_s))
        return diffVersions(session, id);
    if (session.invocation.has(u"with"_s))
        throw UsageError(u"--with ne vaut qu’avec --entry."_s);
    const QList<CopyInspection> copies = session.services.copies.inspectCopies(id).result();
    output(session, copies, Report::copies);
    const auto isInSync = [](const CopyInspection &copy) { return copy.state == SyncState::inSync; };
    return std::ranges::all_of(copies, isInSync) ? ExitCode::success : ExitCode::needsAttention;
}

int check(const Session &session)
{
    const QList<SkillProblem> problems =
        session.services.checks.checkSkills(activeSkills(session, session.invocation.operands)).result();
    output(session, problems, Report::problems);
    const auto isError = [](const SkillProblem &problem) {
        return problem.severity == ProblemSeverity::error;
    };
    return std::ranges::any_of(problems, isError) ? ExitCode::needsAttention : ExitCode::success;
}

} // namespace

QList<Command> lookingCommands()
{
    const QString section = u"Consulter"_s;
    return {
        {{section, u"status"_s, u"L’état du workspace\u00A0; code 1 si une copie est à réparer."_s}, status},
        {{section,
          u"list [--search TEXTE] [--category CATÉGORIE] [--maturity "_s + alternatives<Maturity>() +
              u"] [--tag A,B] [--sort "_s + alternatives<LibraryOrder>() + u"] [--trash]"_s,
          u"Les compétences actives, ou celles de la corbeille."_s},
         list},
        {{section, u"show SKILL"_s, u"Tout ce qui est connu d’une compétence."_s}, show},
        {{section, u"cat SKILL [CHEMIN]"_s,
          u"Un fichier d’une compétence, tel qu’il est\u00A0; sans chemin, son SKILL.md."_s},
         cat},
        {{section, u"diff SKILL [--entry VERSION] [--with VERSION]"_s,
          u"Ce que chaque copie a en plus (+), en moins (-) ou de modifié (~)\u00A0; avec --entry, ce qui a "
          u"changé "
          "depuis cette version. Code 1 s’il y a une différence."_s},
         diff},
        {{section, u"check [SKILL…]"_s,
          u"Ce qui gêne les assistants dans ces compétences, ou dans toutes\u00A0; code 1 s’il y a une erreur."_s},
         check},
    };
}

} // namespace vornel
