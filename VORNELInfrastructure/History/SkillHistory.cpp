#include "SkillHistory.h"

#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Disk/BestEffort.h>
#include <VORNELInfrastructure/Disk/TreeOperations.h>
#include <VORNELInfrastructure/Skills/SkillFolderStore.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

/// Whether a folder is kept under this name that was replaced.
bool isOfReplaced(const std::string &name)
{
    return name.starts_with("replaced-") || name.starts_with("merged-");
}

QString mergedPrefix(const QString &origin, const std::string &result)
{
    return u"merged-"_s + origin + u'-' + QString::fromStdString(result) + u'-';
}

/// The names in a history, the latest revision first; none where there is no history.
std::vector<std::string> entriesOf(const FileSystem &files, const fs::path &history)
{
    std::vector<std::string> names;
    if (!files.kindAt(history))
        return names;
    for (const FolderEntry &entry : files.list(files.openFolder(history)))
        names.push_back(entry.name);
    std::ranges::sort(names, [](const std::string &a, const std::string &b) {
        return std::strtoll(a.c_str(), nullptr, 10) > std::strtoll(b.c_str(), nullptr, 10);
    });
    return names;
}

} // namespace

fs::path SkillHistory::placeFor(const QUuid &id, const QString &name) const
{
    return m_config.historyOf(id) / pathFromText(name);
}

void SkillHistory::add(const SkillManifest &manifest, const fs::path &skillURL) const
{
    StagedFolder copy = stage(manifest, skillURL);
    commit(m_files, copy);
}

StagedFolder SkillHistory::stage(const SkillManifest &manifest, const fs::path &skillURL) const
{
    const fs::path place =
        placeFor(manifest.id, QString::number(manifest.revision) + u'-' + uuidText(QUuid::createUuid()));
    const bool isFirst = !m_files.kindAt(place.parent_path());
    Stage stage(m_files, m_config.staging());
    SecureFileTree::copyTree(m_files, skillURL, isFirst ? stage.path() / place.filename() : stage.path(),
                             TreeFilter::all);
    return {std::move(stage), {.path = isFirst ? place.parent_path() : place}};
}

fs::path SkillHistory::placeForReplaced(const QUuid &id, const QString &origin) const
{
    return placeFor(id, u"replaced-"_s + origin + u'-' + uuidText(QUuid::createUuid()));
}

bool SkillHistory::anyHolds(const QUuid &id, std::string_view prefix, TreeFilter filter,
                            const std::string &digest) const
{
    const fs::path history = m_config.historyOf(id);
    return std::ranges::any_of(entriesOf(m_files, history), [&](const std::string &name) {
        return name.starts_with(prefix) && digestOf(history / name, filter) == digest;
    });
}

/// Nothing for an entry that can't be read, which then counts as holding nothing.
std::optional<std::string> SkillHistory::digestOf(const fs::path &entry, TreeFilter filter) const
{
    std::optional<std::string> digest;
    bestEffort([&] { digest = SecureFileTree::snapshot(m_files, entry, filter).digest; });
    return digest;
}

bool SkillHistory::holdsRevision(const SkillManifest &manifest, const FileTreeSnapshot &content) const
{
    return anyHolds(manifest.id, std::to_string(manifest.revision) + '-', TreeFilter::all, content.digest);
}

bool SkillHistory::holds(const QUuid &id, const std::string &digest) const
{
    return anyHolds(id, {}, TreeFilter::excludingManifest, digest);
}

std::vector<std::string> SkillHistory::revisions(const QUuid &id) const
{
    std::vector<std::string> names = entriesOf(m_files, m_config.historyOf(id));
    std::erase_if(names, isOfReplaced);
    return names;
}

std::optional<std::string> SkillHistory::contentOf(const QUuid &id, const std::string &entry) const
{
    return digestOf(m_config.historyOf(id) / entry, TreeFilter::excludingManifest);
}

fs::path SkillHistory::keepRevision(const SkillManifest &manifest, const fs::path &skillURL) const
{
    const FileTreeSnapshot content = SecureFileTree::snapshot(m_files, skillURL, TreeFilter::all);
    if (!holdsRevision(manifest, content))
        add(manifest, skillURL);
    return content.isWhole ? fs::path() : placeForReplaced(manifest.id, u"library"_s);
}

void SkillHistory::keepMerged(const QUuid &id, const QString &origin, const std::string &result,
                              const fs::path &copy) const
{
    const fs::path place = placeFor(id, mergedPrefix(origin, result) + uuidText(QUuid::createUuid()));
    createFolders(m_files, place.parent_path(), Durability::Now);
    StagedFolder entry{Stage(m_files, m_config.staging()), {.path = place}};
    SecureFileTree::copyTree(m_files, copy, entry.stage.path(), TreeFilter::excludingManifest);
    commit(m_files, entry);
}

bool SkillHistory::wasMerged(const QUuid &id, const QString &origin, const std::string &result,
                             const std::string &digest) const
{
    return anyHolds(id, mergedPrefix(origin, result).toStdString(), TreeFilter::excludingManifest, digest);
}

void SkillHistory::remove(const QUuid &id) const
{
    const fs::path history = m_config.historyOf(id);
    if (!m_files.kindAt(history))
        return;
    for (const std::string &name : entriesOf(m_files, history)) {
        if (isOfReplaced(name))
            moveTree(m_files, history / name, m_config.recovery() / name);
    }
    SkillFolderStore(m_files, m_config).discard(history);
}

} // namespace vornel
