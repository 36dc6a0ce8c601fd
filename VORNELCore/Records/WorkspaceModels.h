#pragma once

#include "Enumerations.h"

#include <QDateTime>
#include <QHashFunctions>
#include <QStringList>
#include <QUuid>

#include <filesystem>
#include <optional>

/// The records of a workspace: plain values, equal and hashed over all their fields. A property's name is
/// also its key in JSON.
namespace vornel {

/// One of the user's categories; skills name it by `id`.
struct SkillCategory
{
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString colorHex MEMBER colorHex)
    Q_PROPERTY(bool isProtected MEMBER isProtected)

public:
    /// The identifier of the catch-all category, which can't be deleted.
    static const QString otherID;

    /// The most characters of a name.
    static constexpr int longestName = 40;

    /// The six built-in categories, in their order.
    static const QList<SkillCategory> &defaults();

    QString id;
    QString name;
    QString colorHex; ///< six upper-case hexadecimal digits, without "#"
    bool isProtected = false;

    bool operator==(const SkillCategory &) const = default;
};
size_t qHash(const SkillCategory &category, size_t seed = 0);

/// What "vornel.json" says of a skill.
struct SkillManifest
{
    Q_GADGET
    Q_PROPERTY(qint64 schemaVersion MEMBER schemaVersion)
    Q_PROPERTY(QUuid id MEMBER id)
    Q_PROPERTY(QString slug MEMBER slug)
    Q_PROPERTY(QString displayName MEMBER displayName)
    Q_PROPERTY(QString summary MEMBER summary)
    Q_PROPERTY(QString category MEMBER category)
    Q_PROPERTY(QStringList tags MEMBER tags)
    Q_PROPERTY(vornel::Maturity maturity MEMBER maturity)
    Q_PROPERTY(qint64 revision MEMBER revision)
    Q_PROPERTY(QDateTime createdAt MEMBER createdAt)
    Q_PROPERTY(QDateTime updatedAt MEMBER updatedAt)

public:
    qint64 schemaVersion = 1;
    QUuid id;     ///< identity for the whole life, also in the trash
    QString slug; ///< name of the skill's folder
    QString displayName;
    QString summary;
    QString category; ///< identifier of a SkillCategory
    QStringList tags;
    Maturity maturity = Maturity::draft;
    qint64 revision = 1; ///< counts the changes of the canonical folder
    QDateTime createdAt; ///< UTC, whole seconds
    QDateTime updatedAt; ///< UTC, whole seconds

    bool operator==(const SkillManifest &) const = default;
};
size_t qHash(const SkillManifest &manifest, size_t seed = 0);

/// A skill as a list shows it.
struct SkillSummary
{
    Q_GADGET
    Q_PROPERTY(QUuid id MEMBER id)
    Q_PROPERTY(QString slug MEMBER slug)
    Q_PROPERTY(QString displayName MEMBER displayName)
    Q_PROPERTY(QString summary MEMBER summary)
    Q_PROPERTY(QString category MEMBER category)
    Q_PROPERTY(QStringList tags MEMBER tags)
    Q_PROPERTY(vornel::Maturity maturity MEMBER maturity)
    Q_PROPERTY(vornel::SyncState syncState MEMBER syncState)
    Q_PROPERTY(qint64 revision MEMBER revision)
    Q_PROPERTY(QDateTime updatedAt MEMBER updatedAt)
    Q_PROPERTY(QString maturityText READ maturityText STORED false)

public:
    SkillSummary() = default;
    SkillSummary(const SkillManifest &manifest, SyncState state);

    QUuid id;
    QString slug;
    QString displayName;
    QString summary;
    QString category;
    QStringList tags;
    Maturity maturity = Maturity::draft;
    SyncState syncState = SyncState::unknown;
    qint64 revision = 1;
    QDateTime updatedAt;

    /// The maturity as the user reads it.
    QString maturityText() const;

    bool operator==(const SkillSummary &) const = default;
};
size_t qHash(const SkillSummary &summary, size_t seed = 0);

/// A whole skill, as the editor shows it.
struct SkillDetail
{
    Q_GADGET
    Q_PROPERTY(vornel::SkillManifest manifest MEMBER manifest)
    Q_PROPERTY(QString skillMD MEMBER skillMD)
    Q_PROPERTY(QStringList relativeFiles MEMBER relativeFiles)
    Q_PROPERTY(QString contentRevision MEMBER contentRevision)
    Q_PROPERTY(vornel::SyncState syncState MEMBER syncState)

public:
    SkillManifest manifest;
    QString skillMD;           ///< the whole text of "SKILL.md"
    QStringList relativeFiles; ///< paths of the folder's visible files, below the folder
    QString contentRevision;   ///< tree digest of the canonical folder, manifest included
    SyncState syncState = SyncState::unknown;

    bool operator==(const SkillDetail &) const = default;
};
size_t qHash(const SkillDetail &detail, size_t seed = 0);

/// What the user gives to create a skill.
struct CreateSkillRequest
{
    QString slug;
    QString displayName;
    QString summary;
    QString category;
    QStringList tags;
    Maturity maturity = Maturity::draft;
    std::optional<QString> skillMD; ///< without it, a default text is written

    bool operator==(const CreateSkillRequest &) const = default;
};
size_t qHash(const CreateSkillRequest &request, size_t seed = 0);

/// Everything a screen needs after a change.
struct WorkspaceOverview
{
    Q_GADGET
    Q_PROPERTY(QString workspaceURL READ workspaceText)
    Q_PROPERTY(QList<vornel::SkillSummary> skills MEMBER skills)
    Q_PROPERTY(QList<vornel::SkillSummary> trashedSkills MEMBER trashedSkills)
    Q_PROPERTY(QList<vornel::SkillCategory> categories MEMBER categories)

public:
    std::filesystem::path workspaceURL;
    QList<SkillSummary> skills; ///< the active skills, by display name
    QList<SkillSummary> trashedSkills;
    QList<SkillCategory> categories; ///< in the catalog's order

    QString workspaceText() const;

    bool operator==(const WorkspaceOverview &) const = default;
};
size_t qHash(const WorkspaceOverview &overview, size_t seed = 0);

} // namespace vornel
