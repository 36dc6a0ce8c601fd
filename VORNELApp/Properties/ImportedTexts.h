#pragma once

#include <VORNELApp/Model/LatestAnswer.h>
#include <VORNELApp/Model/Library.h>

#include <QSet>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

namespace vornel {

/// The names and descriptions of the skills just imported that their texts give otherwise: an import reads
/// single lines, assistants read YAML. Told once, until the user has turned it down or nothing is left.
class ImportedTexts : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the model")
    Q_PROPERTY(QString notice READ notice NOTIFY changed)

public:
    ImportedTexts(std::shared_ptr<WindowServicing> service, Library &library);

    /// Looks at the skills of these slugs, in the place of those of the import or addition before.
    void lookAt(const QSet<QString> &slugs);

    /// "« Reprendre du SKILL.md » corrigerait la description de 2 nouvelles compétences."; empty for none.
    const QString &notice() const { return m_notice; }

    /// The identifiers of the skills that the notice is about.
    Q_INVOKABLE QVariantList ids() const { return {m_ids.begin(), m_ids.end()}; }

    /// Tells of these skills no more.
    Q_INVOKABLE void dismiss();

Q_SIGNALS:
    void changed();

private:
    using Reviewed = Answer<QList<SkillProperties>>;

    void look();
    void show(const QList<SkillProperties> &reviewed);
    void setNotice(const QString &notice);

    const std::shared_ptr<WindowServicing> m_service;
    const Library &m_library;
    QSet<QUuid> m_ids; ///< of the skills to look at
    QString m_notice;
    LatestAnswer<Reviewed> m_reading;
};

} // namespace vornel
