#include "FaultyFileSystem.h"
#include "Sample.h"
#include "Scratch.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

constexpr TargetKind codex = TargetKind::codex;

/// What undoing is about: not dates and revisions, which go on.
struct Standing
{
    Tree library;
    Tree claude;
    Tree codex;
    QMap<QString, QString> categories; ///< of the active skills

    bool operator==(const Standing &) const = default;
};

/// "demo" has files, and was edited by both assistants and by hand; "other" has lost a copy.
struct EditedLibrary : TestWorkspace
{
    explicit EditedLibrary(std::shared_ptr<FileSystem> files = std::make_shared<PosixFileSystem>())
        : TestWorkspace(std::move(files)),
          demo(create(u"demo"_s, u"one\ntwo\nthree\n"_s).manifest.id),
          other(create(u"other"_s).manifest.id)
    {
        write("workspace/skills/demo/notes.md", "notes");
        service->synchronize(demo).waitForFinished();
        write("workspace/skills/demo/by-hand.md", "by hand");
        write("claude/demo/SKILL.md", "one, says claude\ntwo\nthree\n");
        write("claude/demo/.own", "hidden");
        write("codex/demo/deep/own.md", "own");
        fs::remove_all(path("claude/other"));
    }

    /// Without hidden files, which stay in the history, and without a copy that was merely missing.
    Standing standing() const
    {
        Standing now{tree("workspace/skills"), tree("claude"), tree("codex"), {}};
        std::erase_if(now.library, [](const auto &file) { return file.first.ends_with("vornel.json"); });
        std::erase_if(now.claude, [](const auto &file) {
            return file.first == "demo/.own" || file.first.starts_with("other/");
        });
        for (const SkillSummary &skill : service->reload().result().skills)
            now.categories.insert(skill.slug, skill.category);
        return now;
    }

    std::optional<UndoStep> step() const { return service->undoableStep(); }
    void undo() const { service->undo(step().value().id).waitForFinished(); }

    void save() const
    {
        service->saveSkill(demo, service->loadSkill(demo).result().manifest.revision, u"new"_s)
            .waitForFinished();
    }

    void trash() const { service->moveToTrash({demo, other}).waitForFinished(); }

    const QUuid demo;
    const QUuid other;
};

struct Operation
{
    std::string name;
    std::function<void(EditedLibrary &)> run;
    std::function<void(EditedLibrary &)> prepare = [](EditedLibrary &) {};
};

void PrintTo(const Operation &operation, std::ostream *stream)
{
    *stream << operation.name;
}

class Undo : public testing::TestWithParam<Operation>, protected EditedLibrary
{};

TEST_P(Undo, BringsBackWhatStoodBeforeAndThenWhatCameAfter)
{
    GetParam().prepare(*this);
    const Standing before = standing();
    GetParam().run(*this);
    const Standing after = standing();
    ASSERT_NE(after, before);
    const QUuid done = step().value().id;

    for (int round = 0; round < 2; ++round) {
        EXPECT_FALSE(step().value().isUndo);
        undo();
        EXPECT_EQ(standing(), before) << round;
        EXPECT_TRUE(step().value().isUndo);
        undo();
        EXPECT_EQ(standing(), after) << round;
    }
    EXPECT_THROW(service->undo(done).waitForFinished(), Error) << "it isn't the last step any more";
}

