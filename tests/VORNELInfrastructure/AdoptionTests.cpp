#include "Scratch.h"

#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/SkillFiles.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

constexpr TargetKind claude = TargetKind::claude;
constexpr TargetKind codex = TargetKind::codex;

/// A skill at revision 1 with some files, installed in both targets.
class Adoption : public testing::Test, protected TestWorkspace
{
protected:
    Adoption() : demo(create(u"demo"_s, u"one\ntwo\nthree\nfour\nfive\n"_s).manifest.id)
    {
        writeIn("workspace/skills", {{"notes.md", "notes"},
                                     {"scripts/run.sh", "run"},
                                     {"scripts/nested/vornel.json", "stays"},
                                     {"data.bin", std::string("\0data", 5)}});
        service->synchronize(demo).waitForFinished();
    }

    /// Writes these files of the skill; removes those without bytes.
    void writeIn(const std::string &root, const std::map<std::string, std::optional<std::string>> &files)
    {
        for (const auto &[file, bytes] : files) {
            const std::string below = root + "/demo/" + file;
            if (bytes)
                write(below, *bytes);
            else
                fs::remove_all(path(below));
        }
    }

    SkillDetail adopt(TargetKind target, const QStringList &paths = {}, std::optional<qint64> expected = {})
    {
        return service->adopt(demo, target, expected, paths).result();
    }

    /// What the skill's folder holds, but for the manifests.
    Tree library() const
    {
        Tree files = tree("workspace/skills/demo");
        std::erase_if(files, [](const auto &file) { return file.first.ends_with("vornel.json"); });
        return files;
    }

    Tree everything() const { return tree({}); }
    qint64 revision() { return service->loadSkill(demo).result().manifest.revision; }

    /// Whether the history holds this tree, but for the manifests, in an entry whose name begins so.
    bool isKept(const std::string &prefix, const Tree &files) const
    {
        const std::string history = "workspace/.vornel/history/" + uuidText(demo).toStdString();
        std::vector<Tree> entries = trees(history, prefix);
        for (Tree &entry : entries)
            std::erase_if(entry, [](const auto &file) { return file.first.ends_with("vornel.json"); });
        return std::ranges::find(entries, files) != entries.end();
    }

    const QUuid demo;
};

TEST_F(Adoption, MakesACopyTheNextRevision)
{
    const Tree before = library();
    writeIn("codex", {{"SKILL.md", "better"}, {"notes.md", {}}, {"new/deep.md", "new"}, {".own", "hidden"}});
    writeIn("claude", {{"lost.md", "replaced"}});
    const Tree replaced = tree("claude/demo");
    Tree edited = tree("codex/demo");
    edited.erase(".own");

    const SkillDetail skill = adopt(codex, {}, 1);
    EXPECT_EQ(skill.manifest.revision, 2);
    EXPECT_EQ(skill.skillMD, u"better"_s);
    EXPECT_EQ(skill.syncState, SyncState::inSync);
    EXPECT_EQ(library(), edited);
    EXPECT_EQ(bytesOf(path("workspace/skills/demo/scripts/nested/vornel.json")), "stays");
    EXPECT_EQ(bytesOf(path("codex/demo/.own")), "hidden") << "the copy itself isn't touched";
    EXPECT_EQ(tree("claude/demo"), edited);
    EXPECT_TRUE(isKept("replaced-library-1-", before));
    EXPECT_TRUE(isKept("2-", edited));
    EXPECT_TRUE(isKept("replaced-claude-2-", replaced));

    const Tree settled = everything();
    EXPECT_EQ(adopt(codex).manifest.revision, 2) << "nothing to adopt";
    EXPECT_EQ(everything(), settled);
}

