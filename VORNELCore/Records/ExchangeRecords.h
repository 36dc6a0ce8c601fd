#pragma once

#include "CopyInspection.h"
#include "Enumerations.h"

#include <QStringList>
#include <QVariant>

#include <optional>

/// What goes out of the library and comes into it: plain values. A property's name is also its key in JSON.
namespace vornel {

/// An archive of skills that was written.
struct SkillExport
{
    Q_GADGET
    Q_PROPERTY(QString file MEMBER file)
    Q_PROPERTY(QStringList slugs MEMBER slugs)
    Q_PROPERTY(qint64 size MEMBER size)

public:
    QString file; ///< its path
    QStringList slugs = {};
    qint64 size = 0; ///< of the archive, in bytes

    bool operator==(const SkillExport &) const = default;
};

/// A skill that is to be added to the library, and what the user has decided about it.
struct SkillAddition
{
    Q_GADGET
    Q_PROPERTY(QString slug MEMBER slug)
    Q_PROPERTY(QString digest MEMBER digest)
    Q_PROPERTY(vornel::AdditionKind kind MEMBER kind)
    Q_PROPERTY(qint64 revision MEMBER revision)
    Q_PROPERTY(QList<vornel::FileDifference> differences MEMBER differences)
    Q_PROPERTY(QVariant choice READ choiceValue)

public:
    QString slug;
    QString digest; ///< of its tree
    AdditionKind kind = AdditionKind::added;
    qint64 revision = 0;                       ///< that of the library's skill; 0 where it has none
    QList<FileDifference> differences = {};    ///< what leads from the library's content to this one
    std::optional<AdditionChoice> choice = {}; ///< where the contents differ, once the user has decided

    /// The choice, or an invalid variant while there is none.
    QVariant choiceValue() const { return choice ? QVariant::fromValue(*choice) : QVariant(); }

    bool operator==(const SkillAddition &) const = default;
};

} // namespace vornel
