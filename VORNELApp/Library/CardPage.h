#pragma once

#include "LibraryCard.h"

#include <VORNELApp/Actions/SkillSelection.h>
#include <VORNELApp/Lists/FixedRowListModel.h>

namespace vornel {

/// The page of the library that is shown: which card stands where. Another page, filter or search changes
/// what the cards say and never their number, so that no view has to make one.
class CardPage : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model NOTIFY modelChanged REQUIRED)
    Q_PROPERTY(vornel::SkillSelection *selection MEMBER m_selection NOTIFY selectionChanged REQUIRED)
    Q_PROPERTY(int columns MEMBER m_columns NOTIFY columnsChanged)
    Q_PROPERTY(int currentPage READ currentPage WRITE setCurrentPage NOTIFY changed)
    Q_PROPERTY(int pageCount READ pageCount NOTIFY changed)
    Q_PROPERTY(int skillCount READ skillCount NOTIFY changed)
    Q_PROPERTY(bool hasPreviousPage READ hasPreviousPage NOTIFY changed)
    Q_PROPERTY(bool hasNextPage READ hasNextPage NOTIFY changed)
    Q_PROPERTY(QString categoryName READ categoryName NOTIFY changed)
    Q_PROPERTY(QStringList maturityTexts READ maturityTexts CONSTANT)
    Q_PROPERTY(bool isFiltered READ isFiltered NOTIFY changed)
    Q_PROPERTY(bool isLibraryEmpty READ isLibraryEmpty NOTIFY changed)
    Q_PROPERTY(int mostTags READ mostTags NOTIFY changed)
    Q_PROPERTY(int cardCount READ cardCount NOTIFY changed)
    Q_PROPERTY(int rowCount READ rowCount NOTIFY changed)
    Q_PROPERTY(int headingCount READ headingCount NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel *cards READ cards CONSTANT)
    Q_PROPERTY(QAbstractItemModel *headings READ headings CONSTANT)

public:
    explicit CardPage(QObject *parent = nullptr);

    /// The page shown, counted from 1. One that doesn't exist becomes the nearest that does.
    int currentPage() const { return m_currentPage; }
    void setCurrentPage(int page);

    int pageCount() const { return static_cast<int>(m_pagination.pageCount()); }
    bool hasPreviousPage() const { return m_pagination.hasPreviousPage(); }
    bool hasNextPage() const { return m_pagination.hasNextPage(); }

    /// How many skills pass the filters, on all pages.
    int skillCount() const { return static_cast<int>(m_pagination.itemCount()); }

    /// The name of the category that filters the library; empty without such a filter.
    QString categoryName() const;

    /// What the user reads for each maturity, in their order.
    static QStringList maturityTexts();

    /// Whether anything but the search narrows the library.
    bool isFiltered() const;

    /// Lets all that the search finds be shown.
    Q_INVOKABLE void clearFilters();

    /// Whether there is no skill at all, whatever the filters say.
    bool isLibraryEmpty() const { return m_isLibraryEmpty; }

    /// How many tags a card needs room for; never less than before.
    int mostTags() const { return m_mostTags; }

    /// How many cards, rows of cards and section headers the page has.
    int cardCount() const { return m_cardCount; }
    int rowCount() const { return m_rowCount; }
    int headingCount() const { return m_headingCount; }

    QAbstractItemModel *cards() { return &m_cards; }
    QAbstractItemModel *headings() { return &m_headings; }

    /// Selects the skills of the cards between these two positions, both included.
    Q_INVOKABLE void select(int from, int to);

    /// The position of a skill's card; -1 where this page has none.
    Q_INVOKABLE int indexOf(QUuid id) const;

    /// The position of the card at this place, or of the last one of its row; -1 without such a row.
    Q_INVOKABLE int indexAt(int row, int column) const;

Q_SIGNALS:
    void modelChanged();
    void selectionChanged();
    void columnsChanged();
    void changed();

    /// Another page, or the first of other results: the view goes to its top.
    void turned();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void follow();
    void begin();
    void refresh();
    bool update();
    bool isByCategory() const;
    QList<SkillGroup> sections(const SkillPage &page) const;
    LibraryCard card(const SkillSummary &skill) const;
    void layOut(const QList<SkillGroup> &sections, bool areHeaded);
    void show(QList<LibraryCard> cards, QList<LibraryHeading> headings);

    AppModel *m_model = nullptr;
    SkillSelection *m_selection = nullptr;
    int m_columns = 1;
    int m_currentPage = 1;
    bool m_isWaiting = false; // while several filters change at once
    Pagination m_pagination;
    bool m_isLibraryEmpty = true;
    int m_mostTags = 0;
    int m_cardCount = 0;
    int m_rowCount = 0;
    int m_headingCount = 0;
    FixedRowListModel<LibraryCard> m_cards;
    FixedRowListModel<LibraryHeading> m_headings;
};

} // namespace vornel
