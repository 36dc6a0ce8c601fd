#pragma once

#include <VORNELApp/Copies/DifferentFileList.h>
#include <VORNELApp/Model/AppModel.h>

namespace vornel {

/// What a copy holds that was set aside, and in what it differs from the active skill of its slug.
class SetAsideComparison : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(bool isKnown MEMBER m_isKnown NOTIFY changed)
    Q_PROPERTY(int sameCount MEMBER m_sameCount NOTIFY changed)
    Q_PROPERTY(vornel::DifferentFileList *files READ files CONSTANT)

public:
    using QObject::QObject;

    /// Why it couldn't be found out, for the user; empty otherwise.
    QString problem() const { return m_problem; }

    /// The files that differ or, where there is no skill, all of them.
    DifferentFileList *files() { return &m_files; }

    /// Looks at the copy of this name.
    Q_INVOKABLE void look(const QString &copy, bool hasSkill);

Q_SIGNALS:
    void changed();

private:
    void show(const HistoryComparison &comparison, bool hasSkill);

    AppModel *m_model = nullptr;
    QString m_problem;
    bool m_isKnown = false; ///< whether it has been found out
    int m_sameCount = 0;    ///< how many files are as in the library
    DifferentFileList m_files;
    int m_request = 0; ///< counts the looks: only the last one is shown
};

} // namespace vornel
