#include "VORNELWorkspaceError.h"

#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/VORNELProduct.h>

#include <QStringList>

using namespace Qt::StringLiterals;

namespace vornel {

namespace WorkspaceErrorCase {

QString InvalidPath::message() const
{
    return u"Chemin invalide ("_s + rawValue(violation) + u")."_s;
}

QString SymlinkUnsupported::message() const
{
    return u"Les liens symboliques ne sont pas pris en charge : "_s + path;
}

QString MissingSkillFile::message() const
{
    return u"Le skill "_s + slug + u" ne contient pas de fichier SKILL.md."_s;
}

QString MalformedManifest::message() const
{
    return u"Le manifeste est invalide : "_s + path;
}

QString SkillNotFound::message() const
{
    return u"Skill introuvable : "_s + uuidText(id);
}

QString DuplicateSlug::message() const
{
    return u"Le slug "_s + slug + u" existe déjà."_s;
}

QString RevisionConflict::message() const
{
    return u"Révision obsolète (attendue "_s + QString::number(expected) + u", actuelle "_s +
           QString::number(actual) + u")."_s;
}

QString CollisionNotFound::message() const
{
    return u"Collision d’import introuvable : "_s + uuidText(id);
}

QString UnresolvedCollisions::message() const
{
    return QString::number(ids.size()) + u" collision(s) doivent être résolues avant l’import."_s;
}

QString UnsafeImport::message() const
{
    return u"Le dossier "_s + folder + u" ne peut pas être importé en sécurité."_s;
}

QString PartialSync::message() const
{
    QStringList names;
    for (const TargetKind kind : kinds)
        names.append(rawValue(kind));
    return u"Synchronisation incomplète : "_s + names.join(u", "_s) + u"."_s;
}

QString IntegrityFailure::message() const
{
    return u"Échec d’intégrité : "_s + reason;
}

QString NotBootstrapped::message()
{
    return u"Le workspace "_s + VORNELProduct::name + u" n’est pas initialisé."_s;
}

QString ImportPlanNotFound::message()
{
    return u"Le plan d’import n’existe plus."_s;
}

} // namespace WorkspaceErrorCase

VORNELWorkspaceError::VORNELWorkspaceError(Case errorCase)
    : m_case(std::move(errorCase)),
      m_what(std::visit([](const auto &payload) { return payload.message(); }, m_case).toStdString())
{}

QString VORNELWorkspaceError::caseName() const
{
    return QString::fromLatin1(std::visit([](const auto &payload) { return payload.name; }, m_case));
}

VORNELWorkspaceError VORNELWorkspaceError::invalidPath(PathViolation violation)
{
    return VORNELWorkspaceError(WorkspaceErrorCase::InvalidPath{violation});
}

VORNELWorkspaceError VORNELWorkspaceError::symlinkUnsupported(const QString &path)
{
    return VORNELWorkspaceError(WorkspaceErrorCase::SymlinkUnsupported{path});
}

VORNELWorkspaceError VORNELWorkspaceError::missingSkillFile(const QString &slug)
{
    return VORNELWorkspaceError(WorkspaceErrorCase::MissingSkillFile{slug});
}

VORNELWorkspaceError VORNELWorkspaceError::malformedManifest(const QString &path)
{
    return VORNELWorkspaceError(WorkspaceErrorCase::MalformedManifest{path});
}

VORNELWorkspaceError VORNELWorkspaceError::skillNotFound(const QUuid &id)
{
    return VORNELWorkspaceError(WorkspaceErrorCase::SkillNotFound{id});
}

VORNELWorkspaceError VORNELWorkspaceError::duplicateSlug(const QString &slug)
{
    return VORNELWorkspaceError(WorkspaceErrorCase::DuplicateSlug{slug});
}

VORNELWorkspaceError VORNELWorkspaceError::revisionConflict(qint64 expected, qint64 actual)
{
    return VORNELWorkspaceError(WorkspaceErrorCase::RevisionConflict{expected, actual});
}

VORNELWorkspaceError VORNELWorkspaceError::collisionNotFound(const QUuid &id)
{
    return VORNELWorkspaceError(WorkspaceErrorCase::CollisionNotFound{id});
}

VORNELWorkspaceError VORNELWorkspaceError::unresolvedCollisions(const QList<QUuid> &ids)
{
    return VORNELWorkspaceError(WorkspaceErrorCase::UnresolvedCollisions{ids});
}

VORNELWorkspaceError VORNELWorkspaceError::unsafeImport(const QString &name)
{
    return VORNELWorkspaceError(WorkspaceErrorCase::UnsafeImport{name});
}

VORNELWorkspaceError VORNELWorkspaceError::partialSync(const QList<TargetKind> &kinds)
{
    return VORNELWorkspaceError(WorkspaceErrorCase::PartialSync{kinds});
}

VORNELWorkspaceError VORNELWorkspaceError::integrityFailure(const QString &reason)
{
    return VORNELWorkspaceError(WorkspaceErrorCase::IntegrityFailure{reason});
}

VORNELWorkspaceError VORNELWorkspaceError::notBootstrapped()
{
    return VORNELWorkspaceError(WorkspaceErrorCase::NotBootstrapped{});
}

VORNELWorkspaceError VORNELWorkspaceError::importPlanNotFound()
{
    return VORNELWorkspaceError(WorkspaceErrorCase::ImportPlanNotFound{});
}

} // namespace vornel
