/// Unsaved texts, as the service keeps them.

#include "FaultyFileSystem.h"
#include "Scratch.h"

#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Text/Digest.h>
#include <VORNELInfrastructure/Drafts/LocalDrafts.h>

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

/// A disk on which everything may have been changed some time ago.
class AgedFileSystem : public FaultyFileSystem
{
public:
    std::optional<QDateTime> changedAt(const Folder &folder, const std::string &name) const override
    {
        const auto changed = FaultyFileSystem::changedAt(folder, name);
        return changed ? std::optional(changed->addSecs(-age)) : std::nullopt;
    }

    int age = 0; ///< in seconds
};

class Draft : public testing::Test, protected TestWorkspace
{
protected:
    AgedFileSystem &files() { return *m_files; }

    void keep(const QString &text) { drafts->keepDraft(id, {text, u"texte"_s, {}}).waitForFinished(); }
    std::optional<KeptDraft> read() { return drafts->draft(id).result(); }

    QString readText()
    {
        const auto draft = read();
        return draft ? draft->text : QString();
    }

    /// A new process.
    void restart()
    {
        drafts.reset();
        m_files = std::make_shared<AgedFileSystem>();
        drafts = std::make_unique<LocalDrafts>(m_files, path("workspace"));
        TestWorkspace::restart();
    }

    const std::string folder = "workspace/.vornel/drafts";
    const QUuid id = create(u"demo"_s).manifest.id;
    const std::string file = folder + '/' + uuidText(id).toStdString() + ".json";

private:
    std::shared_ptr<AgedFileSystem> m_files = std::make_shared<AgedFileSystem>();

protected:
    std::unique_ptr<LocalDrafts> drafts = std::make_unique<LocalDrafts>(m_files, path("workspace"));
};

TEST_F(Draft, IsReadAsItWasKeptUntilItIsDiscarded)
{
    EXPECT_EQ(read(), std::nullopt);
    EXPECT_TRUE(drafts->files().result().isEmpty());
    EXPECT_FALSE(fs::exists(path(folder))) << "asking creates nothing";
    for (const QString &text : {u"Prix\u00A0: 3\u202F000\r\n\u2028fin"_s, u"\uFEFFa\rb\n\n"_s,
                                u"\u0001 \"\\\" é 👩‍💻"_s, QString(u""_s)}) {
        keep(text);
        restart();
        const auto kept = read();
        ASSERT_TRUE(kept);
        EXPECT_EQ(kept->text, text);
        EXPECT_EQ(kept->baseDigest, sha256Of("texte"));
        EXPECT_LE(kept->keptAt.secsTo(currentInstant()), 60);
    }
    EXPECT_EQ(drafts->files().result(), (QList<DraftFile>{{id, false, path(file)}}));
    EXPECT_EQ(permissionsOf(path(folder)), 0700);
    EXPECT_EQ(permissionsOf(path(file)), 0600);
    drafts->discardDraft(id).waitForFinished();
    drafts->discardDraft(id).waitForFinished();
    EXPECT_TRUE(names(folder).empty());
}

TEST_F(Draft, HoldsTheTextsOfOtherFilesToo)
{
    const QList<UnsavedFile> files{{u"docs/é.md"_s, u"a\r\nb"_s, u"0a1b"_s}, {u"x"_s, u""_s, {}}};
    drafts->keepDraft(id, {u"texte"_s, u"texte"_s, {}, files}).waitForFinished();
    restart();
    EXPECT_EQ(read().value_or(KeptDraft()).files, files);

    write(file, R"({"schemaVersion": 1, "text": "x", "baseDigest": "", "keptAt": "2026-11-22T13:32:00Z"})");
    EXPECT_EQ(readText(), u"x"_s) << "as the first version has kept it";
    EXPECT_TRUE(read().value_or(KeptDraft()).files.isEmpty());
}

TEST_F(Draft, WaitsForNobodyWhoHoldsTheWorkspace)
{
    const WorkspaceHold held(path("workspace"));
    const QFuture<WorkspaceOverview> waiting = service->reload();
    QElapsedTimer timer;
    timer.start();
    keep(u"brouillon"_s);
    EXPECT_EQ(readText(), u"brouillon"_s);
    drafts->discardDraft(id).waitForFinished();
    EXPECT_LT(timer.elapsed(), 5'000);
    EXPECT_FALSE(waiting.isFinished());
}

TEST_F(Draft, MakesNoWorkspace)
{
    fs::rename(path("workspace"), path("unmounted"));
    EXPECT_EQ(read(), std::nullopt);
    EXPECT_THROW(keep(u"brouillon"_s), fs::filesystem_error);
    EXPECT_FALSE(fs::exists(path("workspace")));
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
        const QString kept = readText();
        ASSERT_TRUE(kept == u"avant"_s || kept == u"après"_s) << "step " << step;
        if (!hasFailed)
            break;
    }
    const std::string unfinished = folder + "/." + uuidText(id).toStdString() + ".tmp";
    write(unfinished, "half");
    service->bootstrap(path("workspace"), path("claude"), path("codex")).waitForFinished();
    EXPECT_TRUE(fs::exists(path(unfinished)))
        << "another program leaves alone what the window may be writing";
    drafts->files().waitForFinished();
    EXPECT_TRUE(fs::exists(path(unfinished))) << "as does another window";
    files().age = 120;
    drafts->files().waitForFinished();
    EXPECT_EQ(names(folder).size(), 1U) << "the window itself clears what a write has left";
}

