#include "FilePath.h"

#include "SkillFiles.h"

#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

VORNELWorkspaceError refusal(const QString &sentence, const QString &path)
{
    return VORNELWorkspaceError::integrityFailure(sentence.arg(path));
}

void requireUsableName(const QByteArray &name, const QString &path)
{
    constexpr qsizetype longestName = 255;
    if (name.isEmpty())
        throw refusal(u"«\u00A0%1\u00A0» contient un nom vide."_s, path);
    if (name.startsWith('.'))
        throw refusal(u"«\u00A0%1\u00A0» est caché\u00A0: une compétence ne garde rien de caché."_s, path);
    if (name == SkillFiles::manifest)
        throw refusal(u"«\u00A0%1\u00A0» porte le nom d’un fichier réservé à VORNEL."_s, path);
    if (name.size() > longestName)
        throw refusal(u"«\u00A0%1\u00A0» contient un nom de plus de 255\u00A0octets."_s, path);
}

} // namespace

std::string filePath(const QString &typed)
{
    const QByteArray path = typed.toUtf8();
    WorkspaceValidation::validateRelativePath(path);
    for (const QByteArray &name : path.split('/'))
        requireUsableName(name, typed);
    return path.toStdString();
}

void requireReachable(const FileTreeSnapshot::Entry &entry)
{
    const auto above = std::ranges::count(entry.relativePath, '/');
    const auto folders = above + (entry.kind == FileTreeSnapshot::Entry::Kind::directory ? 1 : 0);
    if (folders >= SkillFiles::deepestLevel)
        throw refusal(u"Les dossiers de «\u00A0%1\u00A0» sont trop imbriqués."_s,
                      QString::fromStdString(entry.relativePath));
}

} // namespace vornel
