#pragma once

#include "AppStates.h"

#include <VORNELCore/Library/LibraryQuery.h>
#include <VORNELCore/Records/CopyInspection.h>
#include <VORNELCore/Records/ExchangeRecords.h>
#include <VORNELCore/Records/ImportModels.h>
#include <VORNELCore/Records/TargetComparison.h>
#include <VORNELCore/Records/TargetOccupant.h>
#include <VORNELCore/Records/WorkspaceModels.h>

#include <QtQml/qqml.h>

/// The domain's records and enumerations, made known to QML.
namespace vornel::QmlTypes {

namespace Enumerations {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(vornel)
QML_NAMED_ELEMENT(Vornel)
} // namespace Enumerations

namespace States {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(vornel::AppStates)
QML_NAMED_ELEMENT(AppStates)
} // namespace States

struct UuidType
{
    Q_GADGET
    QML_FOREIGN(QUuid)
    QML_VALUE_TYPE(uuid)
};

struct PhaseType
{
    Q_GADGET
    QML_FOREIGN(vornel::Phase)
    QML_VALUE_TYPE(phase)
};

struct CategoryType
{
    Q_GADGET
    QML_FOREIGN(vornel::SkillCategory)
    QML_VALUE_TYPE(skillCategory)
};

struct ManifestType
{
    Q_GADGET
    QML_FOREIGN(vornel::SkillManifest)
    QML_VALUE_TYPE(skillManifest)
};

struct SummaryType
{
    Q_GADGET
    QML_FOREIGN(vornel::SkillSummary)
    QML_VALUE_TYPE(skillSummary)
};

struct DetailType
{
    Q_GADGET
    QML_FOREIGN(vornel::SkillDetail)
    QML_VALUE_TYPE(skillDetail)
};

struct OverviewType
{
    Q_GADGET
    QML_FOREIGN(vornel::WorkspaceOverview)
    QML_VALUE_TYPE(workspaceOverview)
};

struct CollisionType
{
    Q_GADGET
    QML_FOREIGN(vornel::ImportCollision)
    QML_VALUE_TYPE(importCollision)
};

struct BlockedType
{
    Q_GADGET
    QML_FOREIGN(vornel::BlockedImport)
    QML_VALUE_TYPE(blockedImport)
};

struct PlanType
{
    Q_GADGET
    QML_FOREIGN(vornel::ImportPlan)
    QML_VALUE_TYPE(importPlan)
};

struct DifferenceType
{
    Q_GADGET
    QML_FOREIGN(vornel::FileDifference)
    QML_VALUE_TYPE(fileDifference)
};

struct InspectionType
{
    Q_GADGET
    QML_FOREIGN(vornel::CopyInspection)
    QML_VALUE_TYPE(copyInspection)
};

struct ComparedFolderType
{
    Q_GADGET
    QML_FOREIGN(vornel::ComparedFolder)
    QML_VALUE_TYPE(comparedFolder)
};

struct AdditionType
{
    Q_GADGET
    QML_FOREIGN(vornel::SkillAddition)
    QML_VALUE_TYPE(skillAddition)
};

struct OccupantType
{
    Q_GADGET
    QML_FOREIGN(vornel::TargetOccupant)
    QML_VALUE_TYPE(targetOccupant)
};

} // namespace vornel::QmlTypes
