#include "WorkspaceState.h"

#include <VORNELCore/Records/RecordJson.h>
#include <VORNELCore/Records/SerializedForms.h>

#include <algorithm>

namespace vornel {

namespace {

bool isVisible(const fs::path &name)
{
    return !name.native().starts_with('.');
}

std::vector<fs::path> visibleFoldersIn(const fs::path &folder)
{
    std::vector<fs::path> folders;
    if (!fs::exists(folder))
        return folders;
    for (const fs::directory_entry &entry : fs::directory_iterator(folder)) {
        if (entry.is_directory() && isVisible(entry.path().filename()))
            folders.push_back(entry.path());
    }
    return folders;
}

Tree visibleTree(const fs::path &folder)
{
    Tree tree = treeOf(folder);
    std::erase_if(tree, [](const auto &entry) {
        const fs::path path = entry.first;
        return !std::ranges::all_of(path, isVisible);
    });
    return tree;
}

void addSkills(WorkspaceState &state, const fs::path &place, bool isTrashed)
{
    for (const fs::path &folder : visibleFoldersIn(place)) {
        SkillOnDisk skill = skillIn(folder);
        skill.isTrashed = isTrashed;
        const std::string slug = skill.manifest.slug.toStdString();
        EXPECT_TRUE(state.skills.emplace(slug, std::move(skill)).second) << slug << " stands twice";
    }
}

} // namespace

std::map<std::string, Tree> treesIn(const fs::path &folder)
{
    std::map<std::string, Tree> trees;
    for (const fs::path &entry : visibleFoldersIn(folder))
        trees.emplace(entry.filename(), treeOf(entry));
    return trees;
}

SkillOnDisk skillIn(const fs::path &folder)
{
    SkillOnDisk skill;
    skill.files = visibleTree(folder);
    const auto manifest =
        RecordJson::decodeDocument<SkillManifest>(QByteArray::fromStdString(bytesOf(folder / "vornel.json")));
    EXPECT_TRUE(manifest) << folder << " holds no manifest";
    skill.manifest = manifest.value_or(SkillManifest{});
    return skill;
}

WorkspaceState stateBelow(const fs::path &folder)
{
    const fs::path bookkeeping = folder / "workspace/.vornel";
    WorkspaceState state;
    addSkills(state, folder / "workspace/skills", false);
    addSkills(state, bookkeeping / "trash", true);
    for (const fs::path &history : visibleFoldersIn(bookkeeping / "history"))
        state.history.emplace(history.filename(), treesIn(history));
    state.recovery = treesIn(bookkeeping / "recovery");
    state.claude = treesIn(folder / "claude");
    state.codex = treesIn(folder / "codex");
    state.catalog = bytesOf(bookkeeping / "categories.json");
    state.ignored = bytesOf(bookkeeping / "ignored.json");
    return state;
}

const SkillOnDisk *WorkspaceState::find(const std::string &slug) const
{
    const auto found = skills.find(slug);
    return found == skills.end() ? nullptr : &found->second;
}

const SkillOnDisk *WorkspaceState::findByID(const std::string &id) const
{
    const auto hasID = [&id](const auto &skill) {
        return uuidText(skill.second.manifest.id).toStdString() == id;
    };
    const auto found = std::ranges::find_if(skills, hasID);
    return found == skills.end() ? nullptr : &found->second;
}

} // namespace vornel
