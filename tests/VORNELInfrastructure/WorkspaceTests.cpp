#include "Scratch.h"

#include <VORNELCore/Records/RecordJson.h>
#include <VORNELCore/Records/SerializedForms.h>

#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

class Bootstrap : public testing::Test, protected Scratch
{
protected:
    WorkspaceOverview bootstrap(const fs::path &workspace, const fs::path &claude, const fs::path &codex)
    {
        return LocalWorkspaceService(std::make_shared<PosixFileSystem>())
            .bootstrap(workspace, claude, codex)
            .result();
    }

    WorkspaceOverview bootstrap() { return bootstrap(path("ws"), path("claude"), path("codex")); }

    QJsonObject json(const std::string &below) const
    {
        return QJsonDocument::fromJson(QByteArray::fromStdString(bytesOf(path(below)))).object();
    }

    /// A skill folder as another run of the program would have left it.
    void writeSkill(const std::string &folder, const QString &slug, const QUuid &id, qint64 revision = 1,
                    const QString &category = SkillCategory::otherID)
    {
        SkillManifest manifest;
        manifest.id = id;
        manifest.slug = manifest.displayName = slug;
        manifest.category = category;
        manifest.revision = revision;
        manifest.createdAt = manifest.updatedAt = currentInstant();
        write(folder + "/SKILL.md", "texte");
        write(folder + "/vornel.json", RecordJson::document(RecordJson::encode(manifest)).toStdString());
    }
};

TEST_F(Bootstrap, CreatesTheLayoutForTheOwnerOnly)
{
    const WorkspaceOverview overview = bootstrap();
    for (const char *folder : {"ws", "ws/skills", "ws/.vornel", "ws/.vornel/history", "ws/.vornel/trash",
                               "ws/.vornel/staging", "ws/.vornel/recovery", "ws/.vornel/events"})
        EXPECT_EQ(permissionsOf(path(folder)), 0700) << folder;
    EXPECT_EQ(permissionsOf(path("ws/.vornel/workspace.json")), 0600);
    EXPECT_EQ(permissionsOf(path("ws/.vornel/categories.json")), 0600);
    EXPECT_FALSE(fs::exists(path("claude")));

    const QJsonObject metadata = json("ws/.vornel/workspace.json");
    EXPECT_EQ(metadata[u"schemaVersion"], 1);
    EXPECT_EQ(metadata[u"displayName"], u"VORNEL"_s);
    EXPECT_EQ(metadata[u"resourceCopyThresholdBytes"], 26'214'400);
    EXPECT_TRUE(uuidFromText(metadata[u"workspaceID"].toString()));
    EXPECT_EQ(overview.categories, SkillCategory::defaults());
    EXPECT_EQ(overview.workspaceURL, path("ws"));

    const auto before = tree("ws");
    bootstrap();
    EXPECT_EQ(tree("ws"), before);
}

TEST_F(Bootstrap, RefusesOverlappingRootsByTheirResolvedText)
{
    const Error overlap = Error::invalidPath(PathViolation::overlappingRoots);
    const fs::path ws = path("x/ws");
    EXPECT_EQ(errorOf([&] { bootstrap(ws, ws / "claude", path("codex")); }), overlap);
    EXPECT_EQ(errorOf([&] { bootstrap(ws, path("x"), path("codex")); }), overlap);
    EXPECT_EQ(errorOf([&] { bootstrap(ws, path("c"), path("x/../c/")); }), overlap);
    EXPECT_EQ(errorOf([&] { bootstrap("/", path("c"), path("d")); }), overlap);
    fs::create_directories(path("real"));
    fs::create_directory_symlink(path("real"), path("alias"));
    EXPECT_EQ(errorOf([&] { bootstrap(path("real"), path("alias/claude"), path("codex")); }), overlap);
    EXPECT_FALSE(fs::exists(path("x")));
    EXPECT_NO_THROW(bootstrap(ws, path("x/ws2"), path("x/ws3")));
}

