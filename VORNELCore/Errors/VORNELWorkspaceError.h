#pragma once

#include <VORNELCore/Records/Enumerations.h>

#include <QString>
#include <QUuid>

#include <exception>
#include <string>
#include <variant>

namespace vornel {

/// The cases of VORNELWorkspaceError: each knows its name and its French message.
namespace WorkspaceErrorCase {

struct InvalidPath
{
    static constexpr const char *name = "invalidPath";
    PathViolation violation;
    QString message() const;
    bool operator==(const InvalidPath &) const = default;
};

struct SymlinkUnsupported
{
    static constexpr const char *name = "symlinkUnsupported";
    QString path;
    QString message() const;
    bool operator==(const SymlinkUnsupported &) const = default;
};

struct MissingSkillFile
{
    static constexpr const char *name = "missingSkillFile";
    QString slug;
    QString message() const;
    bool operator==(const MissingSkillFile &) const = default;
};

struct MalformedManifest
{
    static constexpr const char *name = "malformedManifest";
    QString path;
    QString message() const;
    bool operator==(const MalformedManifest &) const = default;
};

struct SkillNotFound
{
    static constexpr const char *name = "skillNotFound";
    QUuid id;
    QString message() const;
    bool operator==(const SkillNotFound &) const = default;
};

struct DuplicateSlug
{
    static constexpr const char *name = "duplicateSlug";
    QString slug;
    QString message() const;
    bool operator==(const DuplicateSlug &) const = default;
};

struct RevisionConflict
{
    static constexpr const char *name = "revisionConflict";
    qint64 expected;
    qint64 actual;
    QString message() const;
    bool operator==(const RevisionConflict &) const = default;
};

struct CollisionNotFound
{
    static constexpr const char *name = "collisionNotFound";
    QUuid id;
    QString message() const;
    bool operator==(const CollisionNotFound &) const = default;
};

struct UnresolvedCollisions
{
    static constexpr const char *name = "unresolvedCollisions";
    QList<QUuid> ids;
    QString message() const;
    bool operator==(const UnresolvedCollisions &) const = default;
};

struct UnsafeImport
{
    static constexpr const char *name = "unsafeImport";
    QString folder;
    QString message() const;
    bool operator==(const UnsafeImport &) const = default;
};

struct PartialSync
{
    static constexpr const char *name = "partialSync";
    QList<TargetKind> kinds;
    QString message() const;
    bool operator==(const PartialSync &) const = default;
};

struct IntegrityFailure
{
    static constexpr const char *name = "integrityFailure";
    QString reason;
    QString message() const;
    bool operator==(const IntegrityFailure &) const = default;
};

struct NotBootstrapped
{
    static constexpr const char *name = "notBootstrapped";
    static QString message();
    bool operator==(const NotBootstrapped &) const = default;
};

struct ImportPlanNotFound
{
    static constexpr const char *name = "importPlanNotFound";
    static QString message();
    bool operator==(const ImportPlanNotFound &) const = default;
};

} // namespace WorkspaceErrorCase

/// The one error that the workspace service throws on purpose. Two errors are equal when their case and its
/// payload are.
class VORNELWorkspaceError : public std::exception
{
public:
    using Case = std::variant<WorkspaceErrorCase::InvalidPath, WorkspaceErrorCase::SymlinkUnsupported,
                              WorkspaceErrorCase::MissingSkillFile, WorkspaceErrorCase::MalformedManifest,
                              WorkspaceErrorCase::SkillNotFound, WorkspaceErrorCase::DuplicateSlug,
                              WorkspaceErrorCase::RevisionConflict, WorkspaceErrorCase::CollisionNotFound,
                              WorkspaceErrorCase::UnresolvedCollisions, WorkspaceErrorCase::UnsafeImport,
                              WorkspaceErrorCase::PartialSync, WorkspaceErrorCase::IntegrityFailure,
                              WorkspaceErrorCase::NotBootstrapped, WorkspaceErrorCase::ImportPlanNotFound>;

    static VORNELWorkspaceError invalidPath(PathViolation violation);
    static VORNELWorkspaceError symlinkUnsupported(const QString &path);
    static VORNELWorkspaceError missingSkillFile(const QString &slug);
    static VORNELWorkspaceError malformedManifest(const QString &path);
    static VORNELWorkspaceError skillNotFound(const QUuid &id);
    static VORNELWorkspaceError duplicateSlug(const QString &slug);
    static VORNELWorkspaceError revisionConflict(qint64 expected, qint64 actual);
    static VORNELWorkspaceError collisionNotFound(const QUuid &id);
    static VORNELWorkspaceError unresolvedCollisions(const QList<QUuid> &ids);
    static VORNELWorkspaceError unsafeImport(const QString &name);
    static VORNELWorkspaceError partialSync(const QList<TargetKind> &kinds);
    static VORNELWorkspaceError integrityFailure(const QString &reason);
    static VORNELWorkspaceError notBootstrapped();
    static VORNELWorkspaceError importPlanNotFound();

    /// The payload when the error is of case `C`, else null.
    template <typename C>
    const C *as() const
    {
        return std::get_if<C>(&m_case);
    }

    /// The name of the case, for example "duplicateSlug".
    QString caseName() const;

    /// The French message that the user reads.
    QString errorDescription() const { return QString::fromStdString(m_what); }

    /// The message as UTF-8.
    const char *what() const noexcept override { return m_what.c_str(); }

    friend bool operator==(const VORNELWorkspaceError &a, const VORNELWorkspaceError &b)
    {
        return a.m_case == b.m_case;
    }

private:
    explicit VORNELWorkspaceError(Case errorCase);

    Case m_case;
    std::string m_what;
};

} // namespace vornel
