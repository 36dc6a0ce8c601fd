#include "Choices.h"
#include "Command.h"
#include "OccupiedPlaces.h"
#include "PipedFile.h"

#include <VORNELCommand/Output/ExchangeReport.h>
#include <VORNELCommand/Output/Report.h>
#include <VORNELCore/Records/SerializedForms.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

namespace fs = std::filesystem;

fs::path absolutePath(const QString &typed)
{
    return fs::absolute(pathFromText(typed));
}

int exportSkills(const Session &session)
{
    const Invocation &invocation = session.invocation;
    const QList<QUuid> ids = activeSkills(session, invocation.operands);
    const QString file = invocation.value(u"to"_s);
    if (file != u"-") {
        output(session, session.services.exchange.exportSkills(ids, absolutePath(file)).result(),
               Report::exported);
        return ExitCode::success;
    }
    if (invocation.has(u"json"_s))
        throw UsageError(u"--json ne va pas avec --to -, qui écrit l’archive sur la sortie standard."_s);
    const PipedFile archive;
    requirePipedOutput();
    session.services.exchange.exportSkills(ids, archive.path()).result();
    archive.print();
    return ExitCode::success;
}

/// Records what the user has chosen where the contents differ.
QList<SkillAddition> decided(const Session &session, QList<SkillAddition> additions)
{
    const std::optional<AdditionChoice> preferred = preferredChoice<AdditionChoice>(session);
    QHash<QString, AdditionChoice> choices = typedChoices<AdditionChoice>(session);
    QStringList undecided;
    for (SkillAddition &addition : additions) {
        const auto typed = choices.find(addition.slug);
        const std::optional<AdditionChoice> choice =
            typed != choices.end() ? std::optional(choices.take(addition.slug)) : preferred;
        if (addition.kind != AdditionKind::different)
            continue;
        addition.choice = choice;
        if (!choice)
            undecided.append(addition.slug);
    }
    if (!choices.isEmpty())
        throw unknownCollision(choices.begin().key());
    tellUndecided<AdditionChoice>(session, undecided);
    return additions;
}

/// Refuses to put copies of new skills where something stands that the user hasn't given up.
void refuseOccupied(const Session &session, const QList<SkillAddition> &additions)
{
    QStringList slugs;
    for (const SkillAddition &addition : additions) {
        if (addition.kind == AdditionKind::different && !addition.choice)
            return; // which is refused first
        if (addition.kind == AdditionKind::added)
            slugs.append(addition.slug);
    }
    refuseOccupied(session, placesOf(slugs));
}

int add(const Session &session)
{
    SkillExchange &exchange = session.services.exchange;
    std::optional<PipedFile> piped;
    if (session.invocation.operands.contains(u"-"_s))
        piped.emplace().fill();
    QList<fs::path> sources;
    for (const QString &typed : session.invocation.operands)
        sources.append(typed == u"-" ? piped->path() : absolutePath(typed));
    const QList<SkillAddition> additions = decided(session, exchange.reviewAddition(sources).result());
    if (session.invocation.has(u"dry-run"_s)) {
        output(session, additions, Report::additions);
        return ExitCode::success;
    }
    refuseOccupied(session, additions);
    output(session, exchange.addSkills(sources, additions).result(), Report::states);
    return ExitCode::success;
}

} // namespace

QList<Command> exchangeCommands()
{
    const QString section = u"Échanger"_s;
    const QString choices = alternatives<AdditionChoice>();
    return {
        {{section,
          u"add SOURCE… [--choose IDENTIFIANT="_s + choices + u"]… [--prefer "_s + choices +
              u"] [--replace] [--dry-run]"_s,
          u"Ajoute des compétences\u00A0: leur dossier, un dossier qui les contient, ou une archive (zip, tar)."_s},
         add},
        {{section, u"export SKILL… --to FICHIER"_s,
          u"Écrit un zip avec le dossier de chaque compétence, sans les fichiers de VORNEL."_s},
         exportSkills},
    };
}

} // namespace vornel
