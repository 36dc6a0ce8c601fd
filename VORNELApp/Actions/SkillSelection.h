#pragma once

#include <VORNELApp/Model/AppModel.h>

#include <QSet>

namespace vornel {

/// The skills chosen in the selection mode of the library or of another list, what a dragged card carries,
/// and the actions on either. They concern those that the list shows: what a search or a filter hides stays
/// selected, and as it is. Skills that are gone leave the selection; the mode ends with the last of them.
/// An action is done to the skills that were held when the user began with it, by a menu or a question.
class SkillSelection : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model NOTIFY modelChanged REQUIRED)
    Q_PROPERTY(vornel::AppStates::Destination destination MEMBER m_destination)
    Q_PROPERTY(bool isSelecting READ isSelecting NOTIFY changed)
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(QString countText READ countText NOTIFY changed)
    Q_PROPERTY(bool holdsAll READ holdsAll NOTIFY holdsAllChanged)

public:
    explicit SkillSelection(QObject *parent = nullptr);

    bool isSelecting() const { return m_isSelecting; }
    Q_INVOKABLE bool contains(const QUuid &id) const { return m_ids.contains(id); }

    /// How many of the selected skills the list shows.
    int count() const { return static_cast<int>(m_shown.size()); }

    /// The same for the user, with how many are hidden.
    QString countText() const;

    /// Whether every skill that passes the filters is selected, and there is one.
    bool holdsAll() const { return m_holdsAll; }

    Q_INVOKABLE void begin() { change(true, m_ids); }
    Q_INVOKABLE void end() { change(false, {}); }

    /// Selects the skill or no longer does. Begins the selection mode.
    Q_INVOKABLE void toggle(QUuid id);

    /// Selects these skills, too. Begins the selection mode.
    void add(const QSet<QUuid> &ids) { change(true, m_ids + ids); }

    /// Selects every skill that passes the filters, on all pages, which begins the mode, or none of them.
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE void selectNone() { change(m_isSelecting, m_ids - m_shown); }

    /// How many skills a card takes along when it is dragged, and the text that tells which.
    Q_INVOKABLE int carriedCount(QUuid id) const { return static_cast<int>(carried(id).size()); }
    Q_INVOKABLE QString payload(QUuid id) const;

    /// Whether a dropped text names skills.
    Q_INVOKABLE static bool accepts(const QString &text);

    /// Puts the skills that a dropped text names into a category. A text that names none does nothing.
    Q_INVOKABLE void drop(const QString &text, const QString &category);

    /// Takes what the next action is about: the selected skills that are shown or, where only one skill was
    /// pointed at, what a drag of it would carry.
    Q_INVOKABLE void hold() { m_held = m_shown; }
    Q_INVOKABLE void hold(QUuid id) { m_held = carried(id); }

    /// Takes these skills, selected or not.
    Q_INVOKABLE void holdThese(const QVariantList &ids);

    Q_INVOKABLE int heldCount() const { return static_cast<int>(m_held.size()); }

    /// The held skills in the order of the list: identifiers, slugs, and the only one, which is an invalid
    /// variant for none or several.
    Q_INVOKABLE QVariantList ids() const;
    Q_INVOKABLE QStringList slugs() const;
    Q_INVOKABLE QVariant only() const;

    /// Their names, of many the first ones.
    Q_INVOKABLE QString heldNames() const;

    /// Puts the held skills into a category; they stay selected.
    Q_INVOKABLE void assign(const QString &category);

    Q_INVOKABLE void trash();
    Q_INVOKABLE void restore();
    Q_INVOKABLE void deletePermanently();

    /// Asks where the held skills are to be exported.
    Q_INVOKABLE void exportHeld() const { m_model->skillExport()->begin(m_held); }

    /// Puts the places of the held skills on the clipboard, one on a line.
    Q_INVOKABLE void copyPaths() const;

Q_SIGNALS:
    void modelChanged();
    void changed();
    void holdsAllChanged();

private:
    void follow();
    void change(bool isSelecting, const QSet<QUuid> &ids);
    void dropMissing();
    void compareWithShown();
    void followShown();
    QList<SkillSummary> held() const;
    QSet<QUuid> carried(const QUuid &id) const;

    AppModel *m_model = nullptr;
    Destination m_destination = Destination::library; ///< set before the first selection
    QSet<QUuid> m_ids;
    QSet<QUuid> m_shown; ///< those of them that the list shows
    QSet<QUuid> m_held;
    bool m_isSelecting = false;
    bool m_holdsAll = false;
};

} // namespace vornel
