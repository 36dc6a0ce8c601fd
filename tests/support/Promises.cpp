#include "Promises.h"

#include <VORNELCore/Errors/ErrorMessage.h>
#include <VORNELCore/Records/SerializedForms.h>

#include <QRegularExpression>

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <set>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

const char *const manifestName = "vornel.json";

std::string idText(const SkillOnDisk &skill)
{
    return uuidText(skill.manifest.id).toStdString();
}

/// Whether two skills are the same but for what differs between two runs of one operation: the time of the
/// change and, of a skill that it creates, its identifier and the time of its creation.
bool areAlike(const SkillOnDisk &found, const SkillOnDisk &expected, bool isCreated)
{
    SkillManifest manifest = found.manifest;
    manifest.updatedAt = expected.manifest.updatedAt;
    if (isCreated) {
        manifest.id = expected.manifest.id;
        manifest.createdAt = expected.manifest.createdAt;
    }
    Tree files = found.files;
    files[manifestName] = expected.files.at(manifestName);
    return manifest == expected.manifest && files == expected.files;
}

bool areInOnePlaceAndAlike(const SkillOnDisk &found, const SkillOnDisk &expected, bool isCreated)
{
    return found.isTrashed == expected.isTrashed && areAlike(found, expected, isCreated);
}

/// The checks of what is on the disk after a start.
class Inspection
{
public:
    Inspection(const Rehearsal &rehearsal, bool mustBeDone)
        : m_folder(rehearsal.folder()),
          m_before(rehearsal.before()),
          m_after(rehearsal.after()),
          m_now(stateBelow(m_folder)),
          m_mustBeDone(mustBeDone)
    {}

    /// Right after the interruption, before anything is repeated.
    void checkFirst() const
    {
        check();
        checkCopiesTakenOut();
        checkEditedCopies();
        checkStrangersFolders();
    }

    void check() const
    {
        checkWhole();
        checkHistoryEntries();
        checkSharing();
        checkRubbish();
    }

    void checkWhole() const
    {
        checkSkills();
        checkKeptHistory();
        checkCatalog();
        checkIgnoredNames();
        checkOthersFolders();
        checkCopies(m_before.claude, m_now.claude);
        checkCopies(m_before.codex, m_now.codex);
    }

    /// Unless a program was killed in the middle of a swap, a skill that stays keeps its copies.
    void checkNoCopyIsMissing() const
    {
        for (const auto &[slug, skill] : m_after.skills) {
            const bool mayBeMissing =
                !isActive(m_before, slug) || skill.isTrashed || m_now.find(slug) == nullptr;
            for (const auto &[before, now] :
                 {std::pair{&m_before.claude, &m_now.claude}, {&m_before.codex, &m_now.codex}})
                EXPECT_TRUE(mayBeMissing || !before->contains(slug) || now->contains(slug))
                    << "a copy of " << slug << " is missing";
        }
    }

private:
    void checkSkills() const
    {
        std::set<std::string> slugs;
        for (const WorkspaceState *state : {&m_before, &m_after, &m_now}) {
            for (const auto &[slug, skill] : state->skills)
                slugs.insert(slug);
        }
        for (const std::string &slug : slugs)
            EXPECT_TRUE(isOld(slug) || isNew(slug)) << slug << " is neither what it was nor what it becomes";
    }

    /// A skill that the operation is about may have been written already without any change of its content.
    bool isOld(const std::string &slug) const
    {
        const SkillOnDisk *old = m_before.find(slug);
        const SkillOnDisk *now = m_now.find(slug);
        const SkillOnDisk *done = m_after.find(slug);
        if (m_mustBeDone)
            return false;
        if (old == nullptr || now == nullptr)
            return old == now;
        const bool isBystander = done != nullptr && *done == *old;
        return *now == *old || (!isBystander && areInOnePlaceAndAlike(*now, *old, false));
    }

    bool isNew(const std::string &slug) const
    {
        const SkillOnDisk *done = m_after.find(slug);
        const SkillOnDisk *now = m_now.find(slug);
        if (done == nullptr || now == nullptr)
            return done == now;
        return areInOnePlaceAndAlike(*now, *done, m_before.find(slug) == nullptr);
    }

    /// As long as a skill exists, its history keeps every entry, byte for byte, but for those that are
    /// pruned.
    void checkKeptHistory() const
    {
        for (const auto &[id, entries] : m_before.history) {
            if (m_now.findByID(id) == nullptr)
                continue;
            const auto now = m_now.history.find(id);
            ASSERT_NE(now, m_now.history.end()) << "the history of " << id << " is lost";
            for (const auto &[name, tree] : entries)
                EXPECT_TRUE(now->second.contains(name) ? now->second.at(name) == tree : mayGo(id, name))
                    << "history " << id << '/' << name << " has changed";
        }
    }

