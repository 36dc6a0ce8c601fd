#pragma once

#include <VORNELApp/Model/AppModel.h>

namespace vornel {

/// The tags of the library that the user may mean: those that hold what is typed, at their beginning first,
/// and the most used of them first.
class TagSuggestions : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model READ model WRITE setModel NOTIFY changed REQUIRED)
    Q_PROPERTY(QString typed READ typed WRITE setTyped NOTIFY changed)
    Q_PROPERTY(QStringList chosen READ chosen WRITE setChosen NOTIFY changed)
    Q_PROPERTY(QStringList tags READ tags NOTIFY changed)

public:
    using QObject::QObject;

    AppModel *model() const { return m_model; }
    void setModel(AppModel *model);

    const QString &typed() const { return m_typed; }
    void setTyped(const QString &typed);

    /// Which tags aren't suggested any more.
    const QStringList &chosen() const { return m_chosen; }
    void setChosen(const QStringList &tags);

    const QStringList &tags() const { return m_tags; }

Q_SIGNALS:
    void changed();

private:
    void find();

    AppModel *m_model = nullptr;
    QString m_typed;
    QStringList m_chosen;
    QStringList m_tags;
};

} // namespace vornel
