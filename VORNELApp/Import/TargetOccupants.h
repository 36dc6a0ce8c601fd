#pragma once

#include <VORNELApp/Model/AppModel.h>

namespace vornel {

/// What stands in the way, and isn't VORNEL's own, where a skill is created, restored or imported.
class TargetOccupants : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model NOTIFY modelChanged REQUIRED)
    Q_PROPERTY(QVariantList folders READ folders NOTIFY changed)
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(bool canBeReplaced READ canBeReplaced NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)

public:
    using QObject::QObject;

    /// What the last look has found.
    QVariantList folders() const;
    int count() const { return static_cast<int>(m_folders.size()); }

    /// Whether copies could take the place of all that was found.
    bool canBeReplaced() const;

    /// Why the last look failed, for the user: nobody knows then what a copy would replace. Empty otherwise.
    QString problem() const { return m_problem; }

    /// Looks under these slugs in both assistants' folders. `looked` follows the last look.
    Q_INVOKABLE void look(const QStringList &slugs);

    /// Looks where the skills of these slugs would be restored to.
    Q_INVOKABLE void lookForRestored(const QStringList &slugs);

    /// Looks where the planned import would put copies that aren't there yet.
    Q_INVOKABLE void lookForImport();

    /// Does so unless the last such look was for the same scan and the same places.
    Q_INVOKABLE void followImport();

Q_SIGNALS:
    void modelChanged();
    void changed();
    void looked();

private:
    /// The identifier of an import, and the places that it fills.
    using ImportPlaces = std::pair<QUuid, QList<TargetPlace>>;

    ImportPlaces importPlaces() const;
    void lookAt(const QList<TargetPlace> &places);
    void show(const QList<TargetOccupant> &folders, const QString &problem = {});

    AppModel *m_model = nullptr;
    ImportPlaces m_importPlaces; ///< that were looked at last
    QList<TargetOccupant> m_folders;
    QString m_problem;
    int m_request = 0; ///< counts the looks: only the last one is shown
};

} // namespace vornel
