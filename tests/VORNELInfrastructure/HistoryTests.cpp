#include "Scratch.h"

#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/History/KeptVersion.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

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

    std::string folderOf(const QString &version) const
    {
        return "workspace/.vornel/history/" + uuidText(demo).toStdString() + '/' + version.toStdString();
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

/// How old a version is counts from when another took its place.
TEST_F(History, PrunesByTheAgeOfTheReplacement)
{
    service->saveSkill(demo, 3, u"four"_s).waitForFinished();
    const auto made = [this](qint64 revision, int daysAgo) {
        const std::string file = folderOf(revisionNamed(revision)) + "/vornel.json";
        QJsonObject manifest =
            QJsonDocument::fromJson(QByteArray::fromStdString(bytesOf(path(file)))).object();
        manifest[u"updatedAt"] = currentInstant().addDays(-daysAgo).toString(Qt::ISODate);
        write(file, QJsonDocument(manifest).toJson().toStdString());
    };
    made(1, 300);
    made(2, 200);
    made(3, 10);
    const QString edited = named(HistoryKind::replaced, VersionOrigin::codex, 3);
    QString agedName = edited;
    agedName.replace(QRegularExpression(u"-\\d{8}T"_s), u"-20200101T"_s);
    fs::rename(path(folderOf(edited)), path(folderOf(agedName)));
    write(folderOf(u"replaced-claude-"_s + uuidText(QUuid::createUuid())) + "/SKILL.md",
          "of an earlier version");
    QStringList left;
    for (const HistoryEntry &version : versions())
        left.append(version.entry);
    left.removeOne(
        revisionNamed(1)); // which the second has replaced long ago, as the third hasn't the second
    left.removeOne(agedName);

    service->prune({.keep = 0, .days = 90}).waitForFinished();
    QStringList now;
    for (const HistoryEntry &version : versions())
        now.append(version.entry);
    EXPECT_EQ(now, left);
}

TEST_F(History, KeepsWhatBothAssistantsHaveOnce)
{
    for (const char *target : {"claude", "codex"})
        write(std::string(target) + "/demo/SKILL.md", "by both");
    service->synchronize(demo).waitForFinished();
    const auto count = [this](const std::string &text) {
        int found = 0;
        for (const HistoryEntry &version : versions())
            found += bytesOf(path(folderOf(version.entry) + "/SKILL.md")) == text ? 1 : 0;
        return found;
    };
    EXPECT_EQ(count("by both"), 1);

    for (const char *target : {"claude", "codex"}) {
        write(std::string(target) + "/demo/SKILL.md", "by both, hidden");
        write(std::string(target) + "/demo/.own", target);
    }
    service->synchronize(demo).waitForFinished();
    EXPECT_EQ(count("by both, hidden"), 2) << "each has a file of its own";
}

TEST(KeptVersion, ReadsEveryNameThatWasEverGiven)
{
    const std::string uuid = "0A1B2C3D-4E5F-4A6B-8C7D-9E0F1A2B3C4D";
    const auto revision = KeptVersion::named("12-" + uuid);
    ASSERT_TRUE(revision);
    EXPECT_EQ(revision->kind, HistoryKind::revision);
    EXPECT_EQ(revision->origin, VersionOrigin::library);
    EXPECT_EQ(revision->revision, 12);
    EXPECT_FALSE(revision->replacedAt);

    const QDateTime moment(QDate(2026, 3, 3), QTime(14, 32, 5, 123), Qt::UTC);
    const std::string digest(64, 'a');
    for (const std::string &name : {"replaced-codex-7-20260303T143205123Z-" + uuid,
                                    "merged-codex-" + digest + "-7-20260303T143205123Z-" + uuid}) {
        const auto replaced = KeptVersion::named(name);
        ASSERT_TRUE(replaced) << name;
        EXPECT_EQ(replaced->kind, HistoryKind::replaced);
        EXPECT_EQ(replaced->origin, VersionOrigin::codex);
        EXPECT_EQ(replaced->revision, 7);
        EXPECT_EQ(replaced->replacedAt, moment);
    }
    for (const std::string &name : {"replaced-library-" + uuid, "merged-library-" + digest + '-' + uuid}) {
        const auto replaced = KeptVersion::named(name);
        ASSERT_TRUE(replaced) << name;
        EXPECT_EQ(replaced->origin, VersionOrigin::library);
        EXPECT_EQ(replaced->revision, 0);
        EXPECT_FALSE(replaced->replacedAt);
    }
    for (const std::string &name : {uuid, "12-" + uuid + "x", "replaced-other-" + uuid,
                                    std::string("12-notes"), "replaced-codex-7-" + uuid, std::string("..")})
        EXPECT_FALSE(KeptVersion::named(name)) << name;
}

} // namespace
} // namespace vornel