    /// Whether the operation is to delete an entry.
    bool mayGo(const std::string &id, const std::string &name) const
    {
        const auto done = m_after.history.find(id);
        return done != m_after.history.end() && !done->second.contains(name);
    }

    /// What is kept must not change with a file that stands elsewhere.
    void checkSharing() const
    {
        const fs::path history = m_folder / "workspace/.vornel/history";
        std::map<std::pair<dev_t, ino_t>, fs::path> outside;
        std::map<std::pair<dev_t, ino_t>, fs::path> kept;
        for (const fs::directory_entry &entry : fs::recursive_directory_iterator(m_folder)) {
            struct stat status
            {};
            if (::lstat(entry.path().c_str(), &status) == 0 && S_ISREG(status.st_mode))
                (isInside(entry.path(), history) ? kept : outside)
                    .emplace(std::pair(status.st_dev, status.st_ino), entry.path());
        }
        for (const auto &[file, path] : kept)
            EXPECT_FALSE(outside.contains(file)) << path << " is also " << outside.at(file);
    }

    void checkHistoryEntries() const
    {
        for (const auto &[id, entries] : m_now.history) {
            const SkillOnDisk *skill = m_now.findByID(id);
            ASSERT_NE(skill, nullptr) << "the history of " << id << " has lost its skill";
            for (const auto &[name, tree] : entries)
                isOfReplaced(name) ? checkReplaced(*skill, name, tree) : checkHistoryEntry(*skill, name);
        }
    }

    /// What was replaced is kept as it stood in the target. An interruption may leave the new copy in its
    /// place of the history, where the two were about to change places; what the library holds is kept once
    /// more where a disk doesn't let its entry be read, or its manifest was written and not the history.
    void checkReplaced(const SkillOnDisk &skill, const std::string &name, const Tree &tree) const
    {
        const auto former = m_before.history.find(idText(skill));
        if (former != m_before.history.end() && former->second.contains(name))
            return;
        const std::string slug = skill.manifest.slug.toStdString();
        if (name.starts_with("replaced-library-")) {
            EXPECT_TRUE(isOfLibrary(skillIn(historyOf(skill) / name), slug)) << name << " never stood there";
            return;
        }
        const auto &before = name.find("-claude-") != std::string::npos ? m_before.claude : m_before.codex;
        const auto old = before.find(slug);
        Tree own = skill.files;
        own.erase(manifestName);
        EXPECT_TRUE(tree == own || (old != before.end() && old->second == tree))
            << name << " never stood there";
    }

    /// Whether the library holds this before or after the operation.
    bool isOfLibrary(const SkillOnDisk &entry, const std::string &slug) const
    {
        return std::ranges::any_of(std::array{&m_before, &m_after}, [&](const WorkspaceState *state) {
            const SkillOnDisk *expected = state->find(slug);
            return expected != nullptr && areAlike(entry, *expected, m_before.find(slug) == nullptr);
        });
    }

    fs::path historyOf(const SkillOnDisk &skill) const
    {
        return m_folder / "workspace/.vornel/history" / idText(skill);
    }

    static bool isOfReplaced(const std::string &name)
    {
        return name.starts_with("replaced-") || name.starts_with("merged-");
    }

    void checkHistoryEntry(const SkillOnDisk &skill, const std::string &name) const
    {
        const auto old = m_before.history.find(idText(skill));
        if (old != m_before.history.end() && old->second.contains(name))
            return;
        const SkillOnDisk entry = skillIn(historyOf(skill) / name);
        EXPECT_TRUE(name.starts_with(std::to_string(entry.manifest.revision) + '-')) << name;
        EXPECT_TRUE(isOfLibrary(entry, skill.manifest.slug.toStdString())) << name;
    }

    /// A name that needn't be ignored any more may be forgotten later, whatever was reported.
    void checkIgnoredNames() const
    {
        const bool mayBeOld = !m_mustBeDone || m_after.ignored.size() < m_before.ignored.size();
        EXPECT_TRUE(m_now.ignored == m_after.ignored || (mayBeOld && m_now.ignored == m_before.ignored))
            << m_now.ignored;
    }

    void checkCatalog() const
    {
        EXPECT_TRUE(m_now.catalog == m_after.catalog || (!m_mustBeDone && m_now.catalog == m_before.catalog))
            << m_now.catalog;
        for (const auto &[slug, skill] : m_now.skills)
            EXPECT_NE(m_now.catalog.find('"' + skill.manifest.category.toStdString() + '"'),
                      std::string::npos)
                << slug << " is of a category that is gone";
    }

