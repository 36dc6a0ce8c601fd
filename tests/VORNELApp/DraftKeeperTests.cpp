/// What keeps an unsaved text while it is typed, and what ends the program.

#include "Scratch.h"

#include <VORNELApp/Drafts/DraftKeeper.h>
#include <VORNELApp/Process/TerminationSignals.h>

#include <QSignalSpy>
#include <QTest>

#include <chrono>
#include <csignal>
#include <deque>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace vornel {
namespace {

/// Drafts that are written when the test says so, in the order in which they were asked for.
class GivenDrafts : public DraftKeeping
{
public:
    struct Write
    {
        QUuid id;
        QString text;
        QPromise<void> promise;

        void succeed() { promise.finish(); }
        void fail()
        {
            promise.setException(std::make_exception_ptr(std::runtime_error("refused")));
            promise.finish();
        }
    };

    QFuture<void> keepDraft(QUuid id, UnsavedText text) override
    {
        Write &write = writes.emplace_back(id, text.text);
        write.promise.start();
        QFuture<void> future = write.promise.future();
        if (refusals > 0 && refusals-- > 0)
            write.fail();
        else if (isPrompt)
            write.succeed();
        return future;
    }

    QFuture<std::optional<KeptDraft>> draft(QUuid /*id*/) override { return {}; }
    QFuture<void> discardDraft(QUuid /*id*/) override { return {}; }
    QFuture<QList<DraftFile>> files() override { return {}; }
    QFuture<void> discardFile(DraftFile /*file*/) override { return {}; }

    std::deque<Write> writes;
    bool isPrompt = false; ///< whether a write is done at once
    int refusals = 0;      ///< how many writes fail at once
};

struct KeeperTest : testing::Test
{
    KeeperTest() { keeper.begin(first, {}); }

    void type(const QString &typed)
    {
        text = typed;
        keeper.keepSoon();
    }

    /// Lets time pass until there are so many writes, and tells whether they came in time.
    bool awaitWrites(size_t count, std::chrono::milliseconds patience = 2s)
    {
        return QTest::qWaitFor([&] { return drafts.writes.size() >= count; },
                               static_cast<int>(patience.count()));
    }

    const QUuid first = QUuid::createUuid();
    const QUuid second = QUuid::createUuid();
    GivenDrafts drafts;
    QString text;
    DraftKeeper keeper{drafts, [this] { return UnsavedText{text, u"base"_s, {}}; }};
};

TEST_F(KeeperTest, AFailureIsOfTheSkillWhoseTextItWas)
{
    type(u"un"_s);
    ASSERT_TRUE(awaitWrites(1));
    keeper.begin(second, {});
    type(u"deux"_s);
    drafts.writes.front().fail();
    ASSERT_TRUE(awaitWrites(2)) << "the other skill's text waits for nothing";
    EXPECT_EQ(keeper.failure(), QString());
    EXPECT_EQ(drafts.writes.back().id, second);
    EXPECT_EQ(drafts.writes.back().text, u"deux"_s);

    drafts.writes.back().fail();
    EXPECT_TRUE(QTest::qWaitFor([this] { return keeper.failure() == u"refused"_s; }));
    type(u"deux et demi"_s);
    ASSERT_TRUE(awaitWrites(3)) << "who types on is kept as soon as ever";
    drafts.writes.back().succeed();
    EXPECT_TRUE(QTest::qWaitFor([this] { return keeper.failure().isEmpty(); }));
}

TEST_F(KeeperTest, TheEndWaitsUntilTheTextIsKept)
{
    type(u"avant"_s);
    ASSERT_TRUE(awaitWrites(1));
    text = u"après"_s;
    drafts.isPrompt = true;
    drafts.refusals = 3;
    keeper.keepNow();
    EXPECT_EQ(keeper.failure(), QString());
    EXPECT_EQ(drafts.writes.size(), 5U);
    EXPECT_EQ(drafts.writes.back().text, u"après"_s);
    drafts.writes.front().fail();
    QTest::qWait(50);
    EXPECT_EQ(keeper.failure(), QString()) << "an earlier text that could not be kept is no matter";

    drafts.refusals = 1'000;
    keeper.keepNow();
    EXPECT_EQ(keeper.failure(), u"refused"_s);
}

TEST(TerminationSignals, TheSecondEndsTheProcessOnceTheFirstIsDealtWith)
{
    const auto end = [](bool isDealtWith) {
        TerminationSignals signals;
        QObject::connect(&signals, &TerminationSignals::received, qApp, [isDealtWith] {
            if (!isDealtWith)
                std::raise(SIGTERM);
            std::fputs("dealt with", stderr);
        });
        std::raise(SIGINT);
        QCoreApplication::processEvents();
        std::raise(SIGTERM);
    };
    EXPECT_EXIT(end(true), testing::KilledBySignal(SIGTERM), "dealt with");
    EXPECT_EXIT(end(false), testing::KilledBySignal(SIGTERM), "dealt with");
    {
        TerminationSignals signals;
        const QSignalSpy received(&signals, &TerminationSignals::received);
        std::raise(SIGINT);
        EXPECT_TRUE(QTest::qWaitFor([&] { return received.count() == 1; }));
    }
}

} // namespace
} // namespace vornel
