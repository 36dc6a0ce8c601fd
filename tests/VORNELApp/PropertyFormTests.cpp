/// What the user changes beside the text of a skill, and of several at once, on the real service.

#include "Scratch.h"

#include <VORNELApp/Properties/PropertyForm.h>
#include <VORNELApp/Properties/SelectionPropertyForm.h>
#include <VORNELApp/Properties/SkillFacts.h>
#include <VORNELApp/Properties/TagSuggestions.h>
#include <VORNELCore/Library/Wording.h>
#include <VORNELInfrastructure/Drafts/LocalDrafts.h>

#include <QCoro/QCoroTask>
#include <QSignalSpy>
#include <QTest>
#include <QTextCursor>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

std::shared_ptr<LocalWorkspaceService> newService()
{
    return std::make_shared<LocalWorkspaceService>(std::make_shared<PosixFileSystem>(), FailureScope::Skill);
}

/// "audit" is open in an editor and in a form; "notes" has tags.
struct PropertyFormTest : testing::Test
{
    PropertyFormTest()
    {
        QCoro::waitFor(model->start());
        notes = create(u"notes"_s, {u"audit"_s, u"écriture"_s});
        create(u"plan"_s, {u"écriture"_s, u"équipe"_s});
        audit = create(u"audit"_s, {});
        model->openSkill()->edit(&document);
        form.setProperty("model", QVariant::fromValue(model.get()));
        settle();
    }

    QUuid create(const QString &slug, const QStringList &tags) const
    {
        CreateSkillRequest request = requestFor(slug);
        request.tags = tags;
        EXPECT_TRUE(QCoro::waitFor(model->createSkill(request)));
        return model->selectedSkillID();
    }

    void settle() const
    {
        QTest::qWait(0);
        const auto isDone = [this] {
            return !model->isBusy() && model->openSkill()->state() != OpenSkill::Saving;
        };
        EXPECT_TRUE(QTest::qWaitFor(isDone));
    }

    /// Submits the form, and tells whether that succeeded.
    bool submit()
    {
        const QSignalSpy accepted(&form, &EntryForm::accepted);
        form.submit();
        settle();
        return accepted.count() == 1;
    }

    const SkillManifest &shown() const { return model->selectedSkill()->manifest; }

    Scratch scratch;
    std::unique_ptr<AppModel> model = std::make_unique<AppModel>(
        newService(), scratch.path("workspace"), scratch.path("claude"), scratch.path("codex"),
        std::make_shared<QSettings>(u"/dev/null"_s, QSettings::IniFormat),
        std::make_shared<LocalDrafts>(std::make_shared<PosixFileSystem>(), scratch.path("workspace")));
    QTextDocument document;
    PropertyForm form;
    QUuid audit;
    QUuid notes;
};

TEST_F(PropertyFormTest, SavesARevisionOverWhichTheTextIsSavedAsUsual)
{
    QTextCursor(&document).insertText(u"x"_s);
    EXPECT_FALSE(form.isModified());
    form.setDisplayName(u"  "_s);
    EXPECT_FALSE(form.isValid());
    form.setDisplayName(u" Audit complet "_s);
    form.addTags(u"Web, API,"_s);
    form.setTypedTag(u"sûreté"_s);
    form.setMaturity(Maturity::ready);
    EXPECT_TRUE(submit());
    EXPECT_EQ(SkillProperties::of(shown()), (SkillProperties{u"audit"_s,
                                                             u"Audit complet"_s,
                                                             requestFor(u"audit"_s).summary,
                                                             requestFor(u"audit"_s).category,
                                                             {u"api"_s, u"sûreté"_s, u"web"_s},
                                                             Maturity::ready}));
    EXPECT_EQ(shown().revision, 2);
    EXPECT_FALSE(form.isModified());
    EXPECT_EQ(form.overtaken(), QString());
    EXPECT_EQ(model->openSkill()->state(), OpenSkill::Modified);

    form.setSummary(u"pas encore enregistrée"_s);
    model->openSkill()->save();
    settle();
    EXPECT_EQ(model->openSkill()->state(), OpenSkill::Clean);
    EXPECT_EQ(shown().revision, 3);
    EXPECT_EQ(form.summary(), u"pas encore enregistrée"_s);
    EXPECT_TRUE(submit()) << "which the text's revision doesn't stand in the way of";
    EXPECT_EQ(shown().summary, u"pas encore enregistrée"_s);
}

