#pragma once

#include <VORNELCore/Records/SkillMerge.h>

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace vornel {

/// The conflicts of a merge, and how the user settles each.
class ConflictList : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the adoption")
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(int openCount READ openCount NOTIFY changed)

public:
    /// What stands in the end: nothing yet, the version of one copy, or the text that the user edits.
    enum Choice { Open, Claude, Codex, Text };
    Q_ENUM(Choice)

    using QAbstractListModel::QAbstractListModel;

    /// Lists the conflicts of a merge that begins. One that was listed before, for whichever skill, and is
    /// still the same keeps what the user has done about it.
    void begin(const QList<MergeConflict> &conflicts);

    /// Lists conflicts that a merge has found beside those that were settled, or in their place.
    void add(const QList<MergeConflict> &conflicts);

    int count() const { return static_cast<int>(m_rows.size()); }

    /// How many aren't settled. A text settles its conflict once no mark is left in it.
    int openCount() const;

    QList<MergeSettlement> settlements() const;

    Q_INVOKABLE void choose(int row, vornel::ConflictList::Choice choice);

    /// The text that settles a conflict if the user chooses so: at first the one with marks.
    Q_INVOKABLE QString text(int row) const;
    void setText(int row, const QString &text);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();

private:
    enum Role { PathRole = Qt::UserRole, ChoiceRole, HasTextRole, IsSettledRole, StateTextRole };

    struct Row
    {
        MergeConflict conflict;
        Choice choice = Open;
        QString text;

        bool isSettled() const;
        QString stateText() const;
    };

    void show(QList<Row> rows);
    void refresh(int row);

    QList<Row> m_rows;          ///< by path
    QList<Row> m_decidedBefore; ///< the latest ones first
};

} // namespace vornel