TEST_F(Draft, OutlivesItsSkillUntilItIsDeleted)
{
    keep(u"brouillon"_s);
    service->moveToTrash(id).waitForFinished();
    service->deletePermanently(id).waitForFinished();
    restart();
    const QList<DraftFile> left = drafts->files().result();
    EXPECT_EQ(left, (QList<DraftFile>{{id, false, path(file)}}));
    write("workspace/other.json", "not a draft");
    drafts->discardFile({id, false, path("workspace/other.json")}).waitForFinished();
    EXPECT_EQ(readText(), u"brouillon"_s);
    drafts->discardFile(left.first()).waitForFinished();
    EXPECT_TRUE(names(folder).empty());
    EXPECT_TRUE(fs::exists(path("workspace/other.json")));
}

TEST_F(Draft, ThatIsTooLargeIsRefusedAndTheFormerOneStays)
{
    keep(u"avant"_s);
    EXPECT_THROW(keep(QString(26'214'400, u'x')), fs::filesystem_error);
    EXPECT_EQ(readText(), u"avant"_s);
}

TEST_F(Draft, ThatIsNoneIsSetAside)
{
    qsizetype aside = 0;
    const std::vector<std::function<void()>> hostilities{
        [&] { write(file, "{"); },
        [&] { write(file, R"({"schemaVersion": 1, "text": 3, "baseDigest": "", "keptAt": "hier"})"); },
        [&] {
            write(
                file,
                R"({"schemaVersion": 3, "text": "x", "baseDigest": "", "keptAt": "2026-11-22T13:32:00Z", "files": []})");
        },
        [&] { fs::create_directories(path(file) / "in"); },
        [&] { fs::create_symlink(path("outside"), path(file)); },
    };
    fs::create_directories(path(folder));
    write("outside", "not ours");
    for (const auto &plant : hostilities) {
        plant();
        EXPECT_EQ(read(), std::nullopt);
        EXPECT_FALSE(fs::exists(fs::symlink_status(path(file))));
        const QList<DraftFile> found = drafts->files().result();
        EXPECT_EQ(found.size(), ++aside) << "nothing is deleted";
        EXPECT_TRUE(std::ranges::all_of(found, &DraftFile::isSetAside));
    }
    keep(u"brouillon"_s);
    EXPECT_EQ(readText(), u"brouillon"_s);
    for (const DraftFile &found : drafts->files().result())
        drafts->discardFile(found).waitForFinished();
    EXPECT_TRUE(names(folder).empty());
    EXPECT_EQ(bytesOf(path("outside")), "not ours");

    fs::rename(path(folder), path("elsewhere"));
    fs::create_directory_symlink(path("elsewhere"), path(folder));
    EXPECT_THROW(keep(u"x"_s), VORNELWorkspaceError);
    EXPECT_TRUE(names("elsewhere").empty()) << "a link isn't followed";
}

TEST_F(Draft, ThatCanNotBeReadIsNeitherReplacedNorDeleted)
{
    keep(u"avant"_s);
    for (int look = 1;; ++look) {
        restart();
        files().failAt(look, FaultyFileSystem::Call::Look);
        try {
            read();
        } catch (const fs::filesystem_error &) {
        }
        const bool hasFailed = files().hasFailed();
        files().failAt(0, FaultyFileSystem::Call::Look);
        if (!hasFailed)
            break;
        drafts->discardDraft(id).waitForFinished();
        ASSERT_EQ(names(folder).size(), 1U) << "look " << look;
        keep(u"après"_s);
        ASSERT_EQ(names(folder).size(), 2U) << "look " << look;
        EXPECT_EQ(readText(), u"après"_s);
        const std::string aside = names(folder).front();
        EXPECT_NE(bytesOf(path(folder + '/' + aside)).find("avant"), std::string::npos);
        fs::rename(path(folder + '/' + aside), path(file));
    }
    EXPECT_EQ(readText(), u"avant"_s);
}

} // namespace
} // namespace vornel