INSTANTIATE_TEST_SUITE_P(
    Every, Undo,
    testing::Values(
        Operation{"save", [](auto &library) { library.save(); }},
        Operation{
            "adopt",
            [](auto &library) { library.service->adopt(library.demo, codex, 1, {}).waitForFinished(); }},
        Operation{"adoptFile",
                  [](auto &library) {
                      library.service->adopt(library.demo, codex, 1, {u"deep"_s}).waitForFinished();
                  }},
        Operation{"merge",
                  [](auto &library) { library.service->merge(library.demo, 1, {}).waitForFinished(); }},
        Operation{"adoptHandEdits",
                  [](auto &library) { library.service->adoptHandEdits(library.demo, 1).waitForFinished(); },
                  [](auto &library) {
                      library.service->synchronize(library.demo).waitForFinished();
                      library.write("workspace/skills/demo/SKILL.md", "by hand once more");
                  }},
        Operation{"revert",
                  [](auto &library) {
                      const QString first = library.service->history(library.demo).result().last().entry;
                      library.service->revert(library.demo, 1, first, {}).waitForFinished();
                  }},
        Operation{"changeFiles",
                  [](auto &library) {
                      library.service
                          ->changeFiles(library.demo,
                                        {MovedPath{u"notes.md"_s, u"deep/notes.md"_s},
                                         RemovedPath{u"by-hand.md"_s}, WrittenFile{u"SKILL.md"_s, "new"},
                                         NewFolder{u"empty"_s}},
                                        1)
                          .waitForFinished();
                  }},
        Operation{"synchronize",
                  [](auto &library) { library.service->synchronize(library.demo).waitForFinished(); }},
        Operation{"synchronizeSeveral",
                  [](auto &library) {
                      library.service->synchronizeSkills({library.other, library.demo}, {}).waitForFinished();
                  }},
        Operation{"trash", [](auto &library) { library.trash(); }},
        Operation{"rename",
                  [](auto &library) {
                      library.service->setProperties({library.demo}, {.slug = u"renamed"_s}, {}).result();
                  }},
        Operation{
            "assign",
            [](auto &library) {
                library.service->assignSkills({library.demo, library.other}, u"quality"_s).waitForFinished();
            },
            [](auto &library) {
                library.service->assignSkills({library.other}, u"design"_s).waitForFinished();
            }}),
    testing::PrintToStringParamName());

/// Something that happens after an operation, and is no operation of the same service.
struct Disturbance
{
    std::string what;
    std::function<void(EditedLibrary &)> operation;
    std::function<void(EditedLibrary &)> disturb;
};

TEST(Undoing, RefusesOnceAnythingHasMovedOnAndChangesNothing)
{
    const auto save = [](auto &library) { library.save(); };
    const auto trash = [](auto &library) { library.trash(); };
    const auto assign = [](auto &library) {
        library.service->assignSkills({library.demo, library.other}, u"quality"_s).waitForFinished();
    };
    const auto synchronize = [](auto &library) {
        library.service->synchronizeSkills({library.demo}, {}).waitForFinished();
    };
    const auto asAnother = [](const auto &change) {
        return [change](EditedLibrary &library) {
            LocalWorkspaceService another(library.manager);
            another.bootstrap(library.path("workspace"), library.path("claude"), library.path("codex"))
                .waitForFinished();
            change(another, library);
        };
    };
    const std::vector<Disturbance> disturbances{
        {"saved elsewhere", save, asAnother([](auto &another, auto &library) {
             another.saveSkill(library.demo, 2, u"elsewhere"_s).waitForFinished();
         })},
        {"another category", assign, asAnother([](auto &another, auto &library) {
             another.assignSkills({library.other}, u"design"_s).waitForFinished();
         })},
        {"gone to the trash", synchronize, asAnother([](auto &another, auto &library) {
             another.moveToTrash(library.demo).waitForFinished();
         })},
        {"one of them deleted", trash, asAnother([](auto &another, auto &library) {
             another.deletePermanently(library.other).waitForFinished();
         })},
        {"the slug taken", trash,
         asAnother([](auto &another, auto &library) { another.restore(library.other).waitForFinished(); })},
        {"edited by hand", save, [](auto &library) { library.write("workspace/skills/demo/x", "x"); }},
        {"a copy edited", save, [](auto &library) { library.write("claude/demo/x", "x"); }},
        {"a copy removed", synchronize, [](auto &library) { fs::remove_all(library.path("codex/demo")); }},
        {"a copy's place taken", trash, [](auto &library) { library.write("codex/other/SKILL.md", "x"); }},
        {"a copy's bytes gone", trash,
         [](auto &library) {
             for (const std::string &name : library.names("workspace/.vornel/recovery"))
                 fs::remove_all(library.path("workspace/.vornel/recovery/" + name));
         }},
        {"the history gone", save, [](auto &library) {
             fs::remove_all(
                 library.path("workspace/.vornel/history/" + uuidText(library.demo).toStdString()));
         }}};
    for (const Disturbance &disturbance : disturbances) {
        EditedLibrary library;
        disturbance.operation(library);
        disturbance.disturb(library);
        const Tree before = library.tree({});
        const QUuid step = library.step().value().id;
        EXPECT_THROW(library.service->undo(step).waitForFinished(), Error) << disturbance.what;
        EXPECT_EQ(library.tree({}), before) << disturbance.what;
        EXPECT_FALSE(library.step()) << disturbance.what << ": it isn't offered again";
    }
}

