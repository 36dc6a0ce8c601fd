#include "FilePathRules.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/SkillFiles.h>

using namespace Qt::StringLiterals;

namespace vornel::FilePathRules {

namespace {

VORNELWorkspaceError refusal(const QString &sentence, const QString &path)
{
    return VORNELWorkspaceError::integrityFailure(sentence.arg(path));
}

void requireUsableName(const QString &name, const QString &path)
{
    constexpr qsizetype longestName = 255;
    if (name.isEmpty())
        throw refusal(u"«\u00A0%1\u00A0» contient un nom vide."_s, path);
    if (name.startsWith(u'.'))
        throw refusal(u"«\u00A0%1\u00A0» est caché\u00A0: une compétence ne garde rien de caché."_s, path);
    if (name == QLatin1String(SkillFiles::manifest))
        throw refusal(u"«\u00A0%1\u00A0» porte le nom d’un fichier réservé à VORNEL."_s, path);
    if (name.toUtf8().size() > longestName)
        throw refusal(u"«\u00A0%1\u00A0» contient un nom de plus de 255\u00A0octets."_s, path);
}

} // namespace

void requireUsable(const QString &path)
{
    WorkspaceValidation::validateRelativePath(path.toUtf8());
    for (const QString &name : path.split(u'/'))
        requireUsableName(name, path);
}

void requireReachable(const QString &path, bool isFolder)
{
    if (path.count(u'/') + (isFolder ? 1 : 0) >= SkillFiles::deepestLevel)
        throw refusal(u"Les dossiers de «\u00A0%1\u00A0» sont trop imbriqués."_s, path);
}

void requireFoldersAbove(const QString &path, const std::function<bool(const QString &)> &isFile)
{
    for (qsizetype end = path.indexOf(u'/'); end >= 0; end = path.indexOf(u'/', end + 1)) {
        if (isFile(path.first(end)))
            throw refusal(u"Un fichier est sur le chemin de «\u00A0%1\u00A0»."_s, path);
    }
}

void requireElsewhere(const QString &from, const QString &to)
{
    if (to == from || to.startsWith(from + u'/'))
        throw refusal(u"«\u00A0%1\u00A0» ne peut pas être déplacé dans lui-même."_s, from);
}

} // namespace vornel::FilePathRules
