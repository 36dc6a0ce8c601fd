#include "Aftermath.h"

#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/SkillFiles.h>

#include <QRegularExpression>

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <set>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

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
    files[SkillFiles::manifest] = expected.files.at(SkillFiles::manifest);
    return manifest == expected.manifest && files == expected.files;
}

/// What was edited in its place becomes a revision there.
bool areAlikeButForRevision(const SkillOnDisk &found, SkillOnDisk expected)
{
    expected.manifest.revision = found.manifest.revision;
    return areAlike(found, expected, false);
}

bool areInOnePlaceAndAlike(const SkillOnDisk &found, const SkillOnDisk &expected, bool isCreated)
{
    return found.isTrashed == expected.isTrashed && areAlike(found, expected, isCreated);
}

/// The checks of the library and of what it keeps.
class LibraryInspection
{
public:
    explicit LibraryInspection(const Aftermath &aftermath)
        : m_folder(aftermath.folder),
          m_before(aftermath.before),
          m_after(aftermath.after),
          m_now(aftermath.now),
          m_mustBeDone(aftermath.mustBeDone)
    {}

    void check() const
    {
        checkSkills();
        checkFormerContent();
        checkKeptHistory();
        checkCatalog();
        checkIgnoredNames();
    }

    void checkBookkeeping() const
    {
        checkHistoryEntries();
        checkSharing();
        checkRubbish();
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

    /// What the library held of a skill is there still, or whole in its history, its manifest included.
    void checkFormerContent() const
    {
        for (const auto &[slug, former] : m_before.skills) {
            const SkillOnDisk *now = m_now.findByID(idText(former));
            if (now == nullptr || areAlikeButForRevision(*now, former))
                continue;
            const auto history = m_now.history.find(idText(former));
            EXPECT_TRUE(history != m_now.history.end() &&
                        std::ranges::any_of(history->second,
                                            [&](const auto &entry) { return entry.second == former.files; }))
                << "what the library held of " << slug << " is lost";
        }
    }

    /// As long as a skill exists, its history keeps every entry, byte for byte, but for those that are
    /// pruned.
    void checkKeptHistory() const
    {
        for (const auto &[id, entries] : m_before.history) {
            if (m_now.findByID(id) == nullptr) {
                checkReplacedAreSetAside(id, entries);
                continue;
            }
            const auto now = m_now.history.find(id);
            ASSERT_NE(now, m_now.history.end()) << "the history of " << id << " is lost";
            for (const auto &[name, tree] : entries)
                EXPECT_TRUE(now->second.contains(name) ? now->second.at(name) == tree : mayGo(id, name))
                    << "history " << id << '/' << name << " has changed";
        }
    }

    /// Of a skill that is gone, what was replaced goes to the recovery folder before its history goes.
    void checkReplacedAreSetAside(const std::string &id, const std::map<std::string, Tree> &entries) const
    {
        const auto left = m_now.history.find(id);
        for (const auto &[name, tree] : entries) {
            const bool isLeft =
                left != m_now.history.end() && left->second.contains(name) && left->second.at(name) == tree;
            const bool isSetAside = std::ranges::any_of(
                m_now.recovery, [&tree = tree](const auto &copy) { return copy.second == tree; });
            EXPECT_TRUE(!isOfReplaced(name) || isLeft || isSetAside) << name << " is lost";
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
        if (name.starts_with("replaced-library-")) {
            EXPECT_TRUE(isOfLibrary(skillIn(historyOf(skill) / name), skill)) << name << " never stood there";
            return;
        }
        const auto &before = name.find("-claude-") != std::string::npos ? m_before.claude : m_before.codex;
        const SkillOnDisk *same = m_before.findByID(idText(skill));
        const auto old = before.find((same != nullptr ? *same : skill).manifest.slug.toStdString());
        EXPECT_TRUE(tree == withoutManifest(skill.files) || (old != before.end() && old->second == tree))
            << name << " never stood there";
    }

    /// Whether the library holds this of the skill before or after the operation.
    bool isOfLibrary(const SkillOnDisk &entry, const SkillOnDisk &skill) const
    {
        const std::string slug = skill.manifest.slug.toStdString();
        return std::ranges::any_of(std::array{&m_before, &m_after}, [&](const WorkspaceState *state) {
            const SkillOnDisk *known = state->findByID(idText(skill));
            const SkillOnDisk *expected = known != nullptr ? known : state->find(slug);
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
        EXPECT_TRUE(isOfLibrary(entry, skill)) << name;
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
    const WorkspaceState &m_now;
    const bool m_mustBeDone;
};

} // namespace

std::string idText(const SkillOnDisk &skill)
{
    return uuidText(skill.manifest.id).toStdString();
}

void checkLibrary(const Aftermath &aftermath)
{
    LibraryInspection(aftermath).check();
}

void checkBookkeeping(const Aftermath &aftermath)
{
    LibraryInspection(aftermath).checkBookkeeping();
}

} // namespace vornel