    /// Skills in the targets stay as they are until they are in the library, and so does what had been moved
    /// out of the targets before.
    void checkOthersFolders() const
    {
        checkTarget(m_before.claude, m_now.claude);
        checkTarget(m_before.codex, m_now.codex);
        for (const auto &[name, tree] : m_before.recovery) {
            const bool isOfASwap = name.find("-canonical-") != std::string::npos;
            const auto now = m_now.recovery.find(name);
            const bool isRight = now == m_now.recovery.end() ? mayHaveGone(name, tree)
                                                             : now->second == tree && mayBeThere(name, tree);
            EXPECT_TRUE(isOfASwap || isRight) << name;
        }
    }

    /// What is deleted has gone at the end.
    bool mayBeThere(const std::string &name, const Tree &tree) const
    {
        return !m_mustBeDone || m_after.recovery.contains(name) || isInLibrary(m_after, tree);
    }

    /// What is brought back goes only once the library holds all of it.
    bool mayHaveGone(const std::string &name, const Tree &tree) const
    {
        return !m_after.recovery.contains(name) && (!isInLibrary(m_after, tree) || isInLibrary(m_now, tree));
    }

    static bool isInLibrary(const WorkspaceState &state, const Tree &tree)
    {
        return std::ranges::any_of(state.skills, [&tree](const auto &skill) {
            Tree files = skill.second.files;
            files.erase(manifestName);
            return files == tree;
        });
    }

    /// A copy that was edited isn't lost when it is removed from the target.
    void checkCopiesTakenOut() const
    {
        for (const auto &[slug, copy] : m_before.codex) {
            const auto hasTaken = [&slug = slug](const WorkspaceState &state, const auto &isThis) {
                return std::ranges::any_of(state.recovery, [&](const auto &entry) {
                    return entry.first.ends_with("-removed-codex-" + slug) && isThis(entry);
                });
            };
            const auto isNew = [this](const auto &entry) { return !m_before.recovery.contains(entry.first); };
            if (!hasTaken(m_after, isNew))
                continue;
            const auto installed = m_now.codex.find(slug);
            const bool isInstalled = installed != m_now.codex.end() && installed->second == copy;
            const bool isKept =
                hasTaken(m_now, [&copy = copy](const auto &entry) { return entry.second == copy; });
            EXPECT_TRUE(isInstalled || isKept) << "the edits in " << slug << " are lost";
        }
    }

    /// As long as its skill is active, a copy that was edited stands there still, or is whole in the history
    /// or, once it was taken out, in the recovery folder.
    void checkEditedCopies() const
    {
        for (const auto &[before, now] :
             {std::pair{&m_before.claude, &m_now.claude}, {&m_before.codex, &m_now.codex}}) {
            for (const auto &[slug, copy] : *before) {
                if (!isActive(m_before, slug) || !isActive(m_now, slug))
                    continue;
                const bool isInstalled = now->contains(slug) && now->at(slug) == copy;
                const bool isTakenOut = std::ranges::any_of(
                    m_now.recovery, [&copy = copy](const auto &entry) { return entry.second == copy; });
                EXPECT_TRUE(isInstalled || isTakenOut || isInHistory(slug, copy))
                    << "the edits in " << slug << " are lost";
            }
        }
    }

    bool isInHistory(const std::string &slug, const Tree &copy) const
    {
        const auto history = m_now.history.find(idText(*m_now.find(slug)));
        return history != m_now.history.end() &&
               std::ranges::any_of(history->second, [&copy = copy](const auto &entry) {
                   Tree files = entry.second;
                   files.erase(manifestName);
                   return files == copy;
               });
    }

    /// What stood in a target and wasn't VORNEL's is still there, or whole in the history of the skill that
    /// has taken its place.
    void checkStrangersFolders() const
    {
        checkStrangersFolders("replaced-claude-", m_before.claude, m_now.claude);
        checkStrangersFolders("replaced-codex-", m_before.codex, m_now.codex);
    }

    void checkStrangersFolders(const std::string &label, const std::map<std::string, Tree> &before,
                               const std::map<std::string, Tree> &now) const
    {
        for (const auto &[slug, tree] : before) {
            const SkillOnDisk *skill = m_now.find(slug);
            if (isActive(m_before, slug) || skill == nullptr)
                continue;
            const auto history = m_now.history.find(idText(*skill));
            const bool isKept = history != m_now.history.end() &&
                                std::ranges::any_of(history->second, [&](const auto &entry) {
                                    return entry.first.starts_with(label) && entry.second == tree;
                                });
            EXPECT_TRUE(isKept || (now.contains(slug) && now.at(slug) == tree)) << slug << " is lost";
        }
    }

    static bool isActive(const WorkspaceState &state, const std::string &slug)
    {
        const SkillOnDisk *skill = state.find(slug);
        return skill != nullptr && !skill->isTrashed;
    }