TEST_F(Adoption, TakesChosenFilesAlone)
{
    writeIn("claude",
            {{"SKILL.md", "better"}, {"notes.md", {}}, {"scripts/run.sh", "walk"}, {"extra/a", "a"}});
    const Tree copy = tree("claude/demo");
    const SkillDetail skill = adopt(claude, {u"notes.md"_s, u"extra/"_s});
    EXPECT_EQ(skill.manifest.revision, 2);
    EXPECT_EQ(skill.syncState, SyncState::drifted) << "the rest still differs";
    EXPECT_EQ(tree("claude/demo"), copy);
    EXPECT_EQ(tree("codex/demo"), library());
    EXPECT_FALSE(library().contains("notes.md"));
    EXPECT_TRUE(library().contains("extra/a"));
    EXPECT_EQ(library().at("scripts/run.sh"), "run");

    const Tree before = everything();
    for (const QString &wrong : {u"missing.md"_s, u"vornel.json"_s, u"../codex"_s, u"/"_s, u"extr"_s})
        EXPECT_THROW(adopt(claude, {wrong}), Error) << wrong.toStdString();
    EXPECT_EQ(adopt(claude, {u"extra/a"_s}).manifest.revision, 2);
    EXPECT_EQ(everything(), before);

    writeIn("claude", {{"notes.md/inside", "a folder now"}, {"extra", {}}});
    write("claude/demo/extra", "a file now");
    adopt(claude, {u"notes.md/inside"_s, u"extra"_s});
    EXPECT_EQ(library().at("notes.md/inside"), "a folder now");
    EXPECT_EQ(library().at("extra"), "a file now");

    writeIn("claude", {{"scripts", {}}});
    write("claude/demo/scripts", "a file where manifests were");
    adopt(claude);
    EXPECT_EQ(library().at("scripts"), "a file where manifests were");
}

TEST_F(Adoption, RefusesWhatItCanNotTakeAndChangesNothing)
{
    const auto refused = [this](const auto &run, const std::string &because) {
        const Tree before = everything();
        EXPECT_ANY_THROW(run()) << because;
        EXPECT_EQ(everything(), before) << because;
    };
    writeIn("codex", {{"SKILL.md", "better"}});
    EXPECT_EQ(errorOf([this] { adopt(codex, {}, 7); }), Error::revisionConflict(7, 1));
    refused([this] { service->merge(demo, 7, {}).result(); }, "a stale revision");
    refused([this] { service->adoptHandEdits(demo, 7).result(); }, "a stale revision");
    writeIn("codex", {{"SKILL.md", " \n"}});
    EXPECT_EQ(errorOf([this] { adopt(codex); }), Error::missingSkillFile(u"demo"_s));
    writeIn("codex", {{"SKILL.md", {}}});
    refused([this] { adopt(codex); }, "no text");
    refused([this] { adopt(codex, {u"SKILL.md"_s}); }, "no text");
    writeIn("codex", {{"SKILL.md", "\xff"}});
    refused([this] { adopt(codex); }, "no UTF-8");
    fs::create_symlink(path("claude"), path("codex/demo/link"));
    refused([this] { adopt(codex); }, "a link");
    refused([this] { service->merge(demo, {}, {}).result(); }, "a link");
    fs::remove_all(path("codex/demo"));
    EXPECT_EQ(errorOf([this] { adopt(codex); }), integrity(u"Codex n’a pas de copie de cette compétence."_s));
}

TEST_F(Adoption, JoinsWhatBothCopiesHaveChanged)
{
    writeIn("claude", {{"SKILL.md", "ONE\ntwo\nthree\nfour\nfive\n"},
                       {"notes.md", {}},
                       {"scripts/run.sh", "the same"},
                       {"data.bin", std::string("\0claude", 7)},
                       {"added/by-claude", "c"}});
    writeIn("codex", {{"SKILL.md", "one\ntwo\nthree\nfour\nFIVE\n"},
                      {"scripts/run.sh", "the same"},
                      {"added/by-codex", "x"}});
    const Tree former = tree("claude/demo");
    const MergeResult result = service->merge(demo, 1, {}).result();
    EXPECT_TRUE(result.conflicts.isEmpty());
    ASSERT_TRUE(result.skill);
    EXPECT_EQ(result.skill->manifest.revision, 2);
    EXPECT_EQ(result.skill->syncState, SyncState::inSync);
    const Tree expected{{"SKILL.md", "ONE\ntwo\nthree\nfour\nFIVE\n"},
                        {"added/", ""},
                        {"added/by-claude", "c"},
                        {"added/by-codex", "x"},
                        {"data.bin", std::string("\0claude", 7)},
                        {"scripts/", ""},
                        {"scripts/nested/", ""},
                        {"scripts/run.sh", "the same"}};
    EXPECT_EQ(library(), expected);
    EXPECT_EQ(tree("claude/demo"), expected);
    EXPECT_EQ(tree("codex/demo"), expected);
    EXPECT_TRUE(isKept("merged-claude-", former));

    const Tree before = everything();
    EXPECT_EQ(service->merge(demo, {}, {}).result().skill->manifest.revision, 2) << "nothing to join";
    EXPECT_EQ(everything(), before);
}

