#pragma once

#include <VORNELApp/Copies/DifferentFileList.h>
#include <VORNELApp/Model/AppModel.h>

namespace vornel {

/// In what both assistants' folders of a collision differ, as they stand when someone looks.
class CollisionComparison : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(vornel::ComparedFolder claude READ claude NOTIFY changed)
    Q_PROPERTY(vornel::ComparedFolder codex READ codex NOTIFY changed)
    Q_PROPERTY(bool isKnown READ isKnown NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(vornel::DifferentFileList *files READ files CONSTANT)

public:
    using QObject::QObject;

    /// What each assistant holds.
    const ComparedFolder &claude() const { return m_comparison.claude; }
    const ComparedFolder &codex() const { return m_comparison.codex; }

    /// Whether that has been found out.
    bool isKnown() const { return !m_comparison.slug.isEmpty(); }

    /// Why it couldn't be, for the user; empty otherwise.
    QString problem() const { return m_problem; }

    /// Which files differ.
    DifferentFileList *files() { return &m_files; }

    /// Looks at the folders of this slug.
    Q_INVOKABLE void look(const QString &slug);

Q_SIGNALS:
    void changed();

private:
    void show(const TargetComparison &comparison, const QString &problem);

    AppModel *m_model = nullptr;
    TargetComparison m_comparison;
    QString m_problem;
    DifferentFileList m_files;
    int m_request = 0; ///< counts the looks: only the last one is shown
};

} // namespace vornel
