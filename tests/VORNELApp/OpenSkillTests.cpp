/// What becomes of the skill that is edited: each way from one state to another, on the real service.

#include "Scratch.h"

#include <VORNELApp/Model/AppModel.h>
#include <VORNELInfrastructure/Drafts/LocalDrafts.h>

#include <QCoro/QCoroTask>
#include <QSignalSpy>
#include <QTest>
#include <QTextCursor>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

/// "audit" is open in an editor, with the text "texte".
struct OpenSkillTest : testing::Test
{
    OpenSkillTest()
    {
        QCoro::waitFor(model->start());
        EXPECT_TRUE(QCoro::waitFor(model->createSkill(requestFor(u"audit"_s))));
        EXPECT_TRUE(QCoro::waitFor(model->saveSelectedSkill(u"texte"_s)));
        skill.edit(document.get());
        settle();
        EXPECT_EQ(skill.state(), OpenSkill::Clean);
    }

    /// Waits for what is under way, looks at copies included.
    void settle() const
    {
        QTest::qWait(0);
        const auto isDone = [this] {
            return !model->isBusy() && skill.state() != OpenSkill::Saving && copies.count() > 0;
        };
        EXPECT_TRUE(QTest::qWaitFor(isDone));
    }

    void type(const QString &text) const { QTextCursor(document.get()).insertText(text); }

    /// Saves, and waits for one of these states.
    void saveUntil(OpenSkill::State state)
    {
        bool wasSaving = false;
        const QObject observer;
        QObject::connect(&skill, &OpenSkill::stateChanged, &observer,
                         [&] { wasSaving |= skill.state() == OpenSkill::Saving; });
        skill.save();
        EXPECT_TRUE(wasSaving);
        EXPECT_TRUE(QTest::qWaitFor([this, state] { return skill.state() == state && !model->isBusy(); }));
    }

    void writeElsewhere(const char *text) { scratch.write("workspace/skills/audit/SKILL.md", text); }
    std::string saved() { return bytesOf(scratch.path("workspace/skills/audit/SKILL.md")); }
    std::string installed() { return bytesOf(scratch.path("claude/audit/SKILL.md")); }

    Scratch scratch;
    std::unique_ptr<AppModel> model = std::make_unique<AppModel>(
        std::make_shared<LocalWorkspaceService>(std::make_shared<PosixFileSystem>(), FailureScope::Skill),
        scratch.path("workspace"), scratch.path("claude"), scratch.path("codex"),
        std::make_shared<QSettings>(u"/dev/null"_s, QSettings::IniFormat),
        std::make_shared<LocalDrafts>(std::make_shared<PosixFileSystem>(), scratch.path("workspace")));
    OpenSkill &skill = *model->openSkill();
    Departure &departure = *model->departure();
    QSignalSpy refusals{&skill, &OpenSkill::refused};
    QSignalSpy exits{&departure, &Departure::left};
    QSignalSpy copies{skill.replacement()->copies(), &SkillCopies::looked};
    std::unique_ptr<QTextDocument> document = std::make_unique<QTextDocument>();
};

TEST_F(OpenSkillTest, IsModifiedUntilTheEditsAreSavedOrUndone)
{
    type(u"x"_s);
    EXPECT_EQ(skill.state(), OpenSkill::Modified);
    document->undo();
    EXPECT_EQ(skill.state(), OpenSkill::Clean);
    type(u"x"_s);
    saveUntil(OpenSkill::Clean);
    EXPECT_EQ(saved(), "xtexte");
    EXPECT_EQ(installed(), "xtexte");
}

TEST_F(OpenSkillTest, IsClosedWithItsDocumentAndOpenInAnother)
{
    type(u"x"_s);
    EXPECT_TRUE(departure.isGuarded());
    QTextDocument next;
    skill.edit(&next);
    document.reset();
    EXPECT_EQ(next.toPlainText(), u"texte"_s) << "the former document took its edits along";
    EXPECT_EQ(skill.state(), OpenSkill::Clean);
    EXPECT_FALSE(departure.isGuarded());
    settle();
    auto last = std::make_unique<QTextDocument>();
    skill.edit(last.get());
    last.reset();
    EXPECT_EQ(skill.state(), OpenSkill::Closed);
    skill.synchronize();
    EXPECT_EQ(skill.state(), OpenSkill::Closed);
}

