#include "FaultyFileSystem.h"
#include "Scratch.h"
#include "StartingState.h"

#include <VORNELCore/Errors/ErrorMessage.h>
#include <VORNELCore/Records/SerializedForms.h>

#include <thread>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

class Trash : public testing::Test, protected TestWorkspace
{
protected:
    Trash() : TestWorkspace(std::make_shared<FaultyFileSystem>()) {}

    FaultyFileSystem &files() { return static_cast<FaultyFileSystem &>(*manager); }

    static std::string folder(const char *name, const QUuid &id)
    {
        return std::string("workspace/.vornel/") + name + '/' + uuidText(id).toStdString();
    }
};

TEST_F(Trash, TakesASkillOutOfAllPlacesAndBringsItBack)
{
    const SkillDetail demo = create(u"demo"_s);
    const QUuid id = demo.manifest.id;
    write("claude/demo/SKILL.md", "edited by the assistant");
    const WorkspaceOverview trashed = service->moveToTrash(id).result();
    EXPECT_TRUE(trashed.skills.isEmpty());
    ASSERT_EQ(trashed.trashedSkills.size(), 1);
    EXPECT_EQ(trashed.trashedSkills.first().syncState, SyncState::unknown);
    EXPECT_TRUE(names("claude").empty());
    EXPECT_TRUE(names("codex").empty());
    EXPECT_EQ(names("workspace/.vornel/recovery").size(), 2U);
    EXPECT_TRUE(names("workspace/.vornel/recovery").front().find("-removed-") != std::string::npos);
    EXPECT_EQ(errorOf([&] { service->moveToTrash(id).result(); }), Error::skillNotFound(id));

    const WorkspaceOverview restored = service->restore(id).result();
    EXPECT_EQ(restored.skills.first().syncState, SyncState::inSync);
    EXPECT_EQ(restored.skills.first().revision, 1);
    EXPECT_EQ(service->loadSkill(id).result().skillMD, demo.skillMD);
    EXPECT_EQ(errorOf([&] { service->restore(id).result(); }), Error::skillNotFound(id));
}

TEST_F(Trash, MovesSeveral)
{
    QSet<QUuid> ids;
    for (const char *slug : {"a", "b", "c"})
        ids.insert(create(QString::fromUtf8(slug)).manifest.id);
    fs::remove_all(path("claude/b"));
    EXPECT_EQ(service->moveToTrash(ids).result().trashedSkills.size(), 3);
    EXPECT_EQ(service->emptyTrash().result().trashedSkills.size(), 0);
}

TEST_F(Trash, KeepsSlugsApart)
{
    const QUuid first = create(u"demo"_s).manifest.id;
    service->moveToTrash(first).waitForFinished();
    const Error taken = Error::duplicateSlug(u"demo"_s);
    EXPECT_EQ(errorOf([&] { create(u"demo"_s); }), taken);

    write("claude/demo/SKILL.md", "another");
    const ImportPlan plan = service->scanImports().result();
    const QUuid second = service->commitImport(plan.id).result().skills.first().id;
    EXPECT_EQ(errorOf([&] { service->restore(first).result(); }), taken);
    EXPECT_EQ(errorOf([&] { service->moveToTrash(second).result(); }),
              integrity(u"La corbeille contient déjà une autre compétence demo, «\u00A0demo\u00A0»\u00A0: "
                        "supprimez-la d’abord définitivement."_s));
    EXPECT_EQ(service->reload().result().trashedSkills.first().id, first);
    EXPECT_EQ(stateOf(u"demo"_s), SyncState::inSync);
}

TEST_F(Trash, RefusesFoldersThatAreNotWhatTheyAreNamed)
{
    const QUuid id = create(u"demo"_s).manifest.id;
    service->moveToTrash(id).waitForFinished();
    const QUuid alias = QUuid::createUuid();
    fs::rename(path(folder("trash", id)), path(folder("trash", alias)));
    EXPECT_EQ(errorOf([&] { service->restore(alias).result(); }),
              integrity(u"L’identifiant de la corbeille ne correspond pas au manifeste."_s));
    const Error misnamed =
        integrity(u"Le dossier de corbeille ne correspond pas à l’identifiant du manifeste."_s);
    EXPECT_EQ(errorOf([&] { service->emptyTrash().result(); }), misnamed);
    EXPECT_TRUE(fs::exists(path(folder("trash", alias) + "/SKILL.md")));
}

