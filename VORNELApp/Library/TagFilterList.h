#pragma once

#include <VORNELApp/Lists/KeyedListModel.h>
#include <VORNELApp/Model/AppModel.h>

namespace vornel {

/// A tag that the library can be narrowed by.
struct TagFilter
{
    Q_GADGET
    QML_VALUE_TYPE(tagFilter)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(bool isChosen MEMBER isChosen)
    Q_PROPERTY(int count MEMBER count)
    Q_PROPERTY(QString spokenName READ spokenName STORED false)

public:
    QString id; ///< the tag, as the first skill that has it writes it
    bool isChosen = false;
    int count = 0; ///< the skills that are shown and have it

    /// The tag and the count in words.
    QString spokenName() const;

    bool operator==(const TagFilter &) const = default;
};

/// The tags that narrow the library, and those of the skills that are shown: the most frequent ones of the
/// whole library come first, and keep their order whatever the filters say.
class TagFilterList : public KeyedListModel<TagFilter>
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model NOTIFY modelChanged REQUIRED)
    Q_PROPERTY(int faultyCount READ faultyCount NOTIFY changed)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)

public:
    explicit TagFilterList(QObject *parent = nullptr);

    /// How many skills of the library have errors.
    int faultyCount() const { return m_faultyCount; }

    bool isEmpty() const { return rowCount() == 0; }

Q_SIGNALS:
    void modelChanged();
    void changed();

private:
    void follow();
    void order();
    void refresh();

    AppModel *m_model = nullptr;
    QStringList m_tags; ///< of the whole library, in their order
    int m_faultyCount = 0;
};

} // namespace vornel
