#include "Scratch.h"
#include "WorkspaceState.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

class Recovery : public testing::Test, protected TestWorkspace
{
protected:
    static QString named(const char *rest) { return uuidText(QUuid::createUuid()) + QString::fromUtf8(rest); }

    std::string recovery(const QString &id) const { return folder + id.toStdString(); }

    /// Puts a folder there, with a text and another file.
    QString setAside(const char *rest, const std::string &text = "name: Autre\ndescription: Résumé") const
    {
        const QString id = named(rest);
        write(recovery(id) + "/SKILL.md", text);
        write(recovery(id) + "/deep/notes.md", "1234");
        return id;
    }

    SetAsideCopy listed(const QString &id)
    {
        for (const SetAsideCopy &copy : service->setAsideCopies().result()) {
            if (copy.id == id)
                return copy;
        }
        ADD_FAILURE() << id.toStdString() << " is not listed";
        return {};
    }

    const std::string folder = "workspace/.vornel/recovery/";
};

TEST_F(Recovery, ListsWhateverLiesThere)
{
    const QString copy = setAside("-removed-codex-demo", "text");
    write(recovery(copy) + "/.hidden/more", "12");
    const QString link = named("-removed-claude-demo");
    fs::create_symlink(path("claude"), path(recovery(link)));
    const QString unsafe = setAside("-claude-demo");
    ::mkfifo(path(recovery(unsafe) + "/pipe").c_str(), 0600);
    const QString canonical = setAside("-canonical-demo");
    const QString deleted = setAside("-replaced-library-demo");
    write(folder + "replaced-codex-" + named("").toStdString() + "/notes", "12");
    write(folder + "odd", "123");
    write(folder + named("-removed-codex-Not A Slug").toStdString() + "/SKILL.md", "x");
    write(folder + '.' + named(".tmp").toStdString(), "still being written");

    const SetAsideCopy found = listed(copy);
    EXPECT_EQ(found.slug, u"demo"_s);
    EXPECT_EQ(found.origin, VersionOrigin::codex);
    EXPECT_EQ(found.fileCount, 3);
    EXPECT_EQ(found.size, 10);
    EXPECT_EQ(found.reason, QString());
    EXPECT_LT(std::abs(found.date.secsTo(QDateTime::currentDateTimeUtc())), 60);
    EXPECT_EQ(listed(link).reason, u"C’est un lien."_s);
    EXPECT_EQ(listed(link).size, 0);
    EXPECT_NE(listed(unsafe).reason, QString());
    EXPECT_EQ(listed(canonical).origin, VersionOrigin::library);
    EXPECT_EQ(listed(deleted).origin, VersionOrigin::library);

    int nameless = 0;
    const QList<SetAsideCopy> all = service->setAsideCopies().result();
    for (const SetAsideCopy &each : all)
        nameless += each.slug.isEmpty() ? 1 : 0;
    EXPECT_EQ(all.size(), 8);
    EXPECT_EQ(nameless, 3);
    EXPECT_EQ(listed(u"odd"_s).reason, u"C’est un fichier."_s);
    EXPECT_EQ(listed(u"odd"_s).origin, std::nullopt);
}

/// What the next operation puts back or deletes is no copy that was set aside.
TEST_F(Recovery, LeavesOutWhatAnInterruptedSwapLeft)
{
    create(u"demo"_s);
    create(u"other"_s);
    const auto asBackup = [this](const char *slug, const char *place) {
        fs::copy(path(std::string("workspace/skills/") + slug), path(recovery(named("-canonical-")) + place),
                 fs::copy_options::recursive);
    };
    asBackup("demo", "demo");
    asBackup("other", "other");
    fs::remove_all(path("workspace/skills/other"));
    EXPECT_TRUE(service->setAsideCopies().result().isEmpty());
    fs::remove_all(path("workspace/.vornel/history"));
    EXPECT_EQ(service->setAsideCopies().result().size(), 1) << "what may be the only copy of a text";
}

TEST_F(Recovery, MakesASkillOfItsOwn)
{
    create(u"demo"_s);
    const QString id = setAside("-removed-claude-demo");
    write("codex/again/SKILL.md", "a stranger's");
    EXPECT_EQ(errorOf([&] { service->restoreAsSkill(id, u"demo"_s).result(); }),
              Error::duplicateSlug(u"demo"_s));
    EXPECT_TRUE(fs::exists(path(recovery(id))));

    const SkillDetail made = service->restoreAsSkill(id, u"again"_s).result();
    EXPECT_EQ(made.manifest.displayName, u"Autre"_s);
    EXPECT_EQ(made.manifest.summary, u"Résumé"_s);
    EXPECT_EQ(made.manifest.category, SkillCategory::otherID);
    EXPECT_EQ(made.syncState, SyncState::inSync);
    EXPECT_EQ(bytesOf(path("codex/again/deep/notes.md")), "1234");
    const std::string history = "workspace/.vornel/history/" + uuidText(made.manifest.id).toStdString();
    EXPECT_EQ(trees(history, "1-").size(), 1U);
    EXPECT_EQ(trees(history, "replaced-codex-"), std::vector{(Tree{{"SKILL.md", "a stranger's"}})});
    EXPECT_TRUE(names(folder).empty());
    EXPECT_EQ(errorOf([&] { service->restoreAsSkill(id, u"more"_s).result(); }),
              integrity(u"Aucune copie mise de côté ne porte le nom «\u00A0%1\u00A0»."_s.arg(id)));
}

