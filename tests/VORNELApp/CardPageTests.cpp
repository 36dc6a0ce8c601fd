/// What the library's screen is made of: its page, its selection, and the text of a drag.

#include "Scratch.h"

#include <VORNELApp/Actions/DragPayload.h>
#include <VORNELApp/Categories/CategoryListModel.h>
#include <VORNELApp/Library/CardPage.h>
#include <VORNELInfrastructure/Drafts/LocalDrafts.h>

#include <QAbstractItemModelTester>
#include <QCoro/QCoroTask>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

SkillSummary skill(uint number, const QString &category)
{
    SkillSummary made;
    made.id = QUuid(number, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
    made.slug = u"s%1"_s.arg(number);
    made.displayName = made.slug;
    made.category = category;
    made.updatedAt = QDateTime::currentDateTimeUtc().addDays(-3);
    return made;
}

QList<SkillSummary> skills(uint count, const QString &category = SkillCategory::otherID)
{
    QList<SkillSummary> made;
    for (uint number = 1; number <= count; ++number)
        made.append(skill(number, category));
    return made;
}

/// A service that answers with the skills it is given.
class GivenSkills : public LocalWorkspaceService
{
public:
    GivenSkills() : LocalWorkspaceService(std::make_shared<PosixFileSystem>()) {}

    QFuture<WorkspaceOverview> bootstrap(std::filesystem::path /*workspaceURL*/,
                                         std::filesystem::path /*claudeRoot*/,
                                         std::filesystem::path /*codexRoot*/) override
    {
        return QtFuture::makeReadyFuture(WorkspaceOverview{{}, given, {}, SkillCategory::defaults()});
    }

    QList<SkillSummary> given;
};

struct CardPageTest : testing::Test
{
    CardPageTest()
    {
        selection.setProperty("model", QVariant::fromValue(&model));
        page.setProperty("model", QVariant::fromValue(&model));
        page.setProperty("selection", QVariant::fromValue(&selection));
        page.setProperty("columns", 2);
    }

    void give(const QList<SkillSummary> &list)
    {
        service->given = list;
        QCoro::waitFor(model.start());
    }

    LibraryCard card(int index) { return record<LibraryCard>(*page.cards(), index); }
    LibraryHeading heading(int index) { return record<LibraryHeading>(*page.headings(), index); }

    template <typename T>
    static T record(const QAbstractItemModel &list, int row)
    {
        return list.index(row, 0).data(Qt::UserRole).value<T>();
    }

    std::shared_ptr<GivenSkills> service = std::make_shared<GivenSkills>();
    AppModel model{service,
                   {},
                   {},
                   {},
                   std::make_shared<QSettings>(u"/dev/null"_s, QSettings::IniFormat),
                   std::make_shared<LocalDrafts>(std::make_shared<PosixFileSystem>(), "/nowhere")};
    SkillSelection selection;
    CardPage page;
};

TEST(DragPayload, CarriesSkillsAsOneTextAndSkipsWhatIsForeign)
{
    const QUuid first(u"0A3F0E1C-8C7B-4E57-9B1F-0123456789AB"_s);
    const QUuid second(u"FA3F0E1C-8C7B-4E57-9B1F-0123456789AB"_s);
    const QString both = u"vornel-skills:0A3F0E1C-8C7B-4E57-9B1F-0123456789AB,"
                         "FA3F0E1C-8C7B-4E57-9B1F-0123456789AB"_s;
    EXPECT_EQ(DragPayload::encode({second, first}), both);

    struct Case
    {
        QStringList texts;
        QSet<QUuid> ids;
    };
    for (const Case &c : {
             Case{{both}, {first, second}},
             Case{{u"bonjour"_s, both.toLower()}, {first, second}},
             Case{{u"vornel-skills:,abc,,"_s + second.toString(QUuid::WithoutBraces)}, {second}},
             Case{{u"vornel-skills:"_s + first.toString(), u"vornel-skills:"_s}, {}}, // with braces
             Case{{u" "_s + both, u"other-skills:"_s + first.toString(QUuid::WithoutBraces)}, {}},
             Case{{}, {}},
         })
        EXPECT_EQ(DragPayload::decode(c.texts), c.ids) << c.texts.join(u' ').toStdString();
}

TEST_F(CardPageTest, AnotherPageOrFilterMovesNoRow)
{
    const QAbstractItemModelTester tester(page.cards(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    give(skills(30));
    ASSERT_EQ(page.cards()->rowCount(), 24);
    int moved = 0;
    const auto count = [&moved] { ++moved; };
    for (QAbstractItemModel *list : {page.cards(), page.headings()}) {
        QObject::connect(list, &QAbstractItemModel::rowsInserted, list, count);
        QObject::connect(list, &QAbstractItemModel::rowsRemoved, list, count);
        QObject::connect(list, &QAbstractItemModel::modelReset, list, count);
    }
    page.setCurrentPage(2);
    EXPECT_EQ(page.cardCount(), 6);
    EXPECT_TRUE(card(5).isShown);
    EXPECT_FALSE(card(6).isShown);
    EXPECT_EQ(card(0).age, u"il y a 3 jours"_s);
    model.setSelectedCategory(u"design"_s);
    EXPECT_EQ(page.cardCount(), 0);
    EXPECT_FALSE(heading(0).isShown);
    page.clearFilters();
    model.setSearchText(u"s2"_s);
    EXPECT_EQ(page.skillCount(), 11);
    give(skills(2));
    EXPECT_EQ(page.cardCount(), 1);
    EXPECT_EQ(moved, 0);
}

TEST_F(CardPageTest, BeginsAnewWithOtherResults)
{
    give(skills(25));
    page.setCurrentPage(2);
    int turns = 0;
    QObject::connect(&page, &CardPage::turned, &page, [&turns] { ++turns; });
    give(skills(24));
    EXPECT_EQ(page.currentPage(), 1);
    EXPECT_EQ(page.pageCount(), 1);
    EXPECT_EQ(turns, 1) << "the page before comes at its top";
    page.setCurrentPage(2);
    EXPECT_EQ(turns, 1) << "there is no such page";

    give(skills(60));
    for (const auto &change : std::initializer_list<std::function<void()>>{
             [this] { model.setSearchText(u"s"_s); },
             [this] { model.setSelectedMaturity(Maturity::draft); },
             [this] { model.setSelectedCategory(SkillCategory::otherID); },
             [this] { page.clearFilters(); },
         }) {
        page.setCurrentPage(3);
        change();
        EXPECT_EQ(page.currentPage(), 1);
    }
    EXPECT_EQ(model.searchText(), u"s"_s);
    EXPECT_FALSE(page.isFiltered());
}

TEST_F(CardPageTest, StandsEachSectionOnRowsOfItsOwn)
{
    QList<SkillSummary> list = skills(3, u"quality"_s);
    list.append({skill(4, u"design"_s), skill(5, u"gone"_s)});
    give(list);
    ASSERT_EQ(page.headingCount(), 3);
    EXPECT_EQ(heading(0).countText, u"3 compétences"_s);
    EXPECT_EQ(heading(1).row, 2);
    EXPECT_EQ(heading(2).category.name, u"Sans catégorie"_s);
    EXPECT_EQ(heading(2).countText, u"1 compétences"_s);
    EXPECT_EQ(card(4).category.id, SkillCategory::otherID);

    struct Place
    {
        int row;
        int column;
        int headersAbove;
    };
    const std::vector<Place> places{{0, 0, 1}, {0, 1, 1}, {1, 0, 1}, {2, 0, 2}, {3, 0, 3}};
    for (int index = 0; index < 5; ++index) {
        const Place &place = places.at(static_cast<std::size_t>(index));
        EXPECT_EQ(card(index).row, place.row) << index;
        EXPECT_EQ(card(index).column, place.column) << index;
        EXPECT_EQ(card(index).headersAbove, place.headersAbove) << index;
    }
    EXPECT_EQ(page.rowCount(), 4);
    EXPECT_EQ(page.indexAt(0, 1), 1);
    EXPECT_EQ(page.indexAt(2, 1), 3);
    EXPECT_EQ(page.indexAt(4, 0), -1);

    model.setSelectedCategory(u"quality"_s);
    EXPECT_EQ(page.categoryName(), u"Qualité"_s);
    EXPECT_EQ(page.headingCount(), 0);
    EXPECT_EQ(card(0).headersAbove, 0);
}

TEST_F(CardPageTest, SkillsThatAreGoneLeaveTheSelection)
{
    const QList<SkillSummary> list = skills(40);
    give(list);
    EXPECT_EQ(selection.carriedCount(list.at(0).id), 1);
    selection.toggle(list.at(0).id);
    selection.toggle(list.at(1).id);
    EXPECT_TRUE(selection.isSelecting() && card(0).isSelected);
    EXPECT_EQ(selection.payload(list.at(0).id), DragPayload::encode({list.at(0).id, list.at(1).id}));
    EXPECT_EQ(selection.payload(list.at(2).id), DragPayload::encode({list.at(2).id}));

    model.setSearchText(u"s3"_s);
    EXPECT_EQ(selection.countText(), u"0 sélectionnées · 2 masquées"_s);
    selection.selectAll();
    EXPECT_EQ(selection.countText(), u"11 sélectionnées · 2 masquées"_s);
    EXPECT_TRUE(selection.holdsAll());
    model.setSearchText({});
    EXPECT_EQ(selection.count(), 13);
    EXPECT_FALSE(selection.holdsAll());
    model.setSearchText(u"s3"_s);
    selection.selectNone();
    model.setSearchText({});
    EXPECT_EQ(selection.count(), 2) << "what is hidden is left alone";

    give(list.first(1));
    EXPECT_EQ(selection.count(), 1);
    EXPECT_TRUE(selection.isSelecting());
    give({});
    EXPECT_EQ(selection.count(), 0);
    EXPECT_FALSE(selection.isSelecting());
}

TEST_F(CardPageTest, CountsTheSkillsOfEachCategoryWhateverTheFilters)
{
    CategoryListModel categories;
    categories.setProperty("beginsWithAll", true);
    categories.setProperty("model", QVariant::fromValue(&model));
    give({skill(1, u"design"_s), skill(2, u"Design"_s), skill(3, u"quality"_s), skill(4, u"gone"_s)});
    model.setSearchText(u"introuvable"_s);
    QStringList names;
    for (const CategoryEntry &entry : categories.records())
        names.append(entry.spokenName());
    EXPECT_EQ(names, (QStringList{u"Toutes, 4 compétences"_s, u"Développement, 0 compétences"_s,
                                  u"Qualité, 1 compétence"_s, u"Opérations, 0 compétences"_s,
                                  u"Design, 2 compétences"_s, u"Connaissance, 0 compétences"_s,
                                  u"Autre, 0 compétences"_s}));
}

} // namespace
} // namespace vornel