TEST_F(Trash, NamesTheSkillThatFails)
{
    const auto tolerant = startService(path(), manager, FailureScope::Skill);
    const auto concerned = [](QFuture<WorkspaceOverview> operation) {
        try {
            operation.waitForFinished();
        } catch (const std::exception &error) {
            return errorMessage(error).section(u'\n', 1);
        }
        return u"nobody"_s;
    };
    const QString name = u"Compétence concernée\u00A0: «\u00A0demo\u00A0»"_s;
    const QUuid demo = create(u"demo"_s).manifest.id;
    const QSet<QUuid> both{demo, create(u"other"_s).manifest.id};
    create(u"third"_s);
    fs::remove_all(path("codex/demo"));
    fs::create_symlink("/etc/passwd", path("codex/demo"));
    EXPECT_EQ(concerned(tolerant->moveToTrash(both)), name + u'.');
    EXPECT_EQ(tolerant->loadSkill(demo).result().syncState, SyncState::failed);
    fs::remove(path("codex/demo"));
    tolerant->moveToTrash(demo).waitForFinished();

    const fs::path trashed = path(folder("trash", demo));
    files().refusesRename = [&](const fs::path &from, const fs::path &) { return from == trashed; };
    EXPECT_EQ(concerned(tolerant->emptyTrash()), name + u'.');
    files().refusesRename = nullptr;

    const QString here = name + u", dans "_s + pathText(trashed) + u'.';
    write(folder("trash", demo) + "/vornel.json", "spoiled");
    EXPECT_EQ(concerned(tolerant->restore(demo)), QString());
    EXPECT_EQ(concerned(tolerant->reload()), here) << "as its history tells";
    fs::copy(path("workspace/skills/third/vornel.json"), trashed / "vornel.json",
             fs::copy_options::overwrite_existing);
    EXPECT_EQ(concerned(tolerant->reload()), QString(here).replace(u"demo"_s, u"third"_s)) << "as it says";
}

TEST_F(Trash, DeletesASkillWithItsHistoryAndNoOther)
{
    const QUuid a = create(u"a"_s).manifest.id;
    const QUuid b = create(u"b"_s).manifest.id;
    const QUuid active = create(u"c"_s).manifest.id;
    service->moveToTrash(QSet<QUuid>{a, b}).waitForFinished();
    EXPECT_EQ(errorOf([&] { service->deletePermanently(active).result(); }), Error::skillNotFound(active));
    EXPECT_EQ(service->deletePermanently(a).result().trashedSkills.size(), 1);
    EXPECT_FALSE(fs::exists(path(folder("history", a))));
    service->emptyTrash().waitForFinished();
    EXPECT_EQ(names("workspace/.vornel/history"), std::vector<std::string>{uuidText(active).toStdString()});
    EXPECT_TRUE(names("workspace/.vornel/trash").empty());
    EXPECT_TRUE(names("workspace/.vornel/events").empty());
    EXPECT_NO_THROW(service->emptyTrash().result());
}

TEST_F(Trash, RefusesASkillThatIsThereAlready)
{
    const QUuid id = create(u"demo"_s).manifest.id;
    fs::copy(path("workspace/skills/demo"), path(folder("trash", id)), fs::copy_options::recursive);
    EXPECT_EQ(errorOf([&] { service->moveToTrash(id).result(); }),
              integrity(u"Le skill existe déjà dans la corbeille."_s));
    EXPECT_TRUE(fs::exists(path("workspace/skills/demo/SKILL.md")));
}

TEST_F(Trash, TakesASkillBackWhoseHistoryCannotBeKept)
{
    const QUuid id = create(u"demo"_s).manifest.id;
    service->moveToTrash(id).waitForFinished();
    files().refusesRename = [](const fs::path &, const fs::path &to) {
        return to.parent_path().parent_path().filename() == "history";
    };
    EXPECT_THROW(service->restore(id).result(), fs::filesystem_error);
    const WorkspaceOverview overview = service->reload().result();
    EXPECT_TRUE(overview.skills.isEmpty());
    EXPECT_EQ(overview.trashedSkills.size(), 1);
}

TEST_F(Trash, TellsSinceWhenASkillIsThere)
{
    const QUuid id = service->createSkill(requestFor(u"demo"_s, u"design"_s)).result().manifest.id;
    create(u"active"_s);
    fs::last_write_time(path("workspace/skills/demo"),
                        fs::file_time_type::clock::now() - std::chrono::days(9));
    EXPECT_TRUE(service->trashDates().result().isEmpty());
    const QDateTime before = currentInstant();
    service->moveToTrash(id).waitForFinished();
    const QDateTime moment = service->trashDates().result().value(id);
    EXPECT_GE(moment, before);
    EXPECT_LE(moment, currentInstant());
    std::this_thread::sleep_for(std::chrono::milliseconds(1100));
    service->deleteCategory(u"design"_s).waitForFinished();
    restart();
    EXPECT_EQ(service->trashDates().result(), (QHash<QUuid, QDateTime>{{id, moment}}));

    const std::string event = "workspace/.vornel/events/trashed-" + uuidText(id).toStdString() + ".json";
    write(event, "{}");
    EXPECT_GT(service->trashDates().result().value(id), moment) << "the folder's own time is the next best";
    service->restore(id).waitForFinished();
    EXPECT_TRUE(service->trashDates().result().isEmpty());
    EXPECT_FALSE(fs::exists(path(event)));
}

} // namespace
} // namespace vornel
