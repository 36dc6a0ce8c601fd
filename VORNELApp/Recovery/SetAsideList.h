#pragma once

#include <VORNELApp/Lists/SkillList.h>
#include <VORNELApp/Model/LatestAnswer.h>

namespace vornel {

/// What lies in the recovery folder: a row for each, with the active skill of its slug, if there is one. A
/// row can be adopted where there is.
class SetAsideList : public vornel::SkillList // in full, for the tools that read the types of QML
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString summary READ summary NOTIFY countChanged)
    Q_PROPERTY(QString problem READ problem NOTIFY countChanged)

public:
    explicit SetAsideList(QObject *parent = nullptr);

    /// How many there are, and how much they take: "3 copies, 1,4 ko".
    QString summary() const;

    /// Why they couldn't be read, for the user: they are shown then as they were. Empty otherwise.
    const QString &problem() const { return m_problem; }

    /// The name in the recovery folder of what a row shows.
    Q_INVOKABLE QString copyID(QUuid row) const;

protected:
    qsizetype total() const override { return m_copies.size(); }
    QList<SkillEntry> found() const override;
    void complete(SkillEntry & /*entry*/) const override {}
    void renew() override;

private:
    using Copies = QList<SetAsideCopy>;

    SkillEntry entryOf(const SetAsideCopy &copy) const;
    void show(const Answer<Copies> &answer);

    Copies m_copies;
    QString m_problem;
    std::optional<WorkspaceOverview> m_overview; ///< what there was when they were last looked for
    LatestAnswer<Answer<Copies>> m_looking;
};

} // namespace vornel