TEST_F(Adoption, LeavesOutdatedAndMissingCopiesOutOfAMerge)
{
    const fs::path former = path("former");
    fs::copy(path("claude/demo"), former, fs::copy_options::recursive);
    service->saveSkill(demo, 1, u"saved since"_s).waitForFinished();
    fs::remove_all(path("claude/demo"));
    fs::rename(former, path("claude/demo"));
    writeIn("codex", {{"notes.md", "edited"}});
    service->merge(demo, {}, {}).waitForFinished();
    EXPECT_EQ(library().at("SKILL.md"), "saved since");
    EXPECT_EQ(library().at("notes.md"), "edited");

    fs::remove_all(path("claude/demo"));
    writeIn("codex", {{"notes.md", "once more"}});
    EXPECT_EQ(service->merge(demo, {}, {}).result().skill->syncState, SyncState::inSync);
    EXPECT_EQ(tree("claude/demo"), library());
    EXPECT_EQ(library().at("notes.md"), "once more");
}

TEST_F(Adoption, UndoesNothingThatWasEditedByHand)
{
    writeIn("claude", {{"notes.md", "de Claude"}, {"SKILL.md", "ONE\ntwo\nthree\nfour\nfive\n"}});
    writeIn("codex", {{"added.md", "de Codex"}});
    writeIn(
        "workspace/skills",
        {{"by-hand.md", "à la main"}, {"SKILL.md", "one\ntwo\nthree\nfour\nFIVE\n"}, {"scripts/run.sh", {}}});
    const Tree edited = tree("claude/demo");
    EXPECT_EQ(service->adoptHandEdits(demo, 1).result().syncState, SyncState::drifted);
    EXPECT_EQ(tree("claude/demo"), edited) << "what an assistant has edited meanwhile stays to be merged";
    ASSERT_TRUE(service->merge(demo, 2, {}).result().skill);
    const Tree merged = library();
    EXPECT_EQ(merged.at("by-hand.md"), "à la main");
    EXPECT_EQ(merged.at("notes.md"), "de Claude");
    EXPECT_EQ(merged.at("added.md"), "de Codex");
    EXPECT_EQ(merged.at("SKILL.md"), "ONE\ntwo\nthree\nfour\nFIVE\n");
    EXPECT_FALSE(merged.contains("scripts/run.sh"));

    writeIn("claude", {{"notes.md", "encore de Claude"}, {"added.md", "même par Claude"}});
    writeIn("workspace/skills", {{"notes.md", "à la main aussi"}, {"other.md", "à la main"}});
    const QList<MergeConflict> conflicts = service->merge(demo, {}, {}).result().conflicts;
    ASSERT_EQ(conflicts.size(), 1);
    EXPECT_EQ(conflicts.first().relativePath, u"notes.md"_s);
    const MergeSettlement settlement{u"notes.md"_s, conflicts.first().basis, claude};
    ASSERT_TRUE(service->merge(demo, {}, {settlement}).result().skill);
    EXPECT_EQ(library().at("notes.md"), "encore de Claude");
    EXPECT_EQ(library().at("other.md"), "à la main");
    EXPECT_EQ(library().at("added.md"), "même par Claude");
}

TEST_F(Adoption, JoinsNoTextsThatAreTooLargeTogether)
{
    const std::string half(SkillFiles::sizeLimit / 2, 'x');
    writeIn("claude", {{"SKILL.md", half + "\none\ntwo\nthree\nfour\nfive\n"}});
    writeIn("codex", {{"SKILL.md", "one\ntwo\nthree\nfour\nfive\n" + half}});
    const QList<MergeConflict> conflicts = service->merge(demo, 1, {}).result().conflicts;
    ASSERT_EQ(conflicts.size(), 1) << "joined, it would be too large";
    EXPECT_EQ(conflicts.first().markedText, std::nullopt);
    EXPECT_EQ(revision(), 1);
}

