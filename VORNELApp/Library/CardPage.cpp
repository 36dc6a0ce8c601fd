#include "CardPage.h"

#include <VORNELCore/Library/Wording.h>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vornel {

CardPage::CardPage(QObject *parent) : QObject(parent)
{
    for (const auto given : {&CardPage::modelChanged, &CardPage::selectionChanged})
        connect(this, given, this, &CardPage::follow);
    connect(this, &CardPage::columnsChanged, this, &CardPage::refresh);
    startTimer(1min); // as the ages that are shown change
}

void CardPage::setCurrentPage(int page)
{
    m_currentPage = page;
    refresh();
}

QStringList CardPage::maturityTexts()
{
    return Wording::maturities();
}

QString CardPage::categoryName() const
{
    if (m_model == nullptr || m_model->selectedCategory().isEmpty())
        return {};
    return m_model->category(m_model->selectedCategory()).name;
}

bool CardPage::isFiltered() const
{
    return m_model != nullptr && (!m_model->selectedCategory().isEmpty() || m_model->selectedMaturity() ||
                                  m_model->filters()->isSet());
}

void CardPage::clearFilters()
{
    m_isWaiting = true;
    m_model->setSelectedCategory({});
    m_model->setSelectedMaturity({});
    m_model->filters()->clear();
    m_isWaiting = false;
    begin();
}

void CardPage::select(int from, int to)
{
    QSet<QUuid> ids;
    for (int index = std::max(0, std::min(from, to)); index <= std::max(from, to) && index < m_cardCount;
         ++index)
        ids.insert(m_cards.records().at(index).skill.id);
    m_selection->add(ids);
}

int CardPage::indexOf(QUuid id) const
{
    const QList<LibraryCard> cards = m_cards.records().first(m_cardCount);
    const auto found = std::ranges::find(cards, id, [](const LibraryCard &card) { return card.skill.id; });
    return found == cards.end() ? -1 : static_cast<int>(found - cards.begin());
}

int CardPage::indexAt(int row, int column) const
{
    int found = -1;
    for (int index = 0; index < m_cardCount; ++index) {
        const LibraryCard &card = m_cards.records().at(index);
        if (card.row == row && card.column <= column)
            found = index;
    }
    return found;
}

void CardPage::timerEvent(QTimerEvent * /*event*/)
{
    refresh();
}

void CardPage::follow()
{
    if (m_model == nullptr || m_selection == nullptr)
        return;
    for (const auto changed : {&AppModel::searchTextChanged, &AppModel::selectedCategoryChanged,
                               &AppModel::selectedMaturityChanged})
        connect(m_model, changed, this, &CardPage::begin);
    connect(m_model->filters(), &LibraryFilters::changed, this, &CardPage::begin);
    for (const auto changed : {&AppModel::overviewChanged, &AppModel::checksChanged})
        connect(m_model, changed, this, &CardPage::refresh);
    connect(m_model, &AppModel::isOverviewCurrentChanged, this, &CardPage::refresh);
    connect(&m_model->wrongCopies(), &WrongCopies::changed, this, &CardPage::refresh);
    connect(m_selection, &SkillSelection::changed, this, &CardPage::refresh);
    refresh();
}

/// Shows the first page of other results.
void CardPage::begin()
{
    if (m_isWaiting)
        return;
    m_currentPage = 1;
    update();
    Q_EMIT turned();
}

void CardPage::refresh()
{
    if (m_model != nullptr && m_selection != nullptr && update())
        Q_EMIT turned();
}

/// Shows the current page or, once that is gone, the nearest one. Tells whether it is another than before.
bool CardPage::update()
{
    const qint64 before = m_pagination.page();
    const SkillPage page = m_model->libraryIndex().skillPage(m_model->filter(), m_currentPage);
    const auto overview = m_model->overview();
    constexpr int roomForTags = 3;
    for (const SkillSummary &skill : overview ? overview->skills : QList<SkillSummary>())
        m_mostTags = std::clamp(static_cast<int>(skill.tags.size()), m_mostTags, roomForTags);
    m_isLibraryEmpty = !overview || overview->skills.isEmpty();
    m_pagination = page.pagination;
    m_currentPage = static_cast<int>(page.pagination.page());
    layOut(sections(page), isByCategory());
    Q_EMIT changed();
    return m_currentPage != before;
}

/// Whether each category has a section of its own.
bool CardPage::isByCategory() const
{
    return m_model->selectedCategory().isEmpty() && m_model->filter().order == LibraryOrder::category;
}

/// Skills of unknown categories, which come last, have a section of their own.
QList<SkillGroup> CardPage::sections(const SkillPage &page) const
{
    if (!isByCategory())
        return {{{}, page.skills, page.pagination.itemCount()}};
    QList<SkillGroup> sections = page.groups;
    qsizetype grouped = 0;
    for (const SkillGroup &group : page.groups)
        grouped += group.skills.size();
    if (grouped < page.skills.size()) {
        const SkillCategory none{{}, u"Sans catégorie"_s, {}};
        sections.append({none, page.skills.sliced(grouped), page.ungroupedCount});
    }
    return sections;
}

LibraryCard CardPage::card(const SkillSummary &skill) const
{
    LibraryCard card;
    card.skill = skill;
    if (!m_model->isOverviewCurrent())
        card.skill.syncState = SyncState::unknown;
    card.category = m_model->category(skill.category);
    card.age = Wording::age(skill.updatedAt, QDateTime::currentDateTimeUtc());
    card.stateText = m_model->wrongCopies().stateText(card.skill);
    card.problem = m_model->wrongCopies().problem(skill.id);
    const int errors = m_model->checks().errorCount(skill.id);
    card.errorText = errors == 0 ? QString() : Wording::countedProblems(errors, 0);
    card.isShown = true;
    card.isSelected = m_selection->contains(skill.id);
    return card;
}

void CardPage::layOut(const QList<SkillGroup> &sections, bool areHeaded)
{
    QList<LibraryCard> cards;
    QList<LibraryHeading> headings;
    int row = 0;
    for (const SkillGroup &section : sections) {
        const QString countText = QString::number(section.totalCount) + u" compétences"_s;
        if (areHeaded)
            headings.append({section.category, countText, true, row, static_cast<int>(headings.size())});
        int place = 0;
        for (const SkillSummary &skill : section.skills) {
            cards.append(card(skill));
            cards.last().row = row + place / m_columns;
            cards.last().column = place % m_columns;
            cards.last().headersAbove = static_cast<int>(headings.size());
            ++place;
        }
        row += (place + m_columns - 1) / m_columns;
    }
    m_rowCount = row;
    show(std::move(cards), std::move(headings));
}

/// Adds places without a card, so that there are as many as the fullest page of this library can need.
void CardPage::show(QList<LibraryCard> cards, QList<LibraryHeading> headings)
{
    m_cardCount = static_cast<int>(cards.size());
    m_headingCount = static_cast<int>(headings.size());
    const auto overview = m_model->overview();
    const qsizetype skills = overview ? overview->skills.size() : 0;
    const qsizetype categories = overview ? overview->categories.size() + 1 : 0;
    const qsizetype mostCards = std::min<qsizetype>(skills, Pagination::defaultPageSize);
    cards.resize(std::max<qsizetype>(mostCards, m_cards.rowCount()));
    headings.resize(std::max<qsizetype>(std::min(mostCards, categories), m_headings.rowCount()));
    m_cards.setRecords(cards);
    m_headings.setRecords(headings);
}

} // namespace vornel
