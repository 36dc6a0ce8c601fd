#pragma once

#include "Enumerations.h"

#include <QHashFunctions>
#include <QString>
#include <QUuid>
#include <QVariant>

#include <filesystem>
#include <optional>

/// The records that carry an import from the scan to the user and back: plain values, equal and hashed over
/// all their fields. A property's name is also its key in JSON.
namespace vornel {

/// The name of an assistant, as the user reads it.
QString assistantName(TargetKind kind);

/// A folder that can be imported.
struct ImportCandidate
{
    Q_GADGET
    Q_PROPERTY(QUuid id MEMBER id)
    Q_PROPERTY(QString slug MEMBER slug)
    Q_PROPERTY(vornel::TargetKind source MEMBER source)
    Q_PROPERTY(QString digest MEMBER digest)
    Q_PROPERTY(vornel::ImportClassification classification MEMBER classification)
    Q_PROPERTY(QString sourceURL READ sourceText)

public:
    QUuid id; ///< fresh at every scan
    QString slug;
    TargetKind source = TargetKind::claude;
    QString digest; ///< tree digest at scan time
    ImportClassification classification = ImportClassification::singleSource;
    std::filesystem::path sourceURL;

    QString sourceText() const;

    bool operator==(const ImportCandidate &) const = default;
};
size_t qHash(const ImportCandidate &candidate, size_t seed = 0);

/// One slug under which the two assistants hold different content.
struct ImportCollision
{
    Q_GADGET
    Q_PROPERTY(QUuid id MEMBER id)
    Q_PROPERTY(QString slug MEMBER slug)
    Q_PROPERTY(vornel::ImportCandidate claude MEMBER claude)
    Q_PROPERTY(vornel::ImportCandidate codex MEMBER codex)
    Q_PROPERTY(QVariant choice READ choiceValue)

public:
    QUuid id;
    QString slug;
    ImportCandidate claude;
    ImportCandidate codex;
    std::optional<CollisionChoice> choice; ///< absent until the user decides

    /// The choice, or an invalid variant while there is none.
    QVariant choiceValue() const;

    bool operator==(const ImportCollision &) const = default;
};
size_t qHash(const ImportCollision &collision, size_t seed = 0);

/// An entry of an assistant's folder that can't be imported.
struct BlockedImport
{
    Q_GADGET
    Q_PROPERTY(vornel::TargetKind source MEMBER source)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString reason MEMBER reason)
    Q_PROPERTY(QString assistant READ assistant STORED false)
    Q_PROPERTY(QString reasonText READ reasonText STORED false)

public:
    TargetKind source = TargetKind::claude;
    QString name;
    /// "symlinkUnsupported", "invalidPath", "missingSkillFile", "unsafeContent" or "unreadable"
    QString reason;

    /// The name of the assistant in whose folder the entry is.
    QString assistant() const { return assistantName(source); }

    /// The reason as the user reads it: the end of a sentence that begins with the folder's name.
    QString reasonText() const;

    bool operator==(const BlockedImport &) const = default;
};
size_t qHash(const BlockedImport &blocked, size_t seed = 0);

/// What a scan found, and what the user decided about it.
struct ImportPlan
{
    Q_GADGET
    Q_PROPERTY(QUuid id MEMBER id)
    Q_PROPERTY(qint64 revision MEMBER revision)
    Q_PROPERTY(QList<vornel::ImportCandidate> candidates MEMBER candidates)
    Q_PROPERTY(QList<vornel::ImportCollision> collisions MEMBER collisions)
    Q_PROPERTY(QList<vornel::BlockedImport> blocked MEMBER blocked)
    Q_PROPERTY(int unresolvedCollisionCount READ unresolvedCollisionCount STORED false)
    Q_PROPERTY(bool isReadyToCommit READ isReadyToCommit STORED false)

public:
    QUuid id;
    qint64 revision = 1; ///< counts what the user has decided, from 1
    QList<ImportCandidate> candidates;
    QList<ImportCollision> collisions;
    QList<BlockedImport> blocked;

    QUuid planID() const { return id; }

    /// The number of collisions that lack a choice.
    int unresolvedCollisionCount() const;

    /// Whether every collision has a choice.
    bool isReadyToCommit() const { return unresolvedCollisionCount() == 0; }

    bool operator==(const ImportPlan &) const = default;
};
size_t qHash(const ImportPlan &plan, size_t seed = 0);

} // namespace vornel
