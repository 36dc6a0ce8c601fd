#include "FaultyFileSystem.h"
#include "Scratch.h"

#include <VORNELCore/Records/SerializedForms.h>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

class Properties : public testing::Test, protected TestWorkspace
{
protected:
    Properties() : TestWorkspace(std::make_shared<FaultyFileSystem>()), demo(create(u"demo"_s).manifest.id) {}

    SkillManifest set(const PropertyChange &change, std::optional<qint64> expected = {}) const
    {
        return service->setProperties({demo}, change, expected).result().first().manifest;
    }

    std::optional<Error> refusal(const PropertyChange &change, std::optional<qint64> expected = {}) const
    {
        return errorOf([&] { service->setProperties({demo}, change, expected).result(); });
    }

    /// All three roots, without what is noted of every revision.
    std::array<Tree, 3> everything() const { return {tree("workspace"), tree("claude"), tree("codex")}; }

    const QUuid demo;
};

TEST_F(Properties, AreARevisionOfTheirOwn)
{
    const Tree copy = tree("codex/demo");
    const SkillManifest changed = set({.displayName = u" Démo "_s,
                                       .summary = u"Pour voir"_s,
                                       .category = u" DESIGN "_s,
                                       .tags = QStringList{u" Web "_s, u"api"_s, u"web"_s},
                                       .maturity = Maturity::ready},
                                      1);
    EXPECT_EQ(changed.revision, 2);
    EXPECT_EQ(SkillProperties::of(changed),
              (SkillProperties{
                  u"demo"_s, u"Démo"_s, u"Pour voir"_s, u"design"_s, {u"api"_s, u"web"_s}, Maturity::ready}));
    EXPECT_EQ(set({.addedTags = {u"Zoé"_s, u"API"_s}, .removedTags = {u"WEB"_s}}).tags,
              (QStringList{u"api"_s, u"zoé"_s}));
    EXPECT_EQ(service->history(demo).result().size(), 3);
    EXPECT_EQ(tree("codex/demo"), copy);
    EXPECT_EQ(stateOf(u"demo"_s), SyncState::inSync);

    const auto before = everything();
    EXPECT_EQ(set({.displayName = u"Démo"_s, .addedTags = {u"api"_s}}).revision, 3) << "nothing changes";
    EXPECT_EQ(refusal({.displayName = u" "_s}), Error::integrityFailure(u"Le nom du skill est vide."_s));
    EXPECT_EQ(refusal({.category = u"x"_s}), Error::integrityFailure(u"Catégorie introuvable."_s));
    EXPECT_EQ(refusal({.displayName = u"x"_s}, 2), Error::revisionConflict(2, 3));
    const QUuid stranger = QUuid::createUuid();
    EXPECT_EQ(errorOf([&] {
                  service->setProperties({demo, stranger}, {.summary = u"x"_s}, {}).result();
              }),
              Error::skillNotFound(stranger));
    EXPECT_EQ(everything(), before) << "a refusal has changed something";
}

TEST_F(Properties, OfSeveralAreTakenBackTogether)
{
    const QUuid other = create(u"other"_s).manifest.id;
    const auto tags = [&] {
        return std::pair{service->loadSkill(demo).result().manifest.tags,
                         service->loadSkill(other).result().manifest.tags};
    };
    set({.tags = QStringList{u"a"_s}});
    service->setProperties({other, demo}, {.addedTags = {u"b"_s}}, {}).result();
    EXPECT_EQ(tags(), std::pair(QStringList({u"a"_s, u"b"_s}), QStringList{u"b"_s}));
    EXPECT_THROW(service->setProperties({other, demo}, {.slug = u"x"_s}, {}).result(), Error);
    service->setProperties({other}, {.addedTags = {u"b"_s}}, {}).result();
    EXPECT_FALSE(service->undoableStep()) << "nothing was changed";
}

TEST_F(Properties, CanBeThoseOfTheText)
{
    const QUuid other = create(u"other"_s).manifest.id;
    const QUuid broken = create(u"broken"_s).manifest.id;
    const auto write = [&](const QUuid &id, const QString &head) {
        service->saveSkill(id, 1, u"---\n"_s + head + u"---\nname: suite\n"_s).result();
    };
    write(demo, u"name: \"demo\"\ndescription: |-\n  Une ligne,\n  puis une autre\n"_s);
    write(other, u"description: Autre chose\n"_s);
    write(broken, u"name: [\n"_s);
    const auto before = everything();
    const PropertyChange change{.addedTags = {u"lu"_s}, .isFromText = true};
    const QList<SkillProperties> wanted = service->reviewProperties({demo, other, broken}, change).result();
    EXPECT_EQ(everything(), before) << "a review has changed something";
    const auto names = [](const auto &skill) { return skill.displayName + u" / "_s + skill.summary; };
    QStringList reviewed;
    std::ranges::transform(wanted, std::back_inserter(reviewed), names);
    EXPECT_EQ(reviewed[0], u"demo / Une ligne, puis une autre"_s);
    EXPECT_TRUE(reviewed[1].endsWith(u" / Autre chose"_s)) << reviewed[1].toStdString();
    EXPECT_EQ(wanted[2].tags, QStringList{u"lu"_s});

    QStringList written;
    const QList<SkillDetail> details = service->setProperties({demo, other, broken}, change, {}).result();
    std::ranges::transform(details, std::back_inserter(written),
                           [&](const SkillDetail &detail) { return names(detail.manifest); });
    EXPECT_EQ(written, reviewed);
    EXPECT_EQ(set({.summary = u"Mieux"_s, .isFromText = true}).summary, u"Mieux"_s);
}