    void checkTarget(const std::map<std::string, Tree> &before, const std::map<std::string, Tree> &now) const
    {
        for (const auto &[name, tree] : before) {
            EXPECT_TRUE(!isForeign(name) || (now.contains(name) && now.at(name) == tree))
                << name << " was not imported";
        }
        for (const auto &[name, tree] : now) {
            EXPECT_TRUE(isActive(m_now, name) || (isForeign(name) && before.contains(name)))
                << name << " is a leftover";
        }
    }

    /// A copy is whole: as it was before, or that of a skill as it was or as it becomes.
    void checkCopies(const std::map<std::string, Tree> &before, const std::map<std::string, Tree> &now) const
    {
        for (const auto &[slug, copy] : now) {
            const auto isOf = [&slug = slug, &copy = copy](const WorkspaceState &state) {
                const SkillOnDisk *skill = state.find(slug);
                Tree files = skill == nullptr ? Tree() : skill->files;
                files.erase(manifestName);
                return skill != nullptr && files == copy;
            };
            const auto former = before.find(slug);
            EXPECT_TRUE((former != before.end() && former->second == copy) || isOf(m_before) || isOf(m_now))
                << "the copy of " << slug << " is neither old nor new";
        }
    }

    bool isForeign(const std::string &name) const
    {
        return !isActive(m_before, name) && !isActive(m_now, name);
    }

    void checkRubbish() const
    {
        static const QRegularExpression temporary(uR"(\A\.[0-9A-F-]{36}\.tmp\z)"_s);
        const fs::path bookkeeping = m_folder / "workspace/.vornel";
        EXPECT_TRUE(fs::is_empty(bookkeeping / "staging"));
        std::set<std::string> names;
        for (const fs::directory_entry &entry : fs::directory_iterator(bookkeeping))
            names.insert(entry.path().filename());
        names.erase("ignored.json"); // which only comes with the first name
        EXPECT_EQ(names, (std::set<std::string>{"categories.json", "events", "history", "recovery", "staging",
                                                "trash", "workspace.json"}));
        for (const fs::directory_entry &entry : fs::recursive_directory_iterator(m_folder))
            EXPECT_FALSE(temporary.match(pathText(entry.path().filename())).hasMatch()) << entry.path();
        checkTrashMoments();
    }

    /// Each belongs to a skill in the trash, and a skill that has stayed there keeps its own.
    void checkTrashMoments() const
    {
        const fs::path events = m_folder / "workspace/.vornel/events";
        std::set<std::string> noted;
        for (const fs::directory_entry &entry : fs::directory_iterator(events))
            noted.insert(entry.path().filename());
        for (const auto &[slug, skill] : m_now.skills) {
            const bool isNoted = noted.erase("trashed-" + idText(skill) + ".json") > 0;
            const SkillOnDisk *old = m_before.find(slug);
            const bool hasStayed = skill.isTrashed && old != nullptr && old->isTrashed;
            EXPECT_TRUE(isNoted ? skill.isTrashed : !hasStayed) << slug;
        }
        EXPECT_TRUE(noted.empty()) << *noted.begin();
    }

    const fs::path m_folder;
    const WorkspaceState &m_before;
    const WorkspaceState &m_after;
    const WorkspaceState m_now;
    const bool m_mustBeDone;
};

std::unique_ptr<LocalWorkspaceService> startAgain(const Rehearsal &rehearsal)
try {
    return rehearsal.start(std::make_shared<PosixFileSystem>());
} catch (const std::exception &error) {
    ADD_FAILURE() << "the workspace can't be opened: " << errorMessage(error).toStdString();
    return nullptr;
}

void checkCopiesCanBeMadeRight(LocalWorkspaceService &service)
{
    for (const SkillSummary &skill : service.reload().result().skills)
        EXPECT_EQ(service.synchronize(skill.id).result().syncState, SyncState::inSync)
            << skill.slug.toStdString();
}

} // namespace

void repeat(const Scenario &scenario, LocalWorkspaceService &service)
try {
    scenario.run(service);
} catch (const VORNELWorkspaceError &error) {
    EXPECT_EQ(error, scenario.refusal) << errorMessage(error).toStdString();
}

void checkWhole(const Rehearsal &rehearsal)
{
    const Inspection inspection(rehearsal, false);
    inspection.checkWhole();
    inspection.checkNoCopyIsMissing();
}

void checkPromises(const Rehearsal &rehearsal, Reported reported)
try {
    auto service = startAgain(rehearsal);
    if (!service)
        return;
    Inspection(rehearsal, reported == Reported::Success).checkFirst();
    if (!rehearsal.scenario().takesEdits)
        checkCopiesCanBeMadeRight(*service);

    repeat(rehearsal.scenario(), *service);
    service = startAgain(rehearsal);
    if (!service)
        return;
    Inspection(rehearsal, true).check();
    checkCopiesCanBeMadeRight(*service);
} catch (const std::exception &error) {
    ADD_FAILURE() << errorMessage(error).toStdString();
}

} // namespace vornel