TEST_F(OpenSkillTest, IsStaleWhereTheTextOnTheDiskIsAnother)
{
    type(u"x"_s);
    writeElsewhere("autre");
    saveUntil(OpenSkill::Stale);
    EXPECT_EQ(refusals.count(), 1);
    EXPECT_EQ(saved(), "autre");

    skill.reload();
    EXPECT_TRUE(QTest::qWaitFor([this] { return skill.state() == OpenSkill::Clean; }));
    EXPECT_EQ(document->toPlainText(), u"autre"_s);
    settle();
    type(u"y"_s);
    writeElsewhere("encore");
    saveUntil(OpenSkill::Stale);
    skill.overrule();
    EXPECT_TRUE(QTest::qWaitFor([this] { return skill.state() == OpenSkill::AskingToReplace; }));
    skill.replacement()->agree();
    EXPECT_TRUE(QTest::qWaitFor([this] { return skill.state() == OpenSkill::Clean; }));
    EXPECT_EQ(saved(), "yautre");
    settle();
}

TEST_F(OpenSkillTest, IsGoneWithTheSkillAndBackWithIt)
{
    type(u"x"_s);
    const auto here = scratch.path("workspace/skills/audit");
    const auto away = scratch.path("audit");
    std::filesystem::rename(here, away);
    model->refreshOverview();
    settle();
    EXPECT_EQ(skill.state(), OpenSkill::Gone);
    saveUntil(OpenSkill::Gone);
    EXPECT_EQ(refusals.count(), 1);
    std::filesystem::rename(away, here);
    model->refreshOverview();
    settle();
    EXPECT_EQ(skill.state(), OpenSkill::Modified);
}

TEST_F(OpenSkillTest, AsksBeforeItReplacesACopyThatWasEdited)
{
    scratch.write("claude/audit/SKILL.md", "édité");
    skill.synchronize();
    EXPECT_TRUE(QTest::qWaitFor([this] { return skill.state() == OpenSkill::AskingToReplace; }));
    skill.replacement()->decline();
    EXPECT_EQ(skill.state(), OpenSkill::Clean);
    EXPECT_EQ(installed(), "édité");

    type(u"x"_s);
    saveUntil(OpenSkill::AskingToReplace);
    EXPECT_EQ(saved(), "texte");
    writeElsewhere("autre");
    skill.replacement()->agree();
    EXPECT_TRUE(QTest::qWaitFor([this] { return skill.state() == OpenSkill::Stale; }))
        << "what was written while the user was asked is looked at";
    EXPECT_EQ(installed(), "édité");
    EXPECT_EQ(saved(), "autre");
    settle();
}

TEST_F(OpenSkillTest, KeepsTheEditsBesideAVersionThatIsAdoptedInsteadOfThem)
{
    scratch.write("claude/audit/SKILL.md", "édité");
    type(u"x"_s);
    departure.leave(Departure::ToCreation);
    saveUntil(OpenSkill::AskingToReplace);
    model->adoption()->adopt(model->selectedSkillID(), TargetKind::claude);
    EXPECT_TRUE(QTest::qWaitFor([this] { return skill.state() == OpenSkill::Stale; }));
    settle();
    EXPECT_EQ(document->toPlainText(), u"xtexte"_s);
    EXPECT_EQ(saved(), "édité");
    EXPECT_EQ(exits.count(), 0);
    EXPECT_FALSE(departure.isPending());
}

TEST_F(OpenSkillTest, TellsOfHandEditsUntilTheyAreARevision)
{
    EXPECT_FALSE(skill.isEditedByHand());
    writeElsewhere("à la main");
    model->reload();
    EXPECT_TRUE(QTest::qWaitFor([this] { return skill.isEditedByHand(); }));
    model->adoption()->adoptHandEdits(model->selectedSkillID());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !skill.isEditedByHand() && !model->isBusy(); }));
    EXPECT_EQ(model->selectedSkill()->manifest.revision, 3);
    EXPECT_EQ(installed(), "à la main");
}

