#include "Aftermath.h"

#include <VORNELCore/Records/SkillFiles.h>

#include <algorithm>

namespace vornel {

namespace {

/// The checks of what stands in the targets, or stood there.
class TargetInspection
{
public:
    explicit TargetInspection(const Aftermath &aftermath)
        : m_before(aftermath.before),
          m_after(aftermath.after),
          m_now(aftermath.now),
          m_mustBeDone(aftermath.mustBeDone)
    {}

    void check() const
    {
        checkOthersFolders();
        checkCopies(m_before.claude, m_now.claude);
        checkCopies(m_before.codex, m_now.codex);
    }

    void checkReplacedCopies() const
    {
        checkCopiesTakenOut();
        checkEditedCopies();
        checkStrangersFolders();
    }

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
        return std::ranges::any_of(
            state.skills, [&tree](const auto &skill) { return withoutManifest(skill.second.files) == tree; });
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
            for (const auto &[formerSlug, copy] : *before) {
                const std::string slug = slugIn(m_now, m_before, formerSlug);
                if (!isActive(m_before, formerSlug) || !isActive(m_now, slug))
                    continue;
                const bool isInstalled = now->contains(slug) && now->at(slug) == copy;
                const bool isTakenOut = std::ranges::any_of(
                    m_now.recovery, [&copy = copy](const auto &entry) { return entry.second == copy; });
                EXPECT_TRUE(isInstalled || isTakenOut || isInHistory(slug, copy))
                    << "the edits in " << slug << " are lost";
            }
        }
    }

    /// The slug that a skill has in one state, when it has this one in another; the same where it isn't
    /// there.
    static std::string slugIn(const WorkspaceState &state, const WorkspaceState &other,
                              const std::string &slug)
    {
        const SkillOnDisk *skill = other.find(slug);
        const SkillOnDisk *same = skill != nullptr ? state.findByID(idText(*skill)) : nullptr;
        return same != nullptr ? same->manifest.slug.toStdString() : slug;
    }

    bool isInHistory(const std::string &slug, const Tree &copy) const
    {
        const auto history = m_now.history.find(idText(*m_now.find(slug)));
        return history != m_now.history.end() &&
               std::ranges::any_of(history->second, [&copy = copy](const auto &entry) {
                   return withoutManifest(entry.second) == copy;
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
            EXPECT_TRUE(isActive(m_now, name) || (isForeign(name) && before.contains(name)) ||
                        isYetToFollow(name, now))
                << name << " is a leftover";
        }
    }

    /// Whether a copy couldn't be renamed with its skill, and waits for the next operation.
    bool isYetToFollow(const std::string &name, const std::map<std::string, Tree> &now) const
    {
        const std::string slug = slugIn(m_now, m_before, name);
        return !m_mustBeDone && slug != name && isActive(m_now, slug) && !now.contains(slug);
    }

    /// A copy is whole: as it was before, or that of a skill as it was or as it becomes.
    void checkCopies(const std::map<std::string, Tree> &before, const std::map<std::string, Tree> &now) const
    {
        for (const auto &[slug, copy] : now) {
            const auto isOf = [&slug = slug, &copy = copy](const WorkspaceState &state) {
                const SkillOnDisk *skill = state.find(slug);
                return skill != nullptr && withoutManifest(skill->files) == copy;
            };
            const auto former = before.find(slugIn(m_before, m_now, slug));
            EXPECT_TRUE((former != before.end() && former->second == copy) || isOf(m_before) || isOf(m_now))
                << "the copy of " << slug << " is neither old nor new";
        }
    }

    bool isForeign(const std::string &name) const
    {
        return !isActive(m_before, name) && !isActive(m_now, name);
    }

    const WorkspaceState &m_before;
    const WorkspaceState &m_after;
    const WorkspaceState &m_now;
    const bool m_mustBeDone;
};

} // namespace

Tree withoutManifest(Tree files)
{
    files.erase(SkillFiles::manifest);
    return files;
}

void checkTargets(const Aftermath &aftermath)
{
    TargetInspection(aftermath).check();
}

void checkReplacedCopies(const Aftermath &aftermath)
{
    TargetInspection(aftermath).checkReplacedCopies();
}

void checkNoCopyIsMissing(const Aftermath &aftermath)
{
    TargetInspection(aftermath).checkNoCopyIsMissing();
}

} // namespace vornel
