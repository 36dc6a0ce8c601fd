#include "Scratch.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

class Library : public testing::Test, protected TestWorkspace
{
protected:
    QUuid createIn(const char *slug, const char *category)
    {
        const auto request = requestFor(QString::fromUtf8(slug), QString::fromUtf8(category));
        return service->createSkill(request).result().manifest.id;
    }

    SkillManifest manifestOf(const QUuid &id) { return service->loadSkill(id).result().manifest; }

    std::vector<std::string> history(const QUuid &id) const
    {
        std::vector<std::string> revisions;
        for (const std::string &name : names("workspace/.vornel/history/" + uuidText(id).toStdString()))
            revisions.push_back(name.substr(0, name.find('-')));
        return revisions;
    }
};

using Revisions = std::vector<std::string>;

TEST_F(Library, CreatesASkillInAllItsPlaces)
{
    CreateSkillRequest request{u"demo"_s,       u" Démo\n"_s, {}, u" Design "_s, {u"b"_s, u"A "_s, u"b"_s},
                               Maturity::ready, std::nullopt};
    const SkillDetail detail = service->createSkill(request).result();
    EXPECT_EQ(detail.manifest.displayName, u"Démo"_s);
    EXPECT_EQ(detail.manifest.category, u"design"_s);
    EXPECT_EQ(detail.manifest.tags, (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(detail.manifest.revision, 1);
    EXPECT_EQ(detail.manifest.createdAt, detail.manifest.updatedAt);
    EXPECT_EQ(detail.skillMD, u"---\nname: demo\ndescription: \n---\n\n# Démo\n\n"_s
                              u"Décrivez ici le fonctionnement de cette compétence."_s);
    EXPECT_EQ(detail.relativeFiles, (QStringList{u"SKILL.md"_s, u"vornel.json"_s}));
    EXPECT_EQ(detail.syncState, SyncState::inSync);
    EXPECT_EQ(service->loadSkill(detail.manifest.id).result(), detail);

    EXPECT_EQ(names("claude/demo"), (std::vector<std::string>{"SKILL.md"}));
    EXPECT_EQ(bytesOf(path("codex/demo/SKILL.md")), detail.skillMD.toStdString());
    EXPECT_EQ(permissionsOf(path("codex")), 0700);
    EXPECT_EQ(permissionsOf(path("workspace/skills/demo")), 0700);
    EXPECT_EQ(permissionsOf(path("workspace/skills/demo/vornel.json")), 0600);
    EXPECT_EQ(history(detail.manifest.id), Revisions{"1"});
    EXPECT_TRUE(names("workspace/.vornel/staging").empty());
}

TEST_F(Library, RefusesASkillThatCannotBe)
{
    create(u"demo"_s);
    const auto before = tree("");
    const auto refusal = [this](const char *slug, const char *name, const char *category) {
        CreateSkillRequest request = requestFor(QString::fromUtf8(slug), QString::fromUtf8(category));
        request.displayName = QString::fromUtf8(name);
        return errorOf([&] { service->createSkill(request).result(); });
    };
    EXPECT_EQ(refusal("Demo", "x", "other"), Error::invalidPath(PathViolation::invalidSlug));
    EXPECT_EQ(refusal("demo", " ", "none"), Error::duplicateSlug(u"demo"_s));
    EXPECT_EQ(refusal("new", " \n", "none"), integrity(u"Le nom du skill est vide."_s));
    EXPECT_EQ(refusal("new", "x", "none"), integrity(u"Catégorie introuvable."_s));
    EXPECT_EQ(errorOf([&] { create(u"new"_s, QString(26'214'401, u'x')); }),
              Error::unsafeImport(u"SKILL.md"_s));
    fs::remove_all(path("workspace/.vornel/staging"));
    fs::create_directories(path("workspace/.vornel/staging"));
    EXPECT_EQ(tree(""), before);
}

TEST_F(Library, SavesEveryCharacterAsTheNextRevision)
{
    const SkillDetail first = create(u"demo"_s);
    write("workspace/skills/demo/reference/extra.md", "kept");
    const QString text = u"\uFEFF— l’été\u00A0: \r\n\tx\u2028\u0301👩‍👧 \r\n "_s;
    const SkillDetail second = service->saveSkill(first.manifest.id, 1, text).result();
    EXPECT_EQ(second.skillMD, text);
    EXPECT_EQ(bytesOf(path("claude/demo/SKILL.md")), text.toStdString());
    EXPECT_EQ(bytesOf(path("codex/demo/reference/extra.md")), "kept");
    EXPECT_TRUE(second.relativeFiles.contains(u"reference/extra.md"_s));
    EXPECT_EQ(second.manifest.revision, 2);
    EXPECT_EQ(history(first.manifest.id), (Revisions{"1", "2", "replaced"}))
        << "the added file is kept first";

    const SkillDetail third = service->saveSkill(first.manifest.id, 2, text).result();
    EXPECT_NE(third.contentRevision, second.contentRevision);
    EXPECT_EQ(third.syncState, SyncState::inSync);
    EXPECT_TRUE(names("workspace/.vornel/recovery").empty());

    const auto before = tree("");
    EXPECT_EQ(errorOf([&] { service->saveSkill(first.manifest.id, 2, text).result(); }),
              Error::revisionConflict(2, 3));
    EXPECT_EQ(errorOf([&] { service->saveSkill(first.manifest.id, 3, u" \n\t"_s).result(); }),
              Error::missingSkillFile(u"demo"_s));
    const QUuid nobody = QUuid::createUuid();
    EXPECT_EQ(errorOf([&] { service->saveSkill(nobody, 1, text).result(); }), Error::skillNotFound(nobody));
    EXPECT_EQ(tree(""), before);
}

TEST_F(Library, KeepsWhatWasEditedByHandBeforeItIsReplaced)
{
    const QUuid id = create(u"demo"_s).manifest.id;
    const auto keepsText = [&](const std::string &text) {
        return std::ranges::any_of(tree("workspace/.vornel/history"), [&](const auto &file) {
            return file.first.ends_with("/SKILL.md") && file.second == text;
        });
    };
    fs::remove_all(path("workspace/.vornel/history"));
    fs::create_directories(path("workspace/.vornel/history"));
    service->saveSkill(id, 1, u"second"_s).waitForFinished();
    EXPECT_EQ(history(id), (Revisions{"1", "2"})) << "what the history lacks is kept";

    write("workspace/skills/demo/SKILL.md", "\xEF\xBB\xBFoutside\r\n");
    service->saveSkill(id, 2, u"third"_s).waitForFinished();
    EXPECT_TRUE(keepsText("\xEF\xBB\xBFoutside\r\n"));
    service->saveSkill(id, 3, u"fourth"_s).waitForFinished();
    EXPECT_EQ(history(id), (Revisions{"1", "2", "3", "4", "replaced"}));
    write("workspace/skills/demo/SKILL.md", "outside again");
    service->assignSkills({id}, u"design"_s).waitForFinished();
    EXPECT_EQ(history(id), (Revisions{"1", "2", "3", "4", "5", "replaced", "replaced"}));
}

TEST_F(Library, CountsNoRevisionPastTheLast)
{
    const QUuid id = create(u"demo"_s).manifest.id;
    std::string manifest = bytesOf(path("workspace/skills/demo/vornel.json"));
    const std::string counter = "\"revision\": 1";
    manifest.replace(manifest.find(counter), counter.size(), "\"revision\": 9223372036854775807");
    write("workspace/skills/demo/vornel.json", manifest);
    const Error last = integrity(u"La révision du skill ne peut plus augmenter."_s);
    EXPECT_EQ(errorOf([&] { service->assignSkills({id}, u"design"_s).result(); }), last);
    EXPECT_EQ(errorOf([&] { service->saveSkill(id, 9223372036854775807, u"x"_s).result(); }), last);
}

TEST_F(Library, LoadsOnlyWhatIsText)
{
    const QUuid id = create(u"demo"_s).manifest.id;
    write("workspace/skills/demo/SKILL.md", "caf\xE9");
    EXPECT_THROW(service->loadSkill(id).result(), fs::filesystem_error);
    fs::remove(path("workspace/skills/demo/SKILL.md"));
    EXPECT_EQ(errorOf([&] { service->loadSkill(id).result(); }), Error::missingSkillFile(u"demo"_s));
}

TEST_F(Library, CreatesAndChangesCategories)
{
    const auto last = [](const WorkspaceOverview &overview) { return overview.categories.last(); };
    const SkillCategory team = last(service->createCategory(u" Équipe & Outils "_s, u" #a1b2c3"_s).result());
    EXPECT_EQ(team, (SkillCategory{u"equipe-outils"_s, u"Équipe & Outils"_s, u"A1B2C3"_s, false}));
    const QString red = u"FF0000"_s;
    EXPECT_EQ(last(service->createCategory(u"Equipe / outils"_s, red).result()).id, u"equipe-outils-2"_s);

    const Error taken = integrity(u"Une catégorie porte déjà ce nom."_s);
    const Error unknown = integrity(u"Catégorie introuvable."_s);
    EXPECT_EQ(errorOf([&] { service->createCategory(u"ÉQUIPE & OUTILS"_s, red).result(); }), taken);
    EXPECT_EQ(errorOf([&] { service->updateCategory(team.id, u"design"_s, red).result(); }), taken);
    EXPECT_EQ(errorOf([&] { service->updateCategory(u"x"_s, u"x"_s, red).result(); }), unknown);
    const QList<SkillCategory> updated =
        service->updateCategory(team.id, u"équipe & outils"_s, red).result().categories;
    EXPECT_EQ(updated.at(6), (SkillCategory{team.id, u"équipe & outils"_s, red, false}));

    EXPECT_EQ(errorOf([&] { service->deleteCategory(u"x"_s).result(); }), unknown);
    EXPECT_EQ(errorOf([&] { service->deleteCategory(SkillCategory::otherID).result(); }),
              integrity(u"La catégorie Autre est nécessaire au classement."_s));
    restart();
    EXPECT_EQ(bootstrap().categories, updated);
}

// A name that is accepted when a category is created must be accepted when the catalog is read again.
TEST_F(Library, AcceptsNoCategoryNameThatWouldBreakTheCatalog)
{
    const QString red = u"FF0000"_s;
    for (const char16_t *name : {u"İ", u"i̇", u"ß", u"SS", u"ſ", u"s", u"É", u"É", u"Σ", u"ς"}) {
        try {
            service->createCategory(QString::fromUtf16(name), red).waitForFinished();
        } catch (const Error &) {
        }
        ASSERT_NO_THROW(restart()) << QString::fromUtf16(name).toStdString();
    }
}

TEST_F(Library, MovesSkillsBetweenCategories)
{
    const QUuid a = createIn("a", "design");
    const QUuid b = createIn("b", "quality");
    const QUuid trashed = createIn("c", "design");
    service->moveToTrash(trashed).waitForFinished();

    service->assignSkills({a, b}, u"design"_s).waitForFinished();
    EXPECT_EQ(manifestOf(a).revision, 1);
    EXPECT_EQ(manifestOf(b).revision, 2);
    EXPECT_EQ(history(b), (Revisions{"1", "2"}));
    EXPECT_EQ(stateOf(u"b"_s), SyncState::inSync);

    EXPECT_EQ(errorOf([&] { service->assignSkills({a}, u"x"_s).result(); }),
              integrity(u"Catégorie introuvable."_s));
    EXPECT_EQ(errorOf([&] { service->assignSkills({trashed}, u"design"_s).result(); }),
              Error::skillNotFound(trashed));

    const WorkspaceOverview overview = service->deleteCategory(u"design"_s).result();
    EXPECT_EQ(overview.categories.size(), 5);
    EXPECT_EQ(manifestOf(a).category, SkillCategory::otherID);
    EXPECT_EQ(manifestOf(a).revision, 2);
    EXPECT_EQ(manifestOf(b).revision, 3);
    EXPECT_EQ(overview.trashedSkills.first().category, SkillCategory::otherID);
    EXPECT_EQ(overview.trashedSkills.first().revision, 2);
    EXPECT_EQ(history(trashed), Revisions{"1"});
}

TEST_F(Library, ShowsWhatANewerVersionWroteAndChangesNoneOfIt)
{
    const QUuid a = createIn("a", "design");
    const QUuid b = createIn("b", "design");
    const QUuid trashed = createIn("c", "design");
    service->moveToTrash(trashed).waitForFinished();
    write("workspace/skills/a/SKILL.md", "edited by hand");
    const auto expectRefusals = [this](const std::string &file, const QString &what, auto... operations) {
        const std::string bytes = bytesOf(path("workspace/" + file));
        std::string newer = bytes;
        const std::string version = "\"schemaVersion\": 1";
        newer.replace(newer.find(version), version.size(), "\"schemaVersion\": 2");
        write("workspace/" + file, newer);
        const auto before = tree("");
        restart();
        EXPECT_EQ(service->reload().result().trashedSkills.size(), 1) << "is shown";
        const Error refusal = integrity(u"Une version plus récente de VORNEL a écrit "_s + what +
                                        u"\u00A0: celle-ci le lit, mais ne le modifie pas."_s);
        const auto expectRefusal = [&refusal](const auto &operation) {
            EXPECT_EQ(errorOf([&] { operation().result(); }), refusal);
        };
        (expectRefusal(operations), ...);
        EXPECT_EQ(tree(""), before);
        write("workspace/" + file, bytes);
    };
    const auto save = [&] { return service->saveSkill(a, 1, u"new"_s); };
    const auto assign = [&] { return service->assignSkills({a, b}, u"quality"_s); };
    const auto restore = [&] { return service->restore(trashed); };
    const auto trash = [&] { return service->moveToTrash(a); };
    const auto deleteCategory = [&] { return service->deleteCategory(u"design"_s); };
    const auto createCategory = [&] { return service->createCategory(u"x"_s, u"000000"_s); };
    const auto updateCategory = [&] { return service->updateCategory(u"design"_s, u"x"_s, u"000000"_s); };
    const auto synchronize = [&] { return service->synchronize(b); };
    expectRefusals("skills/a/vornel.json", u"le manifeste de a"_s, save, assign, trash, deleteCategory);
    expectRefusals(".vornel/trash/" + uuidText(trashed).toStdString() + "/vornel.json",
                   u"le manifeste de c"_s, restore, deleteCategory);
    expectRefusals(".vornel/categories.json", u"le catalogue de catégories"_s, createCategory, updateCategory,
                   deleteCategory);
    write("workspace/.vornel/staging/left", "by an operation that was cut short");
    fs::remove_all(path("workspace/.vornel/recovery"));
    expectRefusals(".vornel/workspace.json", u"ce workspace"_s, synchronize, save, restore);
}

TEST_F(Library, IsOrderedByName)
{
    for (const char *slug : {"skill-10", "skill-9", "autre"})
        create(QString::fromUtf8(slug));
    QStringList slugs;
    for (const SkillSummary &skill : service->reload().result().skills)
        slugs.append(skill.slug);
    EXPECT_EQ(slugs.join(u' '), u"autre skill-9 skill-10"_s);
}

TEST_F(Library, ToleratesStrayFilesAndNothingElse)
{
    create(u"demo"_s);
    write("workspace/skills/.DS_Store", "x");
    write("workspace/skills/.git/config", "x");
    write("workspace/skills/notes.txt", "x");
    EXPECT_EQ(stateOf(u"demo"_s), SyncState::inSync);

    const auto reload = [this] { service->reload().result(); };
    fs::create_directories(path("workspace/skills/empty"));
    EXPECT_EQ(errorOf(reload),
              Error::malformedManifest(pathText(path("workspace/skills/empty/vornel.json"))));
    write("workspace/skills/empty/vornel.json", std::string(1'000'000, '['));
    EXPECT_EQ(errorOf(reload),
              Error::malformedManifest(pathText(path("workspace/skills/empty/vornel.json"))));
    fs::remove_all(path("workspace/skills/empty"));

    fs::create_directory_symlink(path("workspace/skills/demo"), path("workspace/skills/link"));
    EXPECT_EQ(errorOf(reload), Error::symlinkUnsupported(pathText(path("workspace/skills/link"))));
    fs::remove(path("workspace/skills/link"));

    fs::copy(path("workspace/skills/demo"), path("workspace/skills/twin"), fs::copy_options::recursive);
    EXPECT_EQ(errorOf(reload), integrity(u"Un identifiant de skill est dupliqué."_s));
    std::string manifest = bytesOf(path("workspace/skills/twin/vornel.json"));
    const std::size_t id = manifest.find("\"id\": \"") + 7;
    manifest[id] = manifest[id] == '0' ? '1' : '0';
    write("workspace/skills/twin/vornel.json", manifest);
    EXPECT_EQ(errorOf(reload), integrity(u"Un slug de skill est dupliqué."_s));
    fs::remove_all(path("workspace/skills/twin"));

    fs::rename(path("workspace/skills/demo"), path("workspace/skills/renamed"));
    EXPECT_EQ(errorOf(reload), integrity(u"Le dossier canonique ne correspond pas au slug du manifeste."_s));
}

} // namespace
} // namespace vornel