TEST_F(Adoption, AsksWhatIsToBecomeOfConflicts)
{
    writeIn("claude", {{"SKILL.md", "\uFEFFone\nTWO\nthree\nfour\nfive\n"},
                       {"data.bin", std::string("\0claude", 7)},
                       {"notes.md", {}},
                       {"scripts", {}},
                       {"scripts-old", "beside"}});
    write("claude/demo/scripts", "a file now");
    writeIn("codex", {{"SKILL.md", "\uFEFFone\nSecond\nthree\nfour\nfive\n"},
                      {"data.bin", std::string("\0codex", 6)},
                      {"notes.md", "edited"},
                      {"scripts/run.sh", "edited"}});
    const Tree before = everything();
    const QList<MergeConflict> conflicts = service->merge(demo, 1, {}).result().conflicts;
    EXPECT_EQ(everything(), before) << "nothing is written while there are conflicts";
    QStringList paths;
    QList<MergeSettlement> settlements;
    for (const MergeConflict &conflict : conflicts) {
        paths.append(conflict.relativePath);
        EXPECT_EQ(conflict.markedText.has_value(), conflict.relativePath == u"SKILL.md"_s);
        settlements.append({conflict.relativePath, conflict.basis, codex});
    }
    EXPECT_EQ(paths, (QStringList{u"SKILL.md"_s, u"data.bin"_s, u"notes.md"_s, u"scripts"_s}));
    EXPECT_EQ(conflicts.first().markedText,
              u"\uFEFFone\n<<<<<<< Claude\nTWO\n=======\nSecond\n>>>>>>> Codex\nthree\nfour\nfive\n"_s);
    settlements[0].content = u"One, first\n"_s;
    settlements[1].content = u"no text can settle what is none"_s;
    EXPECT_EQ(service->merge(demo, 1, settlements).result().conflicts.size(), 1);
    EXPECT_EQ(everything(), before);

    settlements[1].content = claude;
    writeIn("codex", {{"notes.md", "edited once more"}});
    const QList<MergeConflict> again = service->merge(demo, 1, settlements).result().conflicts;
    ASSERT_EQ(again.size(), 1) << "what was settled has changed since";
    settlements[2].basis = again.first().basis;
    ASSERT_TRUE(service->merge(demo, 1, settlements).result().skill);
    const Tree merged = library();
    EXPECT_EQ(merged.at("SKILL.md"), "One, first\n");
    EXPECT_EQ(merged.at("data.bin"), std::string("\0claude", 7));
    EXPECT_EQ(merged.at("notes.md"), "edited once more");
    EXPECT_EQ(merged.at("scripts/run.sh"), "edited");
    EXPECT_EQ(merged.at("scripts-old"), "beside");
    EXPECT_FALSE(merged.contains("scripts"));
}

TEST_F(Adoption, MakesARevisionOfWhatWasEditedByHand)
{
    const QUuid other = create(u"other"_s).manifest.id;
    EXPECT_TRUE(service->editedByHand({demo, other}).result().isEmpty());
    const Tree before = everything();
    EXPECT_EQ(service->adoptHandEdits(demo, 1).result().manifest.revision, 1) << "nothing to take over";
    EXPECT_EQ(everything(), before);

    writeIn("workspace/skills", {{"SKILL.md", "by hand"}, {"notes.md", {}}});
    const Tree edited = library();
    EXPECT_EQ(service->editedByHand({demo, other}).result(), QSet<QUuid>{demo});
    const SkillDetail skill = service->adoptHandEdits(demo, 1).result();
    EXPECT_EQ(skill.manifest.revision, 2);
    EXPECT_EQ(skill.syncState, SyncState::inSync);
    EXPECT_EQ(library(), edited);
    EXPECT_TRUE(isKept("2-", edited));
    EXPECT_FALSE(isKept("1-", edited));
    EXPECT_TRUE(service->editedByHand({demo}).result().isEmpty());
}

} // namespace
} // namespace vornel