TEST_F(OpenSkillTest, AsksWhatBecomesOfTheEditsBeforeTheyAreLeft)
{
    departure.leave(Departure::ToCreation);
    EXPECT_EQ(exits.count(), 1) << "there is nothing to lose";
    type(u"x"_s);
    departure.leave(Departure::ToCreation);
    EXPECT_EQ(skill.state(), OpenSkill::Leaving);
    skill.stay();
    EXPECT_EQ(skill.state(), OpenSkill::Modified);
    EXPECT_EQ(exits.count(), 1);

    departure.leave(Departure::ToCreation);
    skill.discardAndLeave();
    EXPECT_EQ(skill.state(), OpenSkill::Clean);
    EXPECT_EQ(exits.count(), 2);
    EXPECT_EQ(document->toPlainText(), u"texte"_s);

    type(u"y"_s);
    departure.leaveFor(Destination::trash);
    saveUntil(OpenSkill::Clean);
    EXPECT_EQ(exits.count(), 3);
    EXPECT_EQ(model->selectedDestination(), Destination::trash);
    EXPECT_EQ(saved(), "ytexte");
    EXPECT_TRUE(model->selectedSkillID().isNull());
}

TEST_F(OpenSkillTest, SavesOnceHoweverOftenItIsAskedTo)
{
    int looks = 0;
    const auto insist = [this, &looks] {
        if (skill.replacement()->isLooking() && ++looks == 1)
            skill.save();
    };
    QObject::connect(skill.replacement(), &CopyReplacement::changed, &skill, insist);
    const qint64 before = model->selectedSkill()->manifest.revision;
    type(u"x"_s);
    saveUntil(OpenSkill::Clean);
    settle();
    EXPECT_EQ(looks, 1);
    EXPECT_EQ(model->selectedSkill()->manifest.revision, before + 1);

    scratch.write("claude/audit/SKILL.md", "édité");
    type(u"y"_s);
    saveUntil(OpenSkill::AskingToReplace);
    skill.save();
    settle();
    EXPECT_EQ(skill.state(), OpenSkill::AskingToReplace) << "the question waits for its answer";
    EXPECT_EQ(looks, 2);
    skill.replacement()->agree();
    EXPECT_TRUE(QTest::qWaitFor([this] { return skill.state() == OpenSkill::Clean; }));
    settle();
}

TEST_F(OpenSkillTest, ForgetsWithTheDocumentWhatWasUnderWay)
{
    type(u"x"_s);
    departure.leave(Departure::ToCreation);
    document.reset();
    EXPECT_FALSE(departure.isPending());
    QTextDocument next;
    skill.edit(&next);
    EXPECT_EQ(skill.state(), OpenSkill::Clean) << "nobody leaves what was just opened";
    EXPECT_EQ(exits.count(), 0);
    settle();

    QTextCursor(&next).insertText(u"y"_s);
    {
        const WorkspaceHold held(scratch.path("workspace"));
        skill.save();
        model->closeSkill();
        skill.edit(&next);
        EXPECT_NE(skill.state(), OpenSkill::Saving);
    }
    settle();
    EXPECT_EQ(refusals.count(), 0);
}

TEST_F(OpenSkillTest, ALookForAListEndsWithTheList)
{
    const auto copy = scratch.path("codex/audit");
    std::filesystem::remove_all(copy);
    {
        const WorkspaceHold held(scratch.path("workspace"));
        model->replacement()->synchronize(model->selectedSkillID());
        model->setSelectedDestination(Destination::trash);
    }
    QSignalSpy looks(model->replacement()->copies(), &SkillCopies::looked);
    EXPECT_TRUE(looks.wait());
    settle();
    EXPECT_FALSE(std::filesystem::exists(copy)) << "nobody waits for it any more";
    model->replacement()->synchronize(model->selectedSkillID());
    EXPECT_TRUE(QTest::qWaitFor([&copy] { return std::filesystem::exists(copy); }));
    settle();
}

TEST_F(OpenSkillTest, StaysWhereTheSaveThatWasToLeaveFails)
{
    type(u"x"_s);
    departure.leave(Departure::FromWindow);
    writeElsewhere("autre");
    saveUntil(OpenSkill::Stale);
    EXPECT_FALSE(departure.isPending());
    EXPECT_EQ(exits.count(), 0);
}

} // namespace
} // namespace vornel