TEST_F(PropertyFormTest, LosesNothingThatWasTypedToAChangeElsewhere)
{
    form.setDisplayName(u"Le mien"_s);
    const auto elsewhere = newService();
    elsewhere->bootstrap(scratch.path("workspace"), scratch.path("claude"), scratch.path("codex")).result();
    elsewhere->setProperties({audit}, {.displayName = u"Le leur"_s, .summary = u"Ailleurs"_s}, {}).result();
    EXPECT_FALSE(submit());
    EXPECT_NE(form.refusal(), QString());
    EXPECT_EQ(model->errorMessage(), QString()) << "the form tells it";
    EXPECT_EQ(form.displayName(), u"Le mien"_s);
    EXPECT_EQ(form.summary(), u"Ailleurs"_s);
    EXPECT_EQ(form.overtaken(), u"nom"_s);
    EXPECT_TRUE(submit());
    EXPECT_EQ(shown().displayName, u"Le mien"_s);
    EXPECT_EQ(shown().summary, u"Ailleurs"_s);
    EXPECT_EQ(form.overtaken(), QString());

    form.setDisplayName(u"Encore"_s);
    form.reset();
    EXPECT_EQ(form.displayName(), u"Le mien"_s);
    form.setDisplayName(u"Encore"_s);
    model->selectSkill(notes);
    settle();
    EXPECT_EQ(form.displayName(), u"notes"_s);
    EXPECT_FALSE(form.isModified());
}

TEST_F(PropertyFormTest, RenamesTheFolderAndBothCopies)
{
    QTextCursor(&document).insertText(u"x"_s);
    for (const auto &[slug, problem] :
         {std::pair(u"Audit"_s, u"Utilisez uniquement des lettres, chiffres et tirets."_s),
          std::pair(u"notes"_s, u"Une compétence porte déjà cet identifiant."_s)}) {
        form.setSlug(slug);
        EXPECT_EQ(form.slugProblem(), problem);
        EXPECT_EQ(form.newSlug(), QString());
    }
    form.setSlug(u"revue"_s);
    EXPECT_EQ(form.newSlug(), u"revue"_s);
    EXPECT_TRUE(submit());
    for (const char *folder : {"workspace/skills/", "claude/", "codex/"}) {
        EXPECT_TRUE(fs::exists(scratch.path(folder + std::string("revue/SKILL.md"))));
        EXPECT_FALSE(fs::exists(scratch.path(folder + std::string("audit"))));
    }
    model->openSkill()->save();
    settle();
    EXPECT_EQ(model->openSkill()->state(), OpenSkill::Clean);
    EXPECT_EQ(bytesOf(scratch.path("codex/revue/SKILL.md")).front(), 'x');
}

TEST_F(PropertyFormTest, ChangesSeveralSkillsInOneStep)
{
    SelectionPropertyForm several;
    several.setProperty("model", QVariant::fromValue(model.get()));
    several.begin({notes, audit});
    EXPECT_EQ(several.presentTags(), (QStringList{u"audit"_s, u"écriture"_s}));
    EXPECT_FALSE(several.isModified());
    several.setCategory(u"design"_s);
    several.setMaturityChoice(2);
    several.toggleRemoved(u"écriture"_s);
    several.toggleRemoved(u"audit"_s);
    several.addTags(u"audit"_s);
    EXPECT_EQ(several.removedTags(), QStringList{u"écriture"_s}) << "what is added isn't removed";
    several.setTypedTag(u"lot"_s);
    several.submit();
    settle();
    for (const SkillSummary &skill : model->overview()->skills) {
        if (skill.slug == u"plan"_s)
            continue;
        EXPECT_EQ(skill.category, u"design"_s);
        EXPECT_EQ(skill.maturity, Maturity::ready);
        EXPECT_EQ(skill.tags, (QStringList{u"audit"_s, u"lot"_s}));
    }
    EXPECT_EQ(form.category(), u"design"_s) << "the skill that is open follows";
    model->undo();
    settle();
    EXPECT_EQ(shown().tags, QStringList());
    EXPECT_EQ(shown().category, requestFor(u"audit"_s).category);
    EXPECT_TRUE(model->isRedoable()) << "all of it was one step";
}

TEST_F(PropertyFormTest, SuggestsTheTagsThatAreMeant)
{
    TagSuggestions suggestions;
    suggestions.setModel(model.get());
    EXPECT_EQ(suggestions.tags(), (QStringList{u"écriture"_s, u"audit"_s, u"équipe"_s}));
    suggestions.setTyped(u" É"_s);
    EXPECT_EQ(suggestions.tags(), (QStringList{u"écriture"_s, u"équipe"_s}));
    suggestions.setChosen({u"écriture"_s});
    EXPECT_EQ(suggestions.tags(), QStringList{u"équipe"_s});
}

TEST_F(PropertyFormTest, TellsHowLargeTheSkillIs)
{
    scratch.write("workspace/skills/audit/references/liste.md", std::string(2'000, 'x'));
    SkillFacts facts;
    facts.setModel(model.get());
    const auto size = static_cast<qint64>(fs::file_size(scratch.path("workspace/skills/audit/SKILL.md")));
    const QString text = Wording::fileSize(size + 2'000);
    EXPECT_TRUE(QTest::qWaitFor([&] { return facts.size() == text; })) << facts.size().toStdString();
    EXPECT_EQ(facts.revision(), u"1"_s);
}

} // namespace
} // namespace vornel
