#include "OfferedSkills.h"

#include "Unpacking.h"

#include <VORNELCore/Errors/FailurePlace.h>
#include <VORNELCore/Errors/VORNELWorkspaceError.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELCore/Records/SkillFiles.h>
#include <VORNELInfrastructure/Skills/FrontMatter.h>
#include <VORNELInfrastructure/Tree/SecureFileTree.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace fs = std::filesystem;

namespace {

bool isSkill(const FileSystem &files, const Folder &folder)
{
    const std::optional<FileKind> text = files.kindAt(folder, SkillFiles::text);
    return text && *text != FileKind::Directory;
}

/// The names of the visible folders in a folder, sorted; throws `symlinkUnsupported` for a link. Some systems
/// put what belongs to no file into an archive, under a name of its own.
std::vector<std::string> foldersIn(const FileSystem &files, const Folder &folder)
{
    std::vector<std::string> folders;
    for (const FolderEntry &entry : files.list(folder)) {
        if (entry.name.starts_with('.') || entry.name == "__MACOSX")
            continue;
        if (entry.kind == FileKind::SymbolicLink)
            throw VORNELWorkspaceError::symlinkUnsupported(QString::fromStdString(entry.name));
        if (entry.kind == FileKind::Directory)
            folders.push_back(entry.name);
    }
    std::ranges::sort(folders);
    return folders;
}

bool isSlug(const QString &text)
try {
    WorkspaceValidation::validateSlug(text);
    return true;
} catch (const VORNELWorkspaceError &) {
    return false;
}

} // namespace

void OfferedSkills::take(const fs::path &source)
{
    const FileSystem &files = m_workspace.files;
    const fs::path path = files.resolved(source);
    const Folder parent = files.openAbove(path.parent_path());
    const std::string name = path.filename();
    if (files.kindAt(parent, name) == FileKind::Directory)
        takeFolder(parent, name, QString::fromStdString(name));
    else
        takeArchive(files.openFile(parent, name), path);
}

void OfferedSkills::takeArchive(const File &archive, const fs::path &path)
try {
    const Stage unpacked = m_store.makeStage();
    unpack(m_workspace.files, archive, unpacked.path());
    const Folder staging = m_workspace.files.openFolder(m_workspace.config.staging());
    takeFolder(staging, unpacked.path().filename(), slugAtTop(unpacked.path(), path));
} catch (const Located<VORNELWorkspaceError> &) {
    throw;
} catch (const VORNELWorkspaceError &error) {
    throw Located(error, FailurePlace::ofFile(path));
}

/// A folder that is alone is looked into in turn: many archives hold all that they have in one.
void OfferedSkills::takeFolder(const Folder &parent, const std::string &name, const QString &slug)
{
    const FileSystem &files = m_workspace.files;
    const Folder folder = files.openFolder(parent, name);
    if (isSkill(files, folder))
        return takeSkill(parent, name, slug);
    const std::vector<std::string> names = foldersIn(files, folder);
    if (names.empty())
        throw VORNELWorkspaceError::missingSkillFile(slug);
    if (names.size() == 1)
        return takeFolder(folder, names.front(), QString::fromStdString(names.front()));
    for (const std::string &skill : names)
        takeSkill(folder, skill, QString::fromStdString(skill));
}

void OfferedSkills::takeSkill(const Folder &parent, const std::string &name, const QString &slug)
try {
    WorkspaceValidation::validateSlug(slug);
    if (!isSkill(m_workspace.files, m_workspace.files.openFolder(parent, name)))
        throw VORNELWorkspaceError::missingSkillFile(slug);
    if (m_skills.contains(slug))
        throw VORNELWorkspaceError::integrityFailure(u"Deux compétences à ajouter portent ce nom."_s);
    const fs::path copy = m_stage.path() / pathFromText(slug);
    m_skills[slug] = SecureFileTree::copyTreeAndSnapshot(m_workspace.files, parent, name, copy,
                                                         TreeFilter::excludingManifest);
    if (!textFromUtf8(m_store.fileBytes(copy, QString::fromLatin1(SkillFiles::text)).value_or(QByteArray())))
        throw VORNELWorkspaceError::integrityFailure(u"Le SKILL.md n’est pas de l’UTF-8 valide."_s);
} catch (const VORNELWorkspaceError &error) {
    throw Located(error, FailurePlace::ofSkill(slug));
}

/// The slug of a skill at the top of an archive, if one stands there.
QString OfferedSkills::slugAtTop(const fs::path &folder, const fs::path &archive) const
{
    const auto bytes = m_store.fileBytes(folder, QString::fromLatin1(SkillFiles::text));
    const QString text = textFromUtf8(bytes.value_or(QByteArray())).value_or(QString());
    const FrontMatter head = readFrontMatter(text);
    const FrontMatter::Field *name = head.find(u"name");
    const QString named = name != nullptr ? name->text.value_or(QString()) : QString();
    const fs::path stem = archive.stem();
    return isSlug(named) ? named : pathText(stem.extension() == ".tar" ? stem.stem() : stem);
}

} // namespace vornel