/// Whatever the copies hold, hidden files and edits too, goes with them.
TEST_F(Properties, ASlugIsThatOfTheFolderAndOfBothCopies)
{
    write("codex/demo/own", "edited");
    write("claude/demo/.hidden", "hidden");
    const auto copies = [this](const char *slug) {
        return std::pair{tree(std::string("claude/") + slug), tree(std::string("codex/") + slug)};
    };
    const auto before = copies("demo");
    const SkillManifest renamed = set({.slug = u"renamed"_s, .summary = u"autre"_s});
    EXPECT_EQ(renamed.slug, u"renamed"_s);
    EXPECT_EQ(renamed.revision, 2);
    EXPECT_EQ(copies("renamed"), before);
    for (const char *root : {"workspace/skills", "claude", "codex"})
        EXPECT_EQ(names(root), std::vector<std::string>{"renamed"}) << root;
    EXPECT_EQ(names("workspace/.vornel/events"), std::vector<std::string>());

    service->undo(service->undoableStep().value().id).result();
    EXPECT_EQ(copies("demo"), before);
    EXPECT_EQ(service->loadSkill(demo).result().manifest.summary, QString());
    service->undo(service->undoableStep().value().id).result();
    EXPECT_EQ(service->loadSkill(demo).result().manifest.slug, u"renamed"_s);
}

/// What an interruption has left of it under the former slug doesn't come back.
TEST_F(Properties, ARenamedSkillIsNotMissingUnderItsFormerSlug)
{
    fs::copy(path("workspace/skills/demo"),
             path("workspace/.vornel/recovery/" + uuidText(QUuid::createUuid()).toStdString() +
                  "-canonical-demo"));
    write("workspace/skills/demo/SKILL.md", "by hand");
    fs::remove_all(path("workspace/.vornel/history/" + uuidText(demo).toStdString()));
    set({.slug = u"renamed"_s});
    service->emptyTrash().waitForFinished();
    EXPECT_EQ(names("workspace/skills"), std::vector<std::string>{"renamed"});
}

TEST_F(Properties, ASlugThatIsTakenAnywhereIsRefused)
{
    create(u"other"_s);
    service->moveToTrash(create(u"gone"_s).manifest.id).waitForFinished();
    write("codex/foreign/notes", "of somebody else");
    const auto before = everything();
    EXPECT_EQ(refusal({.slug = u"Bad"_s}), Error::invalidPath(PathViolation::invalidSlug));
    EXPECT_EQ(refusal({.slug = u"other"_s}), Error::duplicateSlug(u"other"_s));
    EXPECT_EQ(refusal({.slug = u"gone"_s}), Error::duplicateSlug(u"gone"_s));
    EXPECT_EQ(refusal({.slug = u"foreign"_s}),
              Error::integrityFailure(
                  u"Le dossier de Codex a déjà quelque chose du nom de «\u00A0foreign\u00A0»."_s));
    EXPECT_EQ(everything(), before);
}

TEST_F(Properties, ACopyThatCannotBeRenamedIsToldAndFollowsLater)
{
    write("codex/demo/own", "edited");
    auto &refuses = static_cast<FaultyFileSystem &>(*manager).refusesRename;
    refuses = [this](const fs::path &from, const fs::path &) { return from == path("codex/demo"); };
    EXPECT_EQ(refusal({.slug = u"renamed"_s}), Error::partialSync({TargetKind::codex}));
    EXPECT_EQ(stateOf(u"renamed"_s), SyncState::failed);
    EXPECT_EQ(bytesOf(path("codex/demo/own")), "edited");
    EXPECT_TRUE(fs::exists(path("claude/renamed/SKILL.md")));

    refuses = {};
    service->emptyTrash().waitForFinished();
    EXPECT_EQ(bytesOf(path("codex/renamed/own")), "edited");
    EXPECT_FALSE(fs::exists(path("codex/demo")));
    EXPECT_EQ(names("workspace/.vornel/events"), std::vector<std::string>());
}

} // namespace
} // namespace vornel