TEST(Undoing, RemembersTheLastOperationAlone)
{
    EditedLibrary library;
    library.save();
    {
        const QUuid saved = library.step().value().id;
        library.service->reload().waitForFinished();
        library.service->loadSkill(library.demo).waitForFinished();
        EXPECT_EQ(library.step().value().id, saved) << "who only reads changes nothing";
    }
    library.create(u"third"_s);
    EXPECT_FALSE(library.step());
    library.trash();
    library.service->restore(library.demo).waitForFinished();
    EXPECT_FALSE(library.step());
    library.service->synchronize(library.demo).waitForFinished();
    EXPECT_FALSE(library.step()) << "nothing was replaced";
}

TEST(Undoing, TakesBackWhatWasDoneBeforeAFailure)
{
    EditedLibrary library;
    library.service = std::make_unique<LocalWorkspaceService>(library.manager, FailureScope::Skill);
    library.bootstrap();
    const Standing before = library.standing();
    fs::create_symlink("nowhere", library.path("claude/demo/link"));
    EXPECT_EQ(errorOf([&] { library.save(); }), Error::partialSync({TargetKind::claude}));
    EXPECT_EQ(bytesOf(library.path("codex/demo/SKILL.md")), "new");
    library.undo();
    fs::remove(library.path("claude/demo/link"));
    EXPECT_EQ(library.standing(), before);
}

TEST(Undoing, LeavesWhatHasFailedInTheOtherTargetKnown)
{
    const auto files = std::make_shared<FaultyFileSystem>();
    EditedLibrary library(files);
    files->refusesRename = [copy = library.path("claude/demo")](const fs::path &, const fs::path &to) {
        return to == copy;
    };
    EXPECT_EQ(errorOf([&] { library.service->synchronize(library.demo).result(); }),
              Error::partialSync({TargetKind::claude}));
    library.undo();
    EXPECT_EQ(library.stateOf(u"demo"_s), SyncState::failed);
}

/// What fails for a passing reason, wherever that is, can be tried again, and comes to its end then.
class FailingUndo : public testing::TestWithParam<Operation>
{
protected:
    static void tryToUndo(EditedLibrary &library)
    try {
        library.undo();
    } catch (const std::exception &) { // NOLINT(bugprone-empty-catch)
    }

    /// A copy that can't leave the recovery folder stays there, as its skill is back without it.
    static Standing checkedOf(const EditedLibrary &library)
    {
        Standing standing = library.standing();
        if (GetParam().name == "trash")
            standing.claude = standing.codex = {};
        return standing;
    }
};

TEST_P(FailingUndo, CanBeTriedAgain)
{
    constexpr auto change = FaultyFileSystem::Call::Change;
    const int stride = sampleStride(1);
    const int shift = static_cast<int>(GetParam().name.size()) % stride; // of each operation other changes
    for (int number = 1 + shift;; number += stride) {
        const auto files = std::make_shared<FaultyFileSystem>();
        EditedLibrary library(files);
        const Standing before = checkedOf(library);
        GetParam().run(library);
        const Standing after = checkedOf(library);

        files->failAt(number, change);
        tryToUndo(library);
        if (!files->hasFailed())
            break;
        files->failAt(0, change);
        ASSERT_TRUE(library.step()) << "change " << number;
        if (!library.step()->isUndo)
            library.undo();
        EXPECT_TRUE(checkedOf(library) == before) << "change " << number;
        library.undo();
        EXPECT_TRUE(checkedOf(library) == after) << "change " << number;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Every, FailingUndo,
    testing::Values(
        Operation{"save", [](auto &library) { library.save(); }},
        Operation{"synchronize",
                  [](auto &library) { library.service->synchronize(library.demo).waitForFinished(); }},
        Operation{"trash", [](auto &library) { library.trash(); }},
        Operation{
            "assign",
            [](auto &library) {
                library.service->assignSkills({library.demo, library.other}, u"quality"_s).waitForFinished();
            }}),
    testing::PrintToStringParamName());

} // namespace
} // namespace vornel
