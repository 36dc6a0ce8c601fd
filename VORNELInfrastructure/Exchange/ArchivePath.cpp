#include "ArchivePath.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Records/SkillFiles.h>

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

VORNELWorkspaceError refusal(const std::string &name, const QString &reason)
{
    return VORNELWorkspaceError::integrityFailure(
        u"L’archive contient «\u00A0%1\u00A0», %2."_s.arg(QString::fromStdString(name), reason));
}

/// Whether the name is absolute or goes up. Elsewhere backslashes separate folders, and drives have letters.
bool leadsElsewhere(const QString &name)
{
    static const QRegularExpression ways(uR"(\A[/\\]|\A[A-Za-z]:|(?:\A|[/\\])\.\.(?:[/\\]|\z))"_s);
    return ways.match(name).hasMatch();
}

} // namespace

std::string archivePath(const std::string &name)
{
    if (!QByteArrayView(name).isValidUtf8())
        throw refusal(name, u"dont le nom n’est pas de l’UTF-8 valide"_s);
    const QString text = QString::fromStdString(name);
    if (leadsElsewhere(text))
        throw refusal(name, u"qui mène hors de son dossier"_s);
    QStringList components = text.split(u'/', Qt::SkipEmptyParts);
    components.removeAll(u"."_s);
    if (components.size() > SkillFiles::deepestLevel)
        throw refusal(name, u"dont les dossiers sont trop imbriqués"_s);
    return components.join(u'/').toStdString();
}

} // namespace vornel
