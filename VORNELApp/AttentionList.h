#pragma once

#include "SkillList.h"

#include <QPointer>
#include <QTimer>

namespace vornel {

/// The skills that need attention, with how each of their copies stands. Copies are looked at one skill after
/// another, and those of the rows that ask for it alone: never for a whole long list at once.
class AttentionList : public vornel::SkillList // in full, for the tools that read the types of QML
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool isSurveying READ isSurveying NOTIFY isSurveyingChanged)
    Q_PROPERTY(int surveyedCount READ surveyedCount NOTIFY surveyed)
    Q_PROPERTY(int editedCopies READ editedCopies NOTIFY surveyed)
    Q_PROPERTY(bool sawEveryCopy READ sawEveryCopy NOTIFY surveyed)

public:
    explicit AttentionList(QObject *parent = nullptr);

    /// Asks how the copies of a skill stand; its row follows.
    Q_INVOKABLE void look(QUuid id);

    /// Looks at the copies of every skill shown; `surveyed` follows, unless it is forgotten before.
    Q_INVOKABLE void survey();
    Q_INVOKABLE void forgetSurvey();

    bool isSurveying() const { return m_isSurveying; }

    /// How many skills the last survey looked at, and how many of their copies hold something else than the
    /// canonical folder.
    int surveyedCount() const { return static_cast<int>(m_surveyed.size()); }
    int editedCopies() const { return m_editedCopies; }

    /// Whether the last survey could tell how each copy stands.
    bool sawEveryCopy() const { return m_sawEveryCopy; }

    /// Synchronises the skills of the last survey.
    Q_INVOKABLE void synchronizeSurveyed();

Q_SIGNALS:
    void isSurveyingChanged();
    void surveyed();

protected:
    void complete(SkillEntry &entry) const override;
    void renew() override;

private:
    void lookAtNext();
    static QCoro::Task<> inspect(QPointer<AttentionList> self, AppModel *model, QUuid id);
    void show(const QUuid &id, const QList<TargetInspection> &inspections);
    void endSurvey();
    void setSurveying(bool isSurveying);

    QHash<QUuid, QList<TargetInspection>> m_inspections;
    QSet<QUuid> m_current; ///< whose inspection is as young as the overview
    QList<QUuid> m_wanted; ///< the last one is looked at first
    QTimer m_start;
    bool m_isLooking = false;
    bool m_isSurveying = false;
    QSet<QUuid> m_surveyed;
    int m_editedCopies = 0;
    bool m_sawEveryCopy = true;
};

} // namespace vornel
