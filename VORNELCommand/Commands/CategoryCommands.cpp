#include "Command.h"

#include <VORNELCommand/Output/Report.h>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

int assign(const Session &session)
{
    const QStringList &operands = session.invocation.operands;
    const QList<QUuid> ids = activeSkills(session, operands.mid(1));
    output(session,
           session.services.workspace.assignSkills(QSet<QUuid>(ids.begin(), ids.end()), operands.first())
               .result(),
           Report::categories);
    return ExitCode::success;
}

int createCategory(const Session &session)
{
    const QStringList &operands = session.invocation.operands;
    output(session, session.services.workspace.createCategory(operands.at(0), operands.at(1)).result(),
           Report::categories);
    return ExitCode::success;
}

int updateCategory(const Session &session)
{
    const QStringList &operands = session.invocation.operands;
    output(session,
           session.services.workspace.updateCategory(operands.at(0), operands.at(1), operands.at(2)).result(),
           Report::categories);
    return ExitCode::success;
}

int deleteCategory(const Session &session)
{
    output(session, session.services.workspace.deleteCategory(session.invocation.operands.first()).result(),
           Report::categories);
    return ExitCode::success;
}

} // namespace

QList<Command> categoryCommands()
{
    const QString section = u"Classer"_s;
    return {
        {{section, u"assign CATÉGORIE SKILL…"_s, u"Range des compétences dans une catégorie."_s}, assign},
        {{section, u"category create NOM COULEUR"_s, u"Crée une catégorie."_s}, createCategory},
        {{section, u"category update CATÉGORIE NOM COULEUR"_s,
          u"Change le nom et la couleur d’une catégorie."_s},
         updateCategory},
        {{section, u"category delete CATÉGORIE"_s,
          u"Supprime une catégorie\u00A0; ses compétences passent dans other."_s},
         deleteCategory},
    };
}

} // namespace vornel
