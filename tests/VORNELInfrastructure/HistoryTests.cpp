#include "Scratch.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

/// A skill at revision 3: "one", "two", and "two" with notes. Codex has edited its copy between, by hand the
/// notes were added before.
class History : public testing::Test, protected TestWorkspace
{
protected:
    History() : demo(create(u"demo"_s, u"one"_s).manifest.id)
    {
        service->saveSkill(demo, 1, u"two"_s).waitForFinished();
        write("workspace/skills/demo/notes/deep.md", "by hand");
        write("codex/demo/SKILL.md", "by Codex");
        write("codex/demo/own.md", "by Codex");
        service->saveSkill(demo, 2, u"three"_s).waitForFinished();
    }

    QList<HistoryEntry> versions() { return service->history(demo).result(); }

    /// The name of the newest version of this kind and origin.
    QString named(HistoryKind kind, VersionOrigin origin, qint64 revision)
    {
        for (const HistoryEntry &version : versions()) {
            if (version.kind == kind && version.origin == origin && version.revision == revision)
                return version.entry;
        }
        ADD_FAILURE() << "no such version";
        return {};
    }

    QString revisionNamed(qint64 revision)
    {
        return named(HistoryKind::revision, VersionOrigin::library, revision);
    }

    const QUuid demo;
};

TEST_F(History, TellsWhatItHolds)
{
    using Row = std::tuple<HistoryKind, VersionOrigin, qint64, bool>;
    std::vector<Row> rows;
    for (const HistoryEntry &version : versions()) {
        rows.emplace_back(version.kind, version.origin, version.revision, version.isCurrent);
        EXPECT_EQ(version.digest.size(), 64);
        EXPECT_LE(std::abs(version.date.secsTo(currentInstant())), 60);
    }
    std::ranges::sort(rows, std::ranges::greater{}, [](const Row &row) { return std::get<2>(row); });
    constexpr auto revision = HistoryKind::revision;
    constexpr auto replaced = HistoryKind::replaced;
    EXPECT_EQ(std::ranges::count(rows, Row{revision, VersionOrigin::library, 3, true}), 1);
    EXPECT_EQ(std::ranges::count(rows, Row{replaced, VersionOrigin::codex, 3, false}), 1);
    EXPECT_EQ(std::ranges::count(rows, Row{replaced, VersionOrigin::library, 2, false}), 1) << "by hand";
    EXPECT_EQ(rows.size(), 5U);

    write("workspace/skills/demo/SKILL.md", "by hand again");
    EXPECT_EQ(std::ranges::count(versions(), true, &HistoryEntry::isCurrent), 0);
    service->moveToTrash(demo).waitForFinished();
    EXPECT_EQ(versions().size(), 5) << "of a skill in the trash too";
    EXPECT_EQ(errorOf([&] { service->history(QUuid()).result(); }), Error::skillNotFound(QUuid()));
}

TEST_F(History, ComparesVersions)
{
    const QString edited = named(HistoryKind::replaced, VersionOrigin::codex, 3);
    const HistoryComparison now = service->compareVersion(demo, edited, {}).result();
    EXPECT_EQ(now.files, (QStringList{u"SKILL.md"_s, u"own.md"_s}));
    EXPECT_EQ(now.differences, (QList<FileDifference>{{u"SKILL.md"_s, FileChange::changed},
                                                      {u"notes/deep.md"_s, FileChange::added},
                                                      {u"own.md"_s, FileChange::removed}}));
    EXPECT_EQ(service->compareVersion(demo, revisionNamed(1), revisionNamed(2)).result().differences,
              (QList<FileDifference>{{u"SKILL.md"_s, FileChange::changed}}));
    EXPECT_EQ(service->readVersionFile(demo, edited, u"own.md"_s).result(), QByteArray("by Codex"));
    EXPECT_EQ(service->readVersionFile(demo, edited, u"none.md"_s).result(), std::nullopt);
    for (const char *path : {"../../../workspace.json", "/etc/passwd"})
        EXPECT_ANY_THROW(service->readVersionFile(demo, edited, QString::fromUtf8(path)).result()) << path;
    for (const char *name : {"..", "", "1-", "../../trash"})
        EXPECT_ANY_THROW(service->compareVersion(demo, QString::fromUtf8(name), {}).result()) << name;
}

TEST_F(History, BringsAVersionBackAsTheNextRevision)
{
    const QString edited = named(HistoryKind::replaced, VersionOrigin::codex, 3);
    EXPECT_EQ(errorOf([&] { service->revert(demo, 2, edited, {}).result(); }), Error::revisionConflict(2, 3));
    EXPECT_ANY_THROW(service->revert(demo, 3, edited, {u"none.md"_s}).result());

    const SkillDetail file = service->revert(demo, 3, edited, {u"own.md"_s}).result();
    EXPECT_EQ(file.manifest.revision, 4);
    EXPECT_EQ(file.skillMD, u"three"_s);
    EXPECT_EQ(file.syncState, SyncState::inSync);
    EXPECT_EQ(bytesOf(path("claude/demo/own.md")), "by Codex");
    EXPECT_EQ(bytesOf(path("workspace/skills/demo/notes/deep.md")), "by hand");

    const SkillDetail whole = service->revert(demo, 4, revisionNamed(1), {}).result();
    EXPECT_EQ(whole.skillMD, u"one"_s);
    EXPECT_EQ(whole.relativeFiles, (QStringList{u"SKILL.md"_s, u"vornel.json"_s}));
    EXPECT_FALSE(fs::exists(path("codex/demo/own.md")));
    EXPECT_EQ(service->revert(demo, 5, revisionNamed(1), {}).result().manifest.revision, 5)
        << "nothing to bring back";
}

TEST_F(History, PrunesOnlyWhatIsAskedFor)
{
    create(u"other"_s);
    const HistoryExtent all = service->historyExtent().result();
    EXPECT_EQ(all.entries, 6);
    EXPECT_GT(all.size, 0);
    const auto before = tree("workspace");
    EXPECT_EQ(service->prune({.keep = 5, .days = 0}).result().entries, 0);
    EXPECT_EQ(service->prune({.keep = 0, .days = 1}).result().entries, 0);
    const HistoryExtent rehearsed = service->prune({.keep = 2, .days = 0, .isRehearsal = true}).result();
    EXPECT_EQ(rehearsed.entries, 1) << "the first one: of the last two, all are needed";
    EXPECT_EQ(tree("workspace"), before);

    EXPECT_EQ(service->prune({.keep = 2, .days = 0}).result(), rehearsed);
    EXPECT_EQ(service->historyExtent().result(),
              (HistoryExtent{all.entries - rehearsed.entries, all.size - rehearsed.size}));
    service->prune({.keep = 0, .days = 0}).waitForFinished();
    EXPECT_EQ(versions().size(), 3) << "what the library held at its last two revisions";
    EXPECT_TRUE(versions().first().isCurrent);
    EXPECT_EQ(stateOf(u"demo"_s), SyncState::inSync);
}

} // namespace
} // namespace vornel
