/// The list that tells its views only what changed, checked against Qt's own tester of models.

#include <VORNELApp/Lists/KeyedListModel.h>
#include <VORNELCore/Records/WorkspaceModels.h>

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

#include <random>

namespace vornel {
namespace {

TEST(KeyedListModel, TellsItsViewsExactlyWhatChanged)
{
    KeyedListModel<SkillSummary> model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QList<SkillSummary> records(60);
    for (qsizetype number = 0; number < records.size(); ++number)
        records[number].id = QUuid(static_cast<uint>(number + 1), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
    std::mt19937 random(7); // NOLINT: the same lists at every run
    for (int round = 0; round < 2000; ++round) {
        const auto pick = [&random](unsigned bound) { return static_cast<qsizetype>(random() % bound); };
        std::swap(records[pick(60)], records[pick(60)]);
        records[pick(60)].revision = round;
        const QList<SkillSummary> shown = records.mid(pick(20), round % 10 == 0 ? 0 : 30 + pick(30));
        model.setRecords(shown);
        ASSERT_EQ(model.rowCount(), shown.size());
        for (int row = 0; row < shown.size(); ++row)
            ASSERT_EQ(model.index(row).data(Qt::UserRole).value<SkillSummary>(), shown.at(row)) << round;
    }
}

TEST(KeyedListModel, RowsThatStayKeepTheirIndex)
{
    QList<SkillSummary> records(5);
    for (SkillSummary &record : records)
        record.id = QUuid::createUuid();
    KeyedListModel<SkillSummary> model;
    model.setRecords(records);
    const QPersistentModelIndex third = model.index(2);
    model.setRecords({records.at(4), records.at(2), records.at(0)});
    EXPECT_EQ(third.row(), 1);
    EXPECT_EQ(third.data(Qt::UserRole).value<SkillSummary>(), records.at(2));
}

} // namespace
} // namespace vornel
