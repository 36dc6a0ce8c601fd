/// Different, full and read-only volumes for the workspace and for each assistant's folder: real ones, in
/// memory.

#include "InterruptedFileSystem.h"
#include "Scratch.h"
#include "Volume.h"

#include <VORNELCore/ErrorMessage.h>
#include <VORNELCore/SerializedForms.h>

#include <algorithm>
#include <array>
#include <iostream>
#include <map>
#include <set>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

namespace fs = std::filesystem;

bool hasOwnMounts = false;

constexpr std::array places{"workspace", "claude", "codex"};

const std::string oldText = "ancien" + std::string(10'000, '.'); // several pages
const std::string newText = "nouveau" + std::string(20'000, '.');
const std::string editedText = "modifié à la main";
const QString isFull = u"Le volume est plein"_s;
const QString isReadOnly = u"Le volume est en lecture seule"_s;

/// The skills that every case begins with.
struct Skills
{
    QUuid demo; ///< of the category "equipe", its copy for codex edited by hand
    QUuid second;
    QUuid bystander;
    QUuid thrown; ///< in the trash, of the category "equipe"
    QUuid thrownToo;
};

/// A change of the workspace, and how to tell that it has been made.
struct Operation
{
    const char *name;
    std::function<void(LocalWorkspaceService &)> run;
    std::function<bool(const WorkspaceOverview &)> isDone;
    enum class Removes { Nothing, Copies, Skills } removes = Removes::Nothing;
};

/// Makes a volume hold so much more and no more, in pages or in files.
struct Shortage
{
    const char *name;
    void (Volume::*leave)(int count) const;
};

constexpr std::array shortages{Shortage{"full", &Volume::leavePages},
                               Shortage{"out of files", &Volume::leaveFiles}};

const SkillSummary *find(const QList<SkillSummary> &skills, const QUuid &id)
{
    const auto found = std::ranges::find(skills, id, &SkillSummary::id);
    return found == skills.end() ? nullptr : &*found;
}

bool hasSlug(const WorkspaceOverview &overview, const QString &slug)
{
    return std::ranges::count(overview.skills, slug, &SkillSummary::slug) == 1;
}

bool isTrashed(const WorkspaceOverview &overview, const QUuid &id)
{
    return find(overview.trashedSkills, id) != nullptr;
}

std::vector<Operation> changesOfSkills(const Skills &skills)
{
    using Service = LocalWorkspaceService;
    using Overview = WorkspaceOverview;
    return {
        {"create",
         [](Service &service) {
             CreateSkillRequest request;
             request.slug = request.displayName = u"created"_s;
             request.category = SkillCategory::otherID;
             service.createSkill(request).waitForFinished();
         },
         [](const Overview &now) { return hasSlug(now, u"created"_s); }},
        {"save",
         [=](Service &service) {
             service.saveSkill(skills.demo, 1, QString::fromStdString(newText)).waitForFinished();
         },
         [=](const Overview &now) { return find(now.skills, skills.demo)->revision == 2; }},
        {"assign",
         [=](Service &service) {
             service.assignSkills({skills.demo, skills.second}, u"design"_s).waitForFinished();
         },
         [=](const Overview &now) {
             return find(now.skills, skills.demo)->category == u"design"_s &&
                    find(now.skills, skills.second)->category == u"design"_s;
         }},
        {"delete category", [](Service &service) { service.deleteCategory(u"equipe"_s).waitForFinished(); },
         [=](const Overview &now) {
             return std::ranges::count(now.categories, u"equipe"_s, &SkillCategory::id) == 0 &&
                    find(now.trashedSkills, skills.thrown)->category == SkillCategory::otherID;
         }},
        {"synchronise", [=](Service &service) { service.synchronize(skills.demo).waitForFinished(); },
         [=](const Overview &now) { return find(now.skills, skills.demo)->syncState == SyncState::inSync; }},
        {"import",
         [](Service &service) { service.commitImport(service.scanImports().result().id).waitForFinished(); },
         [](const Overview &now) { return hasSlug(now, u"left"_s) && hasSlug(now, u"right"_s); }},
    };
}

std::vector<Operation> changesOfTheTrash(const Skills &skills)
{
    using Service = LocalWorkspaceService;
    using Overview = WorkspaceOverview;
    return {
        {"trash one", [=](Service &service) { service.moveToTrash(skills.demo).waitForFinished(); },
         [=](const Overview &now) { return isTrashed(now, skills.demo); }, Operation::Removes::Copies},
        {"trash several",
         [=](Service &service) {
             // Those that an earlier try has moved are in the trash.
             QSet<QUuid> active;
             for (const SkillSummary &skill : service.reload().result().skills)
                 active.insert(skill.id);
             service.moveToTrash(active.intersect({skills.demo, skills.second})).waitForFinished();
         },
         [=](const Overview &now) { return isTrashed(now, skills.demo) && isTrashed(now, skills.second); },
         Operation::Removes::Copies},
        {"restore", [=](Service &service) { service.restore(skills.thrown).waitForFinished(); },
         [=](const Overview &now) { return find(now.skills, skills.thrown) != nullptr; }},
        {"delete for good",
         [=](Service &service) { service.deletePermanently(skills.thrown).waitForFinished(); },
         [=](const Overview &now) { return !isTrashed(now, skills.thrown); }, Operation::Removes::Skills},
        {"empty trash", [](Service &service) { service.emptyTrash().waitForFinished(); },
         [](const Overview &now) { return now.trashedSkills.isEmpty(); }, Operation::Removes::Skills},
    };
}

class Volumes : public testing::TestWithParam<const char *>, protected Scratch
{
protected:
    void SetUp() override
    {
        if (!hasOwnMounts)
            GTEST_SKIP() << "this machine allows no mounts, not even in a namespace of one's own";
        m_base = std::make_unique<Volume>(path());
        furnish();
        fs::create_directories(path("pristine"));
        for (const char *root : places)
            fs::copy(path(root), path(std::string("pristine/") + root), recursive);
    }

    void TearDown() override { m_service.reset(); }

    /// Begins anew without anything, with `place` on a volume of its own.
    void empty(const std::string &place)
    {
        m_service.reset();
        m_volume.reset();
        for (const char *root : places)
            fs::remove_all(path(root));
        m_volume = std::make_unique<Volume>(path(place));
    }

    /// The same with the skills.
    void reset(const std::string &place)
    {
        empty(place);
        for (const char *root : places)
            fs::copy(path(std::string("pristine/") + root), path(root), recursive);
        start();
    }

    void start()
    {
        m_service = std::make_unique<LocalWorkspaceService>(m_files);
        m_service->bootstrap(path("workspace"), path("claude"), path("codex")).waitForFinished();
    }

    int tryEveryShortage(const Shortage &shortage, const Operation &operation);
    int tryEveryInterruption(const Operation &operation);

private:
    QUuid create(const QString &slug);
    void furnish();
    std::vector<int> callsAfterChanges(const Operation &operation);
    std::map<std::string, fs::file_time_type> state() const;
    bool endsInTrouble(const Operation &operation, const QString &sentence);
    void expectClearError(const std::exception &error, const QString &sentence) const;
    void expectWhole(const Operation &operation) const;
    void expectUntouched() const;
    void expectNothingHalfDone(const Operation &operation) const;
    void expectMended(const Operation &operation);

    std::string folderOf(const QUuid &id, const std::string &slug) const;
    std::string textOf(const std::string &folder) const { return bytesOf(path(folder + "/SKILL.md")); }

    static constexpr auto recursive = fs::copy_options::recursive;

protected:
    std::unique_ptr<Volume> m_base;
    std::unique_ptr<Volume> m_volume;
    std::shared_ptr<InterruptedFileSystem> m_files = std::make_shared<InterruptedFileSystem>();
    std::unique_ptr<LocalWorkspaceService> m_service;
    Skills m_skills;
};

QUuid Volumes::create(const QString &slug)
{
    CreateSkillRequest request;
    request.slug = request.displayName = slug;
    request.category = slug == u"second"_s ? SkillCategory::otherID : u"equipe"_s;
    request.skillMD = QString::fromStdString(oldText);
    const QUuid id = m_service->createSkill(request).result().manifest.id;
    write("workspace/skills/" + slug.toStdString() + "/reference/file", "extra");
    m_service->synchronize(id).waitForFinished();
    return id;
}

void Volumes::furnish()
{
    start();
    m_service->createCategory(u"Équipe"_s, u"#123456"_s).waitForFinished();
    m_skills = {create(u"demo"_s), create(u"second"_s), create(u"bystander"_s), create(u"thrown"_s),
                create(u"thrown-too"_s)};
    m_service->assignSkills({m_skills.bystander}, SkillCategory::otherID).waitForFinished();
    m_service->moveToTrash({m_skills.thrown, m_skills.thrownToo}).waitForFinished();
    write("codex/demo/SKILL.md", editedText);
    write("claude/left/SKILL.md", "name: Gauche");
    write("codex/right/SKILL.md", "name: Droite");
    write("codex/Étranger/notes", "à quelqu’un d’autre");
    m_service.reset();
}

/// The trouble's cause must be named, by the error itself or by what the copies of a skill say.
void Volumes::expectClearError(const std::exception &error, const QString &sentence) const
{
    const QString message = errorMessage(error);
    if (message.startsWith(sentence + u"\u00A0: /"_s))
        return;
    const auto *workspace = dynamic_cast<const VORNELWorkspaceError *>(&error);
    ASSERT_TRUE(workspace != nullptr && workspace->as<WorkspaceErrorCase::PartialSync>() != nullptr)
        << message.toStdString();
    QStringList reasons;
    for (const SkillSummary &skill : m_service->reload().result().skills) {
        for (const TargetInspection &copy : m_service->inspectTargets(skill.id).result())
            reasons.append(copy.reason);
    }
    EXPECT_TRUE(std::ranges::any_of(reasons, [&](const QString &reason) {
        return reason.startsWith(sentence);
    })) << reasons.join(u'|').toStdString();
}

/// Where a skill is, in the library or in the trash; empty when it is in neither.
std::string Volumes::folderOf(const QUuid &id, const std::string &slug) const
{
    for (const std::string &folder :
         {"workspace/skills/" + slug, "workspace/.vornel/trash/" + uuidText(id).toStdString()}) {
        if (fs::exists(path(folder)))
            return folder;
    }
    return {};
}

/// Every skill is somewhere, with its old text or its new one whole, and with everything else in its folder.
void Volumes::expectWhole(const Operation &operation) const
{
    const std::array<std::pair<QUuid, const char *>, 4> skills{{{m_skills.demo, "demo"},
                                                                {m_skills.second, "second"},
                                                                {m_skills.thrown, "thrown"},
                                                                {m_skills.thrownToo, "thrown-too"}}};
    for (const auto &[id, slug] : skills) {
        const std::string folder = folderOf(id, slug);
        if (folder.empty() && operation.removes == Operation::Removes::Skills &&
            std::string_view(slug).starts_with("thrown"))
            continue;
        ASSERT_FALSE(folder.empty()) << slug << " is lost";
        const std::string text = textOf(folder);
        EXPECT_TRUE(text == oldText || (text == newText && id == m_skills.demo)) << slug << ": " << text;
        EXPECT_EQ(names(folder), (std::vector<std::string>{"SKILL.md", "reference", "vornel.json"})) << slug;
        EXPECT_EQ(bytesOf(path(folder + "/reference/file")), "extra") << slug;
    }
    expectUntouched();
}

/// What isn't the operation's business stays as it was.
void Volumes::expectUntouched() const
{
    const std::string history = "workspace/.vornel/history/" + uuidText(m_skills.bystander).toStdString();
    for (const std::string &folder :
         {std::string("workspace/skills/bystander"), history, std::string("claude/bystander"),
          std::string("codex/bystander"), std::string("codex/Étranger")})
        EXPECT_EQ(tree(folder), tree("pristine/" + folder)) << folder;
    EXPECT_EQ(textOf("claude/left"), "name: Gauche");
    EXPECT_EQ(textOf("codex/right"), "name: Droite");
}

/// Nothing that takes up room stays behind, and each copy is the one from before or the new one, whole.
void Volumes::expectNothingHalfDone(const Operation &operation) const
{
    EXPECT_TRUE(names("workspace/.vornel/staging").empty());
    for (const std::string folder :
         {"claude", "codex", "workspace/.vornel/trash", "workspace/.vornel/recovery"}) {
        for (const std::string &name : names(folder))
            EXPECT_FALSE(name.starts_with('.')) << folder << '/' << name;
    }
    if (operation.removes == Operation::Removes::Copies)
        return;
    for (const char *copy : {"claude/demo", "claude/second", "codex/demo", "codex/second"}) {
        const std::string text = textOf(copy);
        EXPECT_TRUE(text == oldText || text == newText || text == editedText) << copy << ": " << text;
        EXPECT_EQ(bytesOf(path(std::string(copy) + "/reference/file")), "extra") << copy;
    }
}

/// Once the cause is gone, the operation works, and so do the next start and the synchronisation.
void Volumes::expectMended(const Operation &operation)
{
    if (!operation.isDone(m_service->reload().result())) {
        EXPECT_NO_THROW(operation.run(*m_service));
    }
    EXPECT_TRUE(operation.isDone(m_service->reload().result()));

    ASSERT_NO_THROW(start());
    EXPECT_TRUE(operation.isDone(m_service->reload().result()));
    expectWhole(operation);
    EXPECT_TRUE(names("workspace/.vornel/staging").empty());
    const WorkspaceOverview overview = m_service->reload().result();
    std::set<std::string> claude{"left"};
    std::set<std::string> codex{"right", "Étranger"};
    for (const SkillSummary &skill : overview.skills) {
        EXPECT_EQ(m_service->synchronize(skill.id).result().syncState, SyncState::inSync);
        for (auto *copies : {&claude, &codex})
            copies->insert(skill.slug.toStdString());
    }
    EXPECT_EQ(names("claude"), std::vector<std::string>(claude.begin(), claude.end()));
    EXPECT_EQ(names("codex"), std::vector<std::string>(codex.begin(), codex.end()));
}

/// Runs an operation on a volume in trouble; what it leaves must be whole. Returns whether it failed.
bool Volumes::endsInTrouble(const Operation &operation, const QString &sentence)
{
    bool hasFailed = false;
    try {
        operation.run(*m_service);
    } catch (const std::exception &error) {
        hasFailed = true;
        expectClearError(error, sentence);
    }
    expectWhole(operation);
    return hasFailed;
}

/// With no room at all, with a little, and so on until the operation succeeds. Returns the number of cases.
int Volumes::tryEveryShortage(const Shortage &shortage, const Operation &operation)
{
    for (int count = 0;; ++count) {
        SCOPED_TRACE(testing::Message() << shortage.name << " but for " << count << ", " << operation.name);
        reset(GetParam());
        (*m_volume.*shortage.leave)(count);
        const bool hasFailed = endsInTrouble(operation, isFull);
        expectNothingHalfDone(operation);
        m_volume->mend();
        expectMended(operation);
        if (!hasFailed || HasFatalFailure())
            return count + 1;
    }
}

/// Every file and folder of the three places, with the time of its last change.
std::map<std::string, fs::file_time_type> Volumes::state() const
{
    std::map<std::string, fs::file_time_type> state;
    for (const char *root : places) {
        for (const fs::directory_entry &entry : fs::recursive_directory_iterator(path(root)))
            state.emplace(entry.path(), entry.last_write_time());
    }
    return state;
}

/// The calls of an operation before which something had changed since the call before, and the first one.
std::vector<int> Volumes::callsAfterChanges(const Operation &operation)
{
    reset(GetParam());
    std::vector<int> calls;
    std::map<std::string, fs::file_time_type> last;
    m_files->interruptAt(1, [&, call = 0]() mutable {
        ++call;
        if (const auto now = state(); now != last) {
            calls.push_back(call);
            last = now;
        }
        return false;
    });
    operation.run(*m_service);
    m_files->interruptAt(0, nullptr);
    return calls;
}

/// The volume becomes read-only after each of the operation's changes. Returns the number of cases.
int Volumes::tryEveryInterruption(const Operation &operation)
{
    const std::vector<int> calls = callsAfterChanges(operation);
    for (const int call : calls) {
        SCOPED_TRACE(testing::Message() << "read-only at call " << call << ", " << operation.name);
        reset(GetParam());
        m_files->interruptAt(call, [this] { return m_volume->makeReadOnly(); });
        endsInTrouble(operation, isReadOnly);
        m_files->interruptAt(0, nullptr);
        m_volume->mend();
        expectMended(operation);
    }
    return static_cast<int>(calls.size());
}

TEST_P(Volumes, HarmNothingThatIsOnThem)
{
    int shortage = 0;
    int interruption = 0;
    for (const auto &operations : {changesOfSkills(m_skills), changesOfTheTrash(m_skills)}) {
        for (const Operation &operation : operations) {
            for (const Shortage &kind : shortages)
                shortage += tryEveryShortage(kind, operation);
            interruption += tryEveryInterruption(operation);
        }
    }
    std::cout << "volume cases: " << shortage + interruption << " (" << GetParam() << ": " << shortage
              << " full, " << interruption << " that become read-only)\n";
    EXPECT_GT(shortage, 20);
    EXPECT_GT(interruption, 50);
}

TEST_P(Volumes, CanBeReadWhenNothingCanBeWritten)
{
    reset(GetParam());
    m_service.reset();
    ASSERT_TRUE(m_volume->makeReadOnly());
    ASSERT_NO_THROW(start());
    EXPECT_EQ(m_service->reload().result().skills.size(), 3);
    EXPECT_EQ(m_service->loadSkill(m_skills.demo).result().skillMD.toStdString(), oldText);
    EXPECT_EQ(m_service->inspectTargets(m_skills.demo).result().last().state, SyncState::drifted);
    EXPECT_EQ(m_service->scanImports().result().candidates.size(), 2);
    EXPECT_EQ(m_service->trashDates().result().size(), 2);
}

TEST_P(Volumes, LetNoFirstStartFailForGood)
{
    int failures = 0;
    for (const Shortage &shortage : shortages) {
        for (int count = 0, failuresBefore = -1; failures > failuresBefore; ++count) {
            SCOPED_TRACE(testing::Message() << shortage.name << " but for " << count);
            failuresBefore = failures;
            empty(GetParam());
            write(std::string(GetParam()) + "/.autre", "d’un autre programme");
            (*m_volume.*shortage.leave)(count);
            try {
                start();
            } catch (const std::exception &error) {
                ++failures;
                EXPECT_TRUE(errorMessage(error).startsWith(isFull)) << errorMessage(error).toStdString();
            }
            m_volume->mend();
            EXPECT_NO_THROW(start());
            EXPECT_EQ(m_service->reload().result().categories, SkillCategory::defaults());
        }
    }
    EXPECT_EQ(failures > 0, GetParam() == std::string_view("workspace"));
}

INSTANTIATE_TEST_SUITE_P(Each, Volumes, testing::ValuesIn(places),
                         [](const auto &place) { return std::string(place.param); });

} // namespace
} // namespace vornel

int main(int argc, char *argv[])
{
    vornel::hasOwnMounts = vornel::enterOwnMounts();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
