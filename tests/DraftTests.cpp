/// Unsaved texts, as the service keeps them.

#include "FaultyFileSystem.h"
#include "Scratch.h"

#include <VORNELCore/SerializedForms.h>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

namespace fs = std::filesystem;

class Draft : public testing::Test, protected TestWorkspace
{
protected:
    Draft() : TestWorkspace(std::make_shared<FaultyFileSystem>()) {}

    FaultyFileSystem &files() { return static_cast<FaultyFileSystem &>(*manager); }

    static KeptDraft draftOf(const QString &text)
    {
        return {1, text, KeptDraft::digestOf(u"texte"_s), *dateFromText(u"2026-11-22T13:32:00Z"_s)};
    }

    void keep(const QString &text) { service->keepDraft(id, draftOf(text)).waitForFinished(); }
    std::optional<KeptDraft> read() { return service->draft(id).result(); }

    const std::string folder = "workspace/.vornel/drafts";
    const QUuid id = create(u"demo"_s).manifest.id;
    const std::string file = folder + '/' + uuidText(id).toStdString() + ".json";
};

TEST_F(Draft, IsReadAsItWasKeptUntilItIsDiscarded)
{
    EXPECT_EQ(read(), std::nullopt);
    EXPECT_FALSE(fs::exists(path(folder))) << "asking creates nothing";
    for (const QString &text : {u"Prix\u00A0: 3\u202F000\r\n\u2028fin"_s, u"\uFEFFa\rb\n\n"_s,
                                u"\u0001 \"\\\" é 👩‍💻"_s, QString(u""_s)}) {
        keep(text);
        restart();
        EXPECT_EQ(read(), draftOf(text)) << text.toStdString();
    }
    EXPECT_EQ(permissionsOf(path(folder)), 0700);
    EXPECT_EQ(permissionsOf(path(file)), 0600);
    service->discardDraft(id).waitForFinished();
    service->discardDraft(id).waitForFinished();
    EXPECT_TRUE(names(folder).empty());
}

TEST_F(Draft, IsWholeWhateverFailsWhileItIsReplaced)
{
    keep(u"avant"_s);
    for (int step = 1;; ++step) {
        files().failAt(step, FaultyFileSystem::Call::Change);
        try {
            keep(u"après"_s);
        } catch (const fs::filesystem_error &) {
        }
        const bool hasFailed = files().hasFailed();
        files().failAt(0, FaultyFileSystem::Call::Change);
        const auto kept = read();
        ASSERT_TRUE(kept == draftOf(u"avant"_s) || kept == draftOf(u"après"_s)) << "step " << step;
        if (!hasFailed)
            break;
    }
    write(folder + "/." + uuidText(id).toStdString() + ".tmp", "half");
    restart();
    EXPECT_EQ(names(folder).size(), 1U) << "a start clears what a write has left";
}

TEST_F(Draft, GoesWithASkillThatIsDeletedForGood)
{
    keep(u"brouillon"_s);
    service->moveToTrash(id).waitForFinished();
    EXPECT_TRUE(read()) << "it may come back from the trash";
    service->deletePermanently(id).waitForFinished();
    EXPECT_TRUE(names(folder).empty());

    keep(u"brouillon"_s);
    write("workspace/.vornel/staging/" + uuidText(id).toStdString() + "/SKILL.md", "a deletion cut short");
    restart();
    EXPECT_TRUE(names(folder).empty());
}

TEST_F(Draft, ThatIsTooLargeIsRefusedAndTheFormerOneStays)
{
    keep(u"avant"_s);
    EXPECT_THROW(keep(QString(26'214'400, u'x')), fs::filesystem_error);
    EXPECT_EQ(read(), draftOf(u"avant"_s));
}

TEST_F(Draft, ThatCanNotBeReadIsSetAside)
{
    int aside = 0;
    const std::vector<std::function<void()>> hostilities{
        [&] { write(file, "{"); },
        [&] { write(file, R"({"schemaVersion": 1, "text": 3, "baseDigest": "", "keptAt": "hier"})"); },
        [&] { fs::create_directories(path(file) / "in"); },
        [&] { fs::create_symlink(path("outside"), path(file)); },
    };
    fs::create_directories(path(folder));
    write("outside", "not ours");
    for (const auto &plant : hostilities) {
        plant();
        EXPECT_EQ(read(), std::nullopt);
        EXPECT_FALSE(fs::exists(fs::symlink_status(path(file))));
        EXPECT_EQ(names(folder).size(), static_cast<size_t>(++aside)) << "nothing is deleted";
    }
    keep(u"brouillon"_s);
    EXPECT_EQ(read(), draftOf(u"brouillon"_s));

    fs::rename(path(folder), path("elsewhere"));
    fs::create_directory_symlink(path("elsewhere"), path(folder));
    EXPECT_THROW(keep(u"x"_s), VORNELWorkspaceError);
    service->moveToTrash(id).waitForFinished();
    EXPECT_TRUE(service->deletePermanently(id).result().trashedSkills.isEmpty());
    EXPECT_EQ(names("elsewhere").size(), 5U) << "a link isn't followed";
    EXPECT_EQ(bytesOf(path("outside")), "not ours");
}

} // namespace
} // namespace vornel
