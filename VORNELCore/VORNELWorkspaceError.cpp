#include "VORNELWorkspaceError.h"

#include "SerializedForms.h"
#include "VORNELProduct.h"

#include <QStringList>

namespace vornel {

namespace WorkspaceErrorCase {

QString InvalidPath::message() const
{
    return u"Chemin invalide (" + rawValue(violation) + u").";
}

QString SymlinkUnsupported::message() const
{
    return u"Les liens symboliques ne sont pas pris en charge : " + path;
}

QString MissingSkillFile::message() const
{
    return u"Le skill " + slug + u" ne contient pas de fichier SKILL.md.";
}

QString MalformedManifest::message() const
{
    return u"Le manifeste est invalide : " + path;
}

QString SkillNotFound::message() const
{
    return u"Skill introuvable : " + uuidText(id);
}

QString DuplicateSlug::message() const
{
    return u"Le slug " + slug + u" existe déjà.";
}

QString RevisionConflict::message() const
{
    return u"Révision obsolète (attendue " + QString::number(expected) + u", actuelle " +
           QString::number(actual) + u").";
}

QString CollisionNotFound::message() const
{
    return u"Collision d’import introuvable : " + uuidText(id);
}

QString UnresolvedCollisions::message() const
{
    return QString::number(ids.size()) + u" collision(s) doivent être résolues avant l’import.";
}

QString UnsafeImport::message() const
{
    return u"Le dossier " + folder + u" ne peut pas être importé en sécurité.";
}

QString PartialSync::message() const
{
    QStringList names;
    for (const TargetKind kind : kinds)
        names.append(rawValue(kind));
    return u"Synchronisation incomplète : " + names.join(QStringLiteral(", ")) + u".";
}

QString IntegrityFailure::message() const
{
    return u"Échec d’intégrité : " + reason;
}

QString NotBootstrapped::message() const
{
    return u"Le workspace " + VORNELProduct::name + u" n’est pas initialisé.";
}

QString ImportPlanNotFound::message() const
{
    return QStringLiteral("Le plan d’import n’existe plus.");
}

} // namespace WorkspaceErrorCase

VORNELWorkspaceError::VORNELWorkspaceError(Case errorCase)
    : m_case(std::move(errorCase)),
      m_what(std::visit([](const auto &payload) { return payload.message(); }, m_case).toStdString())
{
}

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
