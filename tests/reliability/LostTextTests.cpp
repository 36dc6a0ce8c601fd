#include "Scratch.h"

#include <VORNELCore/Records/SerializedForms.h>

#include <algorithm>
#include <random>
#include <set>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

const QStringList slugs{u"one"_s, u"two"_s, u"three"_s};
const std::vector<std::string> files{"SKILL.md", "notes.md", "scripts/run.sh"};

/// Random work on a library and in the assistants' folders, beside a model of plain maps that says which
/// texts VORNEL owes its user.
class LostText : public testing::TestWithParam<int>, protected TestWorkspace
{
protected:
    /// Does one step after another, and looks after each whether a text was lost.
    void work(unsigned seed)
    {
        m_random.seed(seed);
        m_owed.clear();
        clear();
        for (const QString &slug : slugs.first(2))
            owingWhatGoes([&] { create(slug, freshText()); });
        for (int step = 0; step < steps; ++step) {
            editSomewhere();
            const int operation = below(operations);
            const Tree former = tree("workspace");
            bool hasSucceeded = false;
            owingWhatGoes([&] { hasSucceeded = operate(operation); });
            if (hasSucceeded && tree("workspace") != former)
                m_done.insert(operation);
            ASSERT_TRUE(missing().empty()) << "sequence " << seed << ", step " << step << ", operation "
                                           << operation << " has lost " << *missing().begin();
        }
    }

    static constexpr int operations = 13;

    /// The operations that have changed anything.
    const std::set<int> &done() const { return m_done; }

private:
    static constexpr int steps = 12;

    void clear()
    {
        service.reset();
        for (const fs::directory_entry &entry : fs::directory_iterator(path()))
            fs::remove_all(entry.path());
        for (const char *target : {"claude", "codex"})
            fs::create_directory(path(target));
        restart();
    }

    int below(int bound) { return std::uniform_int_distribution(0, bound - 1)(m_random); }
    QString freshText() { return u"text %1\n"_s.arg(++m_texts); }

    template <typename List>
    auto anyOf(const List &list)
    {
        return list[static_cast<typename List::size_type>(below(static_cast<int>(list.size())))];
    }

    /// Writes or deletes files as an assistant does, or a user in the library by hand.
    void editSomewhere()
    {
        const std::vector<std::string> places{"claude/", "codex/", "workspace/skills/"};
        for (int edits = below(3); edits > 0; --edits) {
            const std::string place = anyOf(places);
            const std::string folder = place + anyOf(slugs).toStdString();
            if (!fs::exists(path(folder)) && place == places.back())
                continue;
            const std::string file = folder + '/' + anyOf(files);
            if (below(4) > 0)
                write(file, freshText().toStdString());
            else if (!file.ends_with("SKILL.md"))
                fs::remove(path(file));
        }
    }

    /// What it can't do, for whatever reason, it leaves.
    bool operate(int operation)
    try {
        run(operation, service->reload().result());
        return true;
    } catch (const std::exception &) {
        return false;
    }

    void run(int operation, const WorkspaceOverview &overview)
    {
        const QList<SkillSummary> &skills = operation == 0 ? overview.trashedSkills : overview.skills;
        if (operation == 1)
            import();
        else if (!skills.isEmpty())
            runOn(anyOf(skills), operation);
    }

    void runOn(const SkillSummary &skill, int operation)
    {
        const QUuid id = skill.id;
        const qint64 revision = skill.revision;
        const TargetKind copy = below(2) == 0 ? TargetKind::claude : TargetKind::codex;
        const auto path = QString::fromStdString(anyOf(files));
        switch (operation) {
        case 0:
            service->restore(id).result();
            break;
        case 2:
            service->moveToTrash(id).result();
            break;
        case 3:
            service->adopt(id, copy, revision, {}).result();
            break;
        case 4:
            service->adopt(id, copy, revision, {path}).result();
            break;
        case 5:
            service->merge(id, {}, settlements(id, copy)).result();
            break;
        case 6:
            service->adoptHandEdits(id, revision).result();
            break;
        case 7:
            service->revert(id, revision, anyOf(service->history(id).result()).entry, {}).result();
            break;
        case 8:
            service->revert(id, revision, anyOf(service->history(id).result()).entry, {path}).result();
            break;
        case 9:
            service->assignSkills({id}, anyOf(SkillCategory::defaults()).id).result();
            break;
        case 10:
            service->saveSkill(id, revision, freshText()).result();
            break;
        case 11:
            service->changeFiles(id, {freshChange(path)}, revision).result();
            break;
        default:
            service->synchronize(id).result();
        }
    }

    PathChange freshChange(const QString &path)
    {
        if (below(2) == 0)
            return RemovedPath{path};
        return WrittenFile{path, freshText().toUtf8()};
    }

    QList<MergeSettlement> settlements(const QUuid &id, TargetKind side)
    {
        QList<MergeSettlement> settled;
        for (const MergeConflict &conflict : service->merge(id, {}, {}).result().conflicts)
            settled.append({conflict.relativePath, conflict.basis, side});
        return settled;
    }

    void import()
    {
        service->scanImports().result();
        const ImportPlan plan =
            service->resolveCollisions(below(2) == 0 ? CollisionChoice::claude : CollisionChoice::codex)
                .result();
        service->commitImport(plan.id).result();
    }

    /// The texts in the library and in the assistants' folders, by their places.
    Tree standing() const
    {
        Tree texts;
        for (const char *place : {"workspace/skills", "claude", "codex"}) {
            for (const auto &[file, bytes] : tree(place)) {
                if (!file.ends_with('/') && !file.ends_with("vornel.json"))
                    texts.emplace(place + ('/' + file), bytes);
            }
        }
        return texts;
    }

    /// From now on every text is owed that `operation` has taken from its place, and all that the library
    /// holds after it.
    template <typename Operation>
    void owingWhatGoes(const Operation &operation)
    {
        const Tree before = standing();
        operation();
        const Tree after = standing();
        for (const auto &[file, bytes] : before) {
            const auto now = after.find(file);
            if (now == after.end() || now->second != bytes)
                m_owed.insert(bytes);
        }
        for (const auto &[file, bytes] : after) {
            const auto former = before.find(file);
            const bool isWritten = former == before.end() || former->second != bytes;
            if (isWritten && file.starts_with("workspace/"))
                m_owed.insert(bytes);
        }
    }

    /// The owed texts that stand nowhere in the library, the trash, the recovery folder and the history.
    std::set<std::string> missing() const
    {
        std::set<std::string> lost = m_owed;
        for (const char *place : {"skills", ".vornel/trash", ".vornel/recovery", ".vornel/history"}) {
            for (const auto &[file, bytes] : tree(std::string("workspace/") + place))
                lost.erase(bytes);
        }
        return lost;
    }

    std::mt19937 m_random;
    int m_texts = 0;
    std::set<std::string> m_owed;
    std::set<int> m_done;
};

TEST_P(LostText, IsNoneInRandomSequences)
{
    constexpr int sequences = 100;
    for (int sequence = 0; sequence < sequences && !HasFailure(); ++sequence)
        work(static_cast<unsigned>(GetParam() * sequences + sequence));
    for (int operation = 0; operation < operations; ++operation)
        EXPECT_TRUE(done().contains(operation)) << "operation " << operation << " has never done anything";
}

INSTANTIATE_TEST_SUITE_P(Of500, LostText, testing::Range(0, 5));

} // namespace
} // namespace vornel
