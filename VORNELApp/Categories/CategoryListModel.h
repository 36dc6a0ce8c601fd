#pragma once

#include <VORNELApp/Lists/FixedRowListModel.h>
#include <VORNELApp/Model/AppModel.h>

namespace vornel {

/// A category of the catalog with its skills counted, or all of them under "Toutes", without an identifier.
struct CategoryEntry
{
    Q_GADGET
    QML_VALUE_TYPE(categoryEntry)
    Q_PROPERTY(vornel::SkillCategory category MEMBER category)
    Q_PROPERTY(int count MEMBER count)
    Q_PROPERTY(QString countText READ countText STORED false)
    Q_PROPERTY(QString spokenName READ spokenName STORED false)

public:
    SkillCategory category;
    int count = 0;

    /// "1 compétence", "2 compétences".
    QString countText() const;

    /// The name and the count in words.
    QString spokenName() const;

    bool operator==(const CategoryEntry &) const = default;
};

/// The catalog of categories, kept in step with the application model. The filters don't change the counts.
class CategoryListModel : public FixedRowListModel<CategoryEntry>
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model NOTIFY modelChanged REQUIRED)
    Q_PROPERTY(bool beginsWithAll MEMBER m_beginsWithAll NOTIFY beginsWithAllChanged)

public:
    explicit CategoryListModel(QObject *parent = nullptr);

Q_SIGNALS:
    void modelChanged();
    void beginsWithAllChanged();

private:
    void follow();
    void refresh();

    AppModel *m_model = nullptr;
    bool m_beginsWithAll = false;
};

} // namespace vornel
