#include "UnfinishedParts.h"

#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Skills/TrashMoments.h>

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// How many levels of a folder are searched.
enum class Reach { Entries, EntriesOfEntries };

void collect(const FileSystem &files, const Folder &folder, Reach reach, std::vector<fs::path> &found)
{
    for (const FolderEntry &entry : files.list(folder)) {
        if (isUnfinished(entry.name))
            found.push_back(fs::path(folder.path) / entry.name);
        else if (reach == Reach::EntriesOfEntries && entry.kind == FileKind::Directory)
            bestEffort([&] { collect(files, files.openFolder(folder, entry.name), Reach::Entries, found); });
    }
}

} // namespace

bool isUnfinished(const std::string &name)
{
    static const QRegularExpression shape(uR"(\A\.[0-9A-F-]{36}\.tmp\z)"_s);
    return name.starts_with('.') && shape.match(QString::fromStdString(name)).hasMatch();
}

std::vector<fs::path> unfinishedParts(const Workspace &workspace)
{
    const Configuration &config = workspace.config;
    std::vector<fs::path> found;
    const auto look = [&](const fs::path &folder, Reach reach) {
        bestEffort([&] {
            if (workspace.files.kindAt(folder) == FileKind::Directory)
                collect(workspace.files, workspace.files.openFolder(folder), reach, found);
        });
    };
    for (const fs::path &folder : {config.bookkeeping(), config.recovery(), config.events()})
        look(folder, Reach::Entries);
    // A file can be rewritten in its place, and its temporary file is then in the folder of the skill.
    for (const fs::path &folder : {config.skills(), config.trash(), config.claude, config.codex})
        look(folder, Reach::EntriesOfEntries);
    bestEffort([&] {
        for (fs::path &stray : TrashMoments(workspace).strays())
            found.push_back(std::move(stray));
    });
    return found;
}

} // namespace vornel
