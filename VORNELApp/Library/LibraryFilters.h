#pragma once

#include <VORNELCore/Library/LibraryQuery.h>

#include <QObject>
#include <QSettings>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace vornel {

/// What narrows the library beside its search, a category and a maturity, and in what order it is shown. Both
/// are kept between two starts, but for the filter by errors.
class LibraryFilters : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the model")
    Q_PROPERTY(int order READ order WRITE setOrder NOTIFY changed)
    Q_PROPERTY(QStringList orderTexts READ orderTexts CONSTANT)
    Q_PROPERTY(QStringList tags READ tags NOTIFY changed)
    Q_PROPERTY(bool isSet READ isSet NOTIFY changed)
    Q_PROPERTY(bool isFaultyOnly READ isFaultyOnly WRITE setFaultyOnly NOTIFY changed)

public:
    explicit LibraryFilters(std::shared_ptr<QSettings> defaults);

    /// The library's order, counted from `category`, and what the user reads for each.
    int order() const { return static_cast<int>(m_order); }
    void setOrder(int order);
    static QStringList orderTexts();

    /// What a skill must be tagged with.
    const QStringList &tags() const { return m_tags; }
    Q_INVOKABLE void toggleTag(const QString &tag);

    /// Gives up the tags that no skill has any more.
    void keepTags(const QList<SkillSummary> &skills);

    /// Whether only skills with errors are shown.
    bool isFaultyOnly() const { return m_isFaultyOnly; }
    void setFaultyOnly(bool isFaultyOnly);

    /// Whether anything is left out.
    bool isSet() const { return m_isFaultyOnly || !m_tags.isEmpty(); }

    /// Lets everything pass; the order stays.
    void clear();

    /// Adds what is chosen here to a filter; `faulty` are the skills with errors.
    LibraryQuery::Filter narrowed(LibraryQuery::Filter filter, const QSet<QUuid> &faulty) const;

Q_SIGNALS:
    void changed();

private:
    void setTags(const QStringList &tags);

    const std::shared_ptr<QSettings> m_defaults;
    LibraryOrder m_order = LibraryOrder::category;
    QStringList m_tags;
    bool m_isFaultyOnly = false;
};

} // namespace vornel