TEST_F(Bootstrap, RefusesRootsThatAreLinksAndFollowsLinksAboveThem)
{
    fs::create_directories(path("real"));
    for (const char *root : {"a", "b", "c"})
        fs::create_directory_symlink(path("real"), path(root));
    const auto refused = [this](const char *link) { return Error::symlinkUnsupported(pathText(path(link))); };
    EXPECT_EQ(errorOf([&] { bootstrap(path("a"), path("claude"), path("codex")); }), refused("a"));
    EXPECT_EQ(errorOf([&] { bootstrap(path("ws"), path("b"), path("codex")); }), refused("b"));
    EXPECT_EQ(errorOf([&] { bootstrap(path("ws"), path("claude"), path("c")); }), refused("c"));
    EXPECT_FALSE(fs::exists(path("ws")));
    EXPECT_EQ(bootstrap(path("a/ws"), path("claude"), path("codex")).workspaceURL, path("a/ws"));

    fs::create_directories(path("other/.vornel"));
    fs::create_directory_symlink(path("real"), path("other/skills"));
    EXPECT_EQ(errorOf([&] { bootstrap(path("other"), path("claude"), path("codex")); }),
              refused("other/skills"));
}

TEST_F(Bootstrap, FailsClearlyWhereNothingCanBeCreated)
{
    const fs::path file = write("file", "x");
    for (const fs::path &root : {fs::path("/proc/nowhere/ws"), file, file / "ws"})
        EXPECT_THROW(bootstrap(root, path("claude"), path("codex")), fs::filesystem_error) << root;
    EXPECT_EQ(bytesOf(file), "x");
}

TEST_F(Bootstrap, RefusesBrokenFilesOfTheWorkspace)
{
    bootstrap();
    const std::string metadata = bytesOf(path("ws/.vornel/workspace.json"));
    write("ws/.vornel/workspace.json", "{}");
    EXPECT_EQ(errorOf([&] { bootstrap(); }), integrity(u"Les métadonnées du workspace sont invalides."_s));
    EXPECT_EQ(bytesOf(path("ws/.vornel/workspace.json")), "{}");
    write("ws/.vornel/workspace.json", metadata);

    const QJsonObject catalog = json("ws/.vornel/categories.json");
    const auto withCategory = [&](int index, const QString &key, const QJsonValue &value) {
        QJsonArray categories = catalog[u"categories"].toArray();
        QJsonObject category = categories[index].toObject();
        category[key] = value;
        categories[index] = category;
        QJsonObject changed = catalog;
        changed[u"categories"_s] = categories;
        write("ws/.vornel/categories.json", RecordJson::document(changed).toStdString());
        return errorOf([&] { bootstrap(); });
    };
    const Error doubled = integrity(u"Le catalogue de catégories contient des doublons."_s);
    EXPECT_EQ(withCategory(1, u"id"_s, u"design"_s), doubled);
    EXPECT_EQ(withCategory(1, u"name"_s, u"DÉVELOPPEMENT"_s), doubled);
    EXPECT_EQ(withCategory(5, u"isProtected"_s, false), doubled);
    EXPECT_EQ(withCategory(5, u"id"_s, u"rest"_s), doubled);
    EXPECT_EQ(withCategory(0, u"name"_s, u"  "_s),
              integrity(u"Le nom de la catégorie doit contenir entre 1 et 40 caractères."_s));
    EXPECT_EQ(withCategory(0, u"colorHex"_s, u"red"_s), integrity(u"La couleur est invalide."_s));
    EXPECT_EQ(withCategory(0, u"isProtected"_s, 0), integrity(u"Le catalogue de catégories est invalide."_s));
    fs::remove(path("ws/.vornel/categories.json"));
    fs::create_directories(path("ws/.vornel/categories.json"));
    EXPECT_EQ(errorOf([&] { bootstrap(); }), integrity(u"Le catalogue de catégories ne peut pas être lu."_s));
}