/// What no skill takes stays where it is, beside the restored skill.
TEST_F(Recovery, KeepsWhatHoldsMoreThanTheSkill)
{
    const QString hidden = setAside("-removed-claude-hidden");
    write(recovery(hidden) + "/deep/.secret", "x");
    const QString described = setAside("-removed-claude-described");
    write(recovery(described) + "/vornel.json", "{}");
    for (const auto &[id, slug] : {std::pair{hidden, u"hidden"_s}, {described, u"described"_s}}) {
        const Tree before = tree(recovery(id));
        EXPECT_EQ(service->restoreAsSkill(id, slug).result().manifest.revision, 1);
        EXPECT_EQ(tree(recovery(id)), before);
    }
    EXPECT_FALSE(fs::exists(path("claude/described/vornel.json")));

    const QString textless = named("-removed-claude-textless");
    write(recovery(textless) + "/notes.md", "x");
    EXPECT_NE(listed(textless).reason, QString());
    EXPECT_EQ(errorOf([&] { service->restoreAsSkill(textless, u"textless"_s).result(); }),
              Error::missingSkillFile(u"textless"_s));
    EXPECT_TRUE(fs::exists(path(recovery(textless))));
}

TEST_F(Recovery, MakesTheNextRevision)
{
    const QUuid id = create(u"demo"_s).manifest.id;
    const QString copy = setAside("-removed-codex-demo", "texte retrouvé");
    const HistoryComparison comparison = service->compareSetAside(copy).result();
    EXPECT_EQ(comparison.files, (QStringList{u"SKILL.md"_s, u"deep/notes.md"_s}));
    EXPECT_EQ(comparison.differences, (QList<FileDifference>{{u"SKILL.md"_s, FileChange::changed},
                                                             {u"deep/notes.md"_s, FileChange::removed}}));
    EXPECT_EQ(service->readSetAsideFile(copy, u"deep/notes.md"_s).result(), QByteArray("1234"));

    EXPECT_EQ(errorOf([&] { service->restoreAsRevision(copy, id, 2).result(); }),
              Error::revisionConflict(2, 1));
    const SkillDetail revised = service->restoreAsRevision(copy, id, 1).result();
    EXPECT_EQ(revised.manifest.revision, 2);
    EXPECT_EQ(revised.skillMD, u"texte retrouvé"_s);
    EXPECT_EQ(bytesOf(path("claude/demo/deep/notes.md")), "1234");
    EXPECT_TRUE(names(folder).empty());

    const QString same = setAside("-codex-demo", "texte retrouvé");
    EXPECT_EQ(service->restoreAsRevision(same, id, {}).result().manifest.revision, 2);
    EXPECT_TRUE(names(folder).empty());
}

TEST_F(Recovery, DeletesOnlyWhatIsNamed)
{
    write("outside", "x");
    fs::create_directories(path(folder));
    fs::create_symlink(path("outside"), path(folder + "link"));
    const QString kept = setAside("-claude-demo");
    const QString gone = setAside("-codex-demo");
    const QList<SetAsideCopy> left =
        service->deleteSetAside({gone, u"link"_s, u"../trash"_s, u"."_s, u"gone already"_s}).result();
    ASSERT_EQ(left.size(), 1);
    EXPECT_EQ(left.first().id, kept);
    EXPECT_EQ(names(folder), std::vector{kept.toStdString()});
    EXPECT_TRUE(fs::exists(path("outside")) && fs::exists(path("workspace/.vornel/trash")));
}

/// What a skill had replaced is known as its own once it was deleted for good, also where the program was
/// killed meanwhile.
TEST_F(Recovery, KnowsWhatDeletedSkillsHadReplaced)
{
    write("codex/demo/SKILL.md", "a stranger's");
    write("codex/other/SKILL.md", "another's");
    const QUuid demo = create(u"demo"_s).manifest.id;
    const QUuid other = create(u"other"_s).manifest.id;
    service->moveToTrash(QSet{demo, other}).result();
    for (const std::string &name : names(folder))
        fs::remove_all(path(folder + name));

    service->deletePermanently(demo).result();
    const std::string id = uuidText(other).toStdString();
    const std::string history = "workspace/.vornel/history/" + id;
    for (const std::string &name : names(history)) { // of an attempt that was cut short
        if (name.starts_with("replaced-"))
            fs::copy(path(history + '/' + name),
                     path(folder + name.substr(name.size() - 36) + "-replaced-codex-other"),
                     fs::copy_options::recursive);
    }
    fs::rename(path("workspace/.vornel/trash/" + id), path("workspace/.vornel/staging/" + id));
    restart();
    EXPECT_TRUE(names("workspace/.vornel/history").empty());
    QStringList slugs;
    for (const SetAsideCopy &copy : service->setAsideCopies().result()) {
        slugs.append(copy.slug);
        EXPECT_EQ(copy.origin, VersionOrigin::codex);
        EXPECT_EQ(tree(recovery(copy.id)).size(), 1U) << "not whole";
    }
    slugs.sort();
    EXPECT_EQ(slugs, (QStringList{u"demo"_s, u"other"_s}));
}

} // namespace
} // namespace vornel
