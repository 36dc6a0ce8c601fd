#pragma once

#include <VORNELCore/Records/CopyInspection.h>
#include <VORNELCore/Records/WorkspaceModels.h>

#include <QVariant>
#include <QtQml/qqmlregistration.h>

namespace vornel {

/// What one row of the trash or of the skills that need attention shows.
struct SkillEntry
{
    Q_GADGET
    QML_VALUE_TYPE(skillEntry)
    Q_PROPERTY(QUuid id MEMBER id)
    Q_PROPERTY(vornel::SkillSummary skill MEMBER skill)
    Q_PROPERTY(vornel::SkillCategory category MEMBER category)
    Q_PROPERTY(QString line MEMBER line)
    Q_PROPERTY(QString date MEMBER date)
    Q_PROPERTY(QString failure MEMBER failure)
    Q_PROPERTY(QVariantList unreadable MEMBER unreadable)
    Q_PROPERTY(bool hasFailed MEMBER hasFailed)
    Q_PROPERTY(bool canAdopt MEMBER canAdopt)
    Q_PROPERTY(bool isSelected MEMBER isSelected)
    Q_PROPERTY(bool isStale MEMBER isStale)
    Q_PROPERTY(QString description READ description STORED false)

public:
    QUuid id; ///< the skill's
    SkillSummary skill;
    SkillCategory category;
    QString line;            ///< below the name
    QString date;            ///< empty where it isn't known
    QString failure;         ///< why the skill, or a copy of it, couldn't be changed or read
    QVariantList unreadable; ///< the inspections of copies that no synchronisation replaces
    bool hasFailed = false;  ///< whether a copy is worse than missing or modified
    bool canAdopt = false;   ///< whether a copy holds what could become the skill's
    bool isSelected = false;
    bool isStale = false; ///< whether the skill's copies are to be looked at before the row tells the truth

    /// What assistive tools tell beside the name.
    QString description() const
    {
        QStringList parts{skill.slug, line, date, failure};
        if (isSelected)
            parts.append(QStringLiteral("sélectionnée"));
        parts.removeAll(QString());
        return parts.join(QStringLiteral(", "));
    }

    bool operator==(const SkillEntry &) const = default;
};

} // namespace vornel