TEST_F(Bootstrap, NamesTheCategoriesThatOnlyManifestsKnow)
{
    bootstrap();
    fs::remove(path("ws/.vornel/categories.json"));
    const QUuid trashed = QUuid::createUuid();
    writeSkill("ws/skills/a", u"a"_s, QUuid::createUuid(), 1, u"mes-outils"_s);
    writeSkill("ws/skills/b", u"b"_s, QUuid::createUuid(), 1, u"autre"_s);
    writeSkill("ws/skills/d", u"d"_s, QUuid::createUuid(), 1, u" Web-Dev "_s);
    writeSkill("ws/.vornel/trash/" + uuidText(trashed).toStdString(), u"c"_s, trashed, 1, QString(60, u'x'));
    const WorkspaceOverview overview = bootstrap();
    const QList<SkillCategory> added = overview.categories.mid(6);
    QHash<QString, SkillCategory> byID;
    for (const SkillCategory &category : added)
        byID.insert(category.id, category);
    ASSERT_EQ(byID.size(), 4);
    EXPECT_EQ(byID[u"mes-outils"_s], (SkillCategory{u"mes-outils"_s, u"Mes Outils"_s, u"FFB347"_s, false}));
    EXPECT_EQ(byID[u"autre"_s].name, u"Autre 2"_s);
    EXPECT_EQ(byID[QString(60, u'x')].name.size(), 40);
    for (const SkillSummary &skill : overview.skills + overview.trashedSkills)
        EXPECT_TRUE(byID.contains(skill.category)) << skill.category.toStdString();
    EXPECT_NO_THROW(bootstrap());
}

TEST_F(Bootstrap, PutsRightWhatACrashLeft)
{
    bootstrap();
    const QUuid id = QUuid::createUuid();
    const QUuid trashed = QUuid::createUuid();
    const std::string recovery = "ws/.vornel/recovery/" + uuidText(QUuid::createUuid()).toStdString();
    const std::string older = "ws/.vornel/recovery/" + uuidText(QUuid::createUuid()).toStdString();
    writeSkill(recovery + "-canonical-cut", u"cut"_s, id, 4);
    writeSkill(older + "-canonical-cut", u"cut"_s, id, 3);
    writeSkill(recovery + "-canonical-gone", u"gone"_s, trashed);
    writeSkill("ws/.vornel/trash/" + uuidText(trashed).toStdString(), u"gone"_s, trashed);
    writeSkill(recovery + "-canonical-liar", u"other"_s, QUuid::createUuid());
    write(recovery + "-removed-claude-kept/SKILL.md", "x");
    write(recovery + "-codex-kept/SKILL.md", "x");
    write("ws/.vornel/staging/" + uuidText(id).toStdString() + "/SKILL.md", "x");
    write("claude/." + uuidText(id).toStdString() + ".tmp/SKILL.md", "a move that was cut short");
    write("claude/held/." + uuidText(trashed).toStdString() + ".tmp", "a file that was to be replaced");
    write("claude/.kept.tmp", "x");

    const WorkspaceOverview overview = bootstrap();
    ASSERT_EQ(overview.skills.size(), 1);
    EXPECT_EQ(overview.skills.first().revision, 4);
    EXPECT_TRUE(names("ws/.vornel/staging").empty());
    EXPECT_EQ(names("claude"), (std::vector<std::string>{".kept.tmp", "held"}));
    EXPECT_TRUE(names("claude/held").empty());
    LocalWorkspaceService service(std::make_shared<PosixFileSystem>());
    service.bootstrap(path("ws"), path("claude"), path("codex")).waitForFinished();
    EXPECT_EQ(names("ws/.vornel/recovery").size(), 5U) << "only the folder that was missing may leave";
    service.deletePermanently(trashed).waitForFinished();
    EXPECT_EQ(bootstrap().skills.size(), 1) << "a skill deleted for good came back";
}

TEST(Service, AnswersNothingBeforeBootstrap)
{
    LocalWorkspaceService service(std::make_shared<PosixFileSystem>());
    const auto expectRefusal = [](auto future) {
        EXPECT_EQ(errorOf([&] { future.waitForFinished(); }), Error::notBootstrapped());
    };
    const auto expectRefusals = [&](auto... futures) { (expectRefusal(futures), ...); };
    expectRefusals(service.reload(), service.emptyTrash(), service.saveSkill({}, 1, {}),
                   service.commitImport({}), service.resolveCollision({}, CollisionChoice::claude),
                   service.synchronizeSkills({{}}, {}));
}

TEST(Service, KeepsItsConfigurationWhenAnotherBootstrapFails)
{
    TestWorkspace workspace;
    workspace.create(u"demo"_s);
    EXPECT_THROW(workspace.service
                     ->bootstrap(workspace.path("other"), workspace.path("other/in"), workspace.path("codex"))
                     .result(),
                 Error);
    EXPECT_EQ(workspace.stateOf(u"demo"_s), SyncState::inSync);
}

} // namespace
} // namespace vornel
