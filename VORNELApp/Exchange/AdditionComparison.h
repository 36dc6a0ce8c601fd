#pragma once

#include <VORNELApp/Copies/DifferentFileList.h>
#include <VORNELApp/Model/AppModel.h>

namespace vornel {

/// In what a skill that is to be added differs from the library's.
class AdditionComparison : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(QUuid skillID READ skillID NOTIFY changed)
    Q_PROPERTY(vornel::DifferentFileList *files READ files CONSTANT)

public:
    using QObject::QObject;

    /// The library's skill.
    const QUuid &skillID() const { return m_skillID; }

    /// Which files differ.
    DifferentFileList *files() { return &m_files; }

    Q_INVOKABLE void look(const vornel::SkillAddition &addition);

Q_SIGNALS:
    void changed();

private:
    AppModel *m_model = nullptr;
    QUuid m_skillID;
    DifferentFileList m_files;
};

} // namespace vornel
