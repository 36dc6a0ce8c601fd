#pragma once

#include "KeyedListModel.h"
#include "SkillEntry.h"

#include <VORNELApp/Model/AppModel.h>

namespace vornel {

/// The skills of a destination that the search finds, kept in step with the application model.
class SkillList : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("one for each destination")
    Q_PROPERTY(vornel::AppModel *model READ model WRITE setModel NOTIFY modelChanged REQUIRED)
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int totalCount READ totalCount NOTIFY countChanged)

public:
    AppModel *model() const { return m_model; }
    void setModel(AppModel *model);

    QAbstractItemModel *rows() { return &m_rows; }
    int count() const { return m_rows.rowCount(); }

    /// How many skills there are, whatever the search says.
    int totalCount() const { return m_totalCount; }

Q_SIGNALS:
    void modelChanged();
    void countChanged();

    /// The rows are those of another search.
    void searched();

protected:
    SkillList(Destination destination, QObject *parent);

    void refresh();
    const QList<SkillEntry> &entries() const { return m_rows.records(); }

    /// How many skills there are, and those that the search finds.
    virtual qsizetype total() const;
    virtual QList<SkillEntry> found() const;

    /// Adds to an entry what this list knows of its skill.
    virtual void complete(SkillEntry &entry) const = 0;

    /// Begins to find out anew what this list knows, since the workspace may have changed.
    virtual void renew() = 0;

private:
    AppModel *m_model = nullptr;
    Destination m_destination;
    int m_totalCount = 0;
    KeyedListModel<SkillEntry> m_rows;
};

} // namespace vornel
